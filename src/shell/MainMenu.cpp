// SPDX-License-Identifier: MIT
#include "shell/MainMenu.h"

#include "core/App.h"
#include "shell/ControlBinder.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Kind { Menu, Item, Tick, Separator };

struct MenuRow {
    Kind kind;
    const char* parent; // "" is the menu bar
    const char* name;
    const char16_t* caption;
    const char* keys = "";
};

constexpr MenuRow Rows[] = {
    {Kind::Menu, "", "mnuOptions", u"&Options"},
    {Kind::Item, "mnuOptions", "mnuSwitchLogin", u"S&witch Login...", "Ctrl+Shift+L"},
    {Kind::Item, "mnuOptions", "mnuGlobalSettings", u"&Global Settings..."},
    {Kind::Separator, "mnuOptions", "", u""},
    {Kind::Item, "mnuOptions", "mnuTimeDelay", u"&Time Delay...", "Ctrl+T"},
    {Kind::Menu, "mnuOptions", "mnuCAPTCHAAlerts", u"&CAPTCHA Settings"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuCaptchaSound", u"Play a &sound when CAPTCHA page is reached"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuCaptchaPopup",
     u"Display a &popup alert when CAPTCHA page is reached"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuCaptchaRestoreIfMinimized", u"&Restore QLM window if minimized"},
    {Kind::Separator, "mnuCAPTCHAAlerts", "", u""},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuSkipProfileCAPTCHAs",
     u"S&kip profiles that require CAPTCHA's (except CAPTCHA's required by MySpace)"},
    {Kind::Separator, "mnuOptions", "", u""},
    {Kind::Item, "mnuOptions", "mnuExitWhenFinished", u"Exit When &Finished"},
    {Kind::Item, "mnuOptions", "mnuExit", u"E&xit", "Ctrl+Q"},
    {Kind::Menu, "", "mnuHelp", u"&Help"},
    {Kind::Tick, "mnuHelp", "mnuDisableBrowserSounds", u"&Disable Browser Sounds"},
    {Kind::Item, "mnuHelp", "mnuResetSettings", u"&Reset Settings..."},
    {Kind::Item, "mnuHelp", "mnuSaveScreenshot", u"&Save screenshot and page source..."},
    {Kind::Tick, "mnuHelp", "mnuEnableLogging", u"&Enable logging for support"},
    {Kind::Item, "mnuHelp", "mnuGoToQLMDataFolder", u"&Go to QLM Data Folder"},
};

class MenuBuilder {
public:
    MenuBuilder(QMenuBar& bar, const App& app, ControlBinder& binder)
        : m_bar(bar), m_app(app), m_binder(binder) {}

    void Add(const MenuRow& row) {
        QMenu* parent = m_menus.value(QLatin1StringView(row.parent));
        if (row.kind == Kind::Menu)
            AddMenu(parent, row);
        else if (row.kind == Kind::Separator)
            parent->addSeparator();
        else if (m_app.commands.Has(QString::fromLatin1(row.name) + u"_Click"_s))
            AddItem(*parent, row);
    }

    void RemoveEmptyMenus() {
        for (QMenu* menu : std::as_const(m_menus)) {
            const QList<QAction*> actions = menu->actions();
            const bool empty = std::all_of(actions.begin(), actions.end(),
                                           [](const QAction* action) { return action->isSeparator(); });
            menu->menuAction()->setVisible(!empty);
        }
    }

private:
    void AddMenu(QMenu* parent, const MenuRow& row) {
        const QString caption = QString::fromUtf16(row.caption);
        QMenu* menu = parent ? parent->addMenu(caption) : m_bar.addMenu(caption);
        menu->setObjectName(QString::fromLatin1(row.name));
        m_menus.insert(QLatin1StringView(row.name), menu);
    }

    void AddItem(QMenu& menu, const MenuRow& row) {
        QAction* action = menu.addAction(QString::fromUtf16(row.caption));
        action->setObjectName(QString::fromLatin1(row.name));
        action->setCheckable(row.kind == Kind::Tick);
        action->setShortcut(QKeySequence(QString::fromLatin1(row.keys)));
        m_binder.Bind(*action);
    }

    QMenuBar& m_bar;
    const App& m_app;
    ControlBinder& m_binder;
    QHash<QLatin1StringView, QMenu*> m_menus;
};

} // namespace

void FillMenuBar(QMenuBar& bar, const App& app, ControlBinder& binder) {
    MenuBuilder builder(bar, app, binder);
    for (const MenuRow& row : Rows)
        builder.Add(row);
    builder.RemoveEmptyMenus();
}

} // namespace qlm
