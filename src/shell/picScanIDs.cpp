// SPDX-License-Identifier: MIT
#include "shell/picScanIDs.h"

#include "core/App.h"
#include "shell/ControlBinder.h"
#include "shell/FormParts.h"
#include "shell/PictureButtons.h"
#include "shell/TickBox.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QListView>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Option {
    QLatin1StringView name;
    const char16_t* caption;
    const char16_t* toolTip;
};

constexpr Option ScanOptions[] = {
    {"optScanCurrentPage"_L1, u"Gather ID’s from Current &Page Only",
     u"Only gather ID's on the current page"},
    {"optScanFollowing"_L1, u"Gather ID’s from &All Pages",
     u"Gather from current page and automatically continue to the following pages, if there are any."},
    {"optScanGoogle"_L1, u"Gather ID’s from Goo&gle Search",
     u"Perform a Google search and gather ID's of profiles with the specified words on their profile page"},
    {"optImportClickedProfiles"_L1, u"Gather Clicked P&rofiles",
     u"When this is selected, you can add individual ID's to the list by clicking on the links in the "
     u"browser window"},
};

constexpr Option GatherOptions[] = {
    {"optQuickGather"_L1, u"&Quick Gather",
     u"Please click the 'help' link next to the option for more information on 'Full Gather'"},
    {"optFullGather"_L1, u"F&ull Gather",
     u"Please click the 'help' link next to the option for more information on 'Full Gather'"},
};

constexpr Option ListOptions[] = {
    {"chkSaveScanned"_L1, u"Sa&ve on exit",
     u"Load all the current ID's to the list the next time QLM is run"},
    {"chkRemoveAfterSent"_L1, u"Re&move from list after sent",
     u"After an ID in the list has been used, it will be removed from the list"},
};

struct MenuRow {
    int index;
    const char16_t* caption;
};

// The numbers count the separator in.
constexpr MenuRow ListMenu[] = {
    {0, u"&Go to profile's page..."},
    {2, u"&Remove ID"},
    {3, u"&Export ID's..."},
    {4, u"&Import ID's..."},
};

template <typename Button> Button* NewOption(const Option& option) {
    auto* button = Named(new Button(QString::fromUtf16(option.caption)), option.name);
    button->setToolTip(QString::fromUtf16(option.toolTip));
    return button;
}

QLayout* GoToRow(const App& app) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(new QLabel(u"Go to:"_s));
    AddPictureButtons(*row, app.commands, Caption::Beside,
                      {"piccmdFrGotoBrowse"_L1, "piccmdFrGotoFriends"_L1, "piccmdFrGotoComments"_L1});
    row->addStretch();
    return row;
}

QLayout* GatherRow(const App& app) {
    auto* row = new QHBoxLayout;
    for (const Option& option : GatherOptions)
        row->addWidget(NewOption<QRadioButton>(option));
    if (app.commands.Has(u"lblFullGatherHelp_Click"_s))
        row->addWidget(NewLink("lblFullGatherHelp"_L1, u"- Help -"_s));
    row->addStretch();
    return row;
}

QLayout* RunRow(const App& app) {
    auto* row = new QHBoxLayout;
    AddPictureButtons(*row, app.commands, Caption::Beside, {"picScanStart"_L1, "picScanStop"_L1});
    for (int i = 0; i < row->count(); ++i)
        row->itemAt(i)->widget()->setProperty("look", u"main"_s);
    row->addStretch();
    AddPictureButtons(*row, app.commands, Caption::Beside, {"picFilterOptions"_L1});
    return row;
}

QLayout* ButtonRow(const App& app, std::initializer_list<QLatin1StringView> names) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    AddPictureButtons(*row, app.commands, Caption::Beside, names);
    row->addStretch();
    return row;
}

void AddListMenu(QListView& list, ControlBinder& binder) {
    auto* menu = Named(new QMenu(&list), "mnuContextIDsList"_L1);
    for (const MenuRow& row : ListMenu) {
        if (row.index == 2)
            menu->addSeparator();
        QAction* action = menu->addAction(QString::fromUtf16(row.caption));
        action->setObjectName(u"mnuContextIDsListItem(%1)"_s.arg(row.index));
        QObject::connect(action, &QAction::triggered, &list, [&binder, index = row.index] {
            binder.Run(u"mnuContextIDsListItem_Click"_s, index);
        });
    }
    list.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&list, &QListView::customContextMenuRequested, menu,
                     [&list, menu](const QPoint& at) { menu->popup(list.viewport()->mapToGlobal(at)); });
}

} // namespace

picScanIDs::picScanIDs(const App& app, ControlBinder& binder) {
    setObjectName(u"picScanIDs"_s);
    auto* list = Named(new QListView, "lstFriendIDs"_L1, u"Gathered profile ID's"_s);
    list->setMinimumHeight(90);
    AddListMenu(*list, binder);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(7);
    column->addLayout(GoToRow(app));
    for (const Option& option : ScanOptions)
        column->addWidget(NewOption<QRadioButton>(option));
    findChild<QRadioButton*>(u"optImportClickedProfiles"_s)
        ->setWhatsThis(u"Use this to click on any profile in the browser and add that profile to the list"_s);
    column->addLayout(GatherRow(app));
    column->addLayout(RunRow(app));
    column->addWidget(NewLabel("lblProfilesGathered"_L1, u"subheading"_s));
    column->addWidget(list, 1);
    column->addLayout(
        ButtonRow(app, {"picRandomize"_L1, "piccmdClearList"_L1, "picImport"_L1, "picSaveToFile"_L1}));
    column->addLayout(ButtonRow(app, {"piccmdBlackList"_L1, "picRemoveFriends"_L1}));
    for (const Option& option : ListOptions)
        column->addWidget(NewOption<TickBox>(option));
}

} // namespace qlm
