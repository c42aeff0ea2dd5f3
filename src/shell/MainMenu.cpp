// SPDX-License-Identifier: MIT
#include "shell/MainMenu.h"

#include "core/App.h"
#include "shell/ControlBinder.h"
#include "shell/FormParts.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A tick that stands in a group shows as an option of it.
enum class Kind { Menu, Item, Tick, Separator };

struct MenuRow {
    Kind kind;
    const char* parent; // "" is the menu bar
    const char* name = "";
    const char* keys = "";
};

constexpr MenuRow Rows[] = {
    {Kind::Menu, "", "mnuOptions"},
    {Kind::Item, "mnuOptions", "mnuSwitchLogin", "Ctrl+Shift+L"},
    {Kind::Menu, "mnuOptions", "mnuMultipleAccounts"},
    {Kind::Menu, "mnuMultipleAccounts", "mnuChainingFriendRequests"},
    {Kind::Item, "mnuChainingFriendRequests", "mnuSpecifyAccountsFR"},
    {Kind::Separator, "mnuChainingFriendRequests"},
    {Kind::Tick, "mnuChainingFriendRequests", "mnuMultipleAccountsFROn"},
    {Kind::Tick, "mnuChainingFriendRequests", "mnuMultipleAccountsFROnSession"},
    {Kind::Tick, "mnuChainingFriendRequests", "mnuMultipleAccountsFROff"},
    {Kind::Menu, "mnuMultipleAccounts", "mnuChainingMessages"},
    {Kind::Item, "mnuChainingMessages", "mnuSpecifyAccountsMSG"},
    {Kind::Separator, "mnuChainingMessages"},
    {Kind::Tick, "mnuChainingMessages", "mnuMultipleAccountsMSGOn"},
    {Kind::Tick, "mnuChainingMessages", "mnuMultipleAccountsMSGOnSession"},
    {Kind::Tick, "mnuChainingMessages", "mnuMultipleAccountsMSGOff"},
    {Kind::Menu, "mnuMultipleAccounts", "mnuChainingBulletins"},
    {Kind::Item, "mnuChainingBulletins", "mnuSpecifyAccountsBUL"},
    {Kind::Separator, "mnuChainingBulletins"},
    {Kind::Tick, "mnuChainingBulletins", "mnuMultipleAccountsBULOn"},
    {Kind::Tick, "mnuChainingBulletins", "mnuMultipleAccountsBULOnSession"},
    {Kind::Tick, "mnuChainingBulletins", "mnuMultipleAccountsBULOff"},
    {Kind::Item, "mnuOptions", "mnuGlobalSettings"},
    {Kind::Item, "mnuOptions", "mnuAutoStart"},
    {Kind::Separator, "mnuOptions"},
    {Kind::Item, "mnuOptions", "mnuTimeDelay", "Ctrl+T"},
    {Kind::Menu, "mnuOptions", "mnuCAPTCHAAlerts"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuCaptchaSound"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuCaptchaPopup"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuCaptchaRestoreIfMinimized"},
    {Kind::Separator, "mnuCAPTCHAAlerts"},
    {Kind::Tick, "mnuCAPTCHAAlerts", "mnuSkipProfileCAPTCHAs"},
    {Kind::Tick, "mnuOptions", "mnuAddToLogWhenAccepting"},
    {Kind::Separator, "mnuOptions"},
    {Kind::Item, "mnuOptions", "mnuExitWhenFinished"},
    {Kind::Item, "mnuOptions", "mnuExit", "Ctrl+Q"},
    {Kind::Menu, "", "mnuBookmarks"},
    {Kind::Item, "mnuBookmarks", "mnuBookmarkThisPage", "Ctrl+D"},
    {Kind::Item, "mnuBookmarks", "mnuManageBookmarks"},
    {Kind::Menu, "", "mnuHelp"},
    {Kind::Tick, "mnuHelp", "mnuDisableBrowserSounds"},
    {Kind::Item, "mnuHelp", "mnuResetSettings"},
    {Kind::Item, "mnuHelp", "mnuBackup"},
    {Kind::Item, "mnuHelp", "mnuRestore"},
    {Kind::Item, "mnuHelp", "mnuSaveScreenshot"},
    {Kind::Tick, "mnuHelp", "mnuEnableLogging"},
    {Kind::Item, "mnuHelp", "mnuGoToQLMDataFolder"},
};

// There while one of its items is.
void ShowUnlessEmpty(const QMenu& menu) {
    const QList<QAction*> actions = menu.actions();
    menu.menuAction()->setVisible(std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
        return action->isVisible() && !action->isSeparator();
    }));
}

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

    // A menu comes and goes with its items.
    void WatchItems() {
        for (QMenu* menu : std::as_const(m_menus)) {
            for (QAction* action : menu->actions())
                QObject::connect(action, &QAction::visibleChanged, menu, [menu] { ShowUnlessEmpty(*menu); });
            ShowUnlessEmpty(*menu);
        }
    }

private:
    void AddMenu(QMenu* parent, const MenuRow& row) {
        auto* menu =
            Named(new QMenu(parent ? static_cast<QWidget*>(parent) : &m_bar), QLatin1StringView(row.name));
        parent ? parent->addMenu(menu) : m_bar.addMenu(menu);
        m_menus.insert(QLatin1StringView(row.name), menu);
    }

    void AddItem(QMenu& menu, const MenuRow& row) {
        auto* action = new QAction(&menu);
        action->setObjectName(QString::fromLatin1(row.name));
        action->setCheckable(row.kind == Kind::Tick);
        action->setShortcut(QKeySequence(QString::fromLatin1(row.keys)));
        menu.addAction(action);
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
    builder.WatchItems();
}

} // namespace qlm
