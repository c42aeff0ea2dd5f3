// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "shell/CampaignFrames.h"
#include "shell/ControlBinder.h"
#include "shell/FormParts.h"
#include "shell/PanelBands.h"
#include "shell/Panels.h"
#include "shell/PictureButtons.h"
#include "shell/TickBox.h"

#include <QAction>
#include <QBoxLayout>
#include <QListView>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LeastListHeight = 90;

constexpr QLatin1StringView ScanOptions[] = {"optScanCurrentPage"_L1, "optScanFollowing"_L1,
                                             "optScanGoogle"_L1, "optImportClickedProfiles"_L1};

QLayout* GoToRow(const App& app) {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(new QLabel(u"Go to:"_s));
    AddPictureButtons(*row, app.commands, Caption::Beside,
                      {"piccmdFrGotoBrowse"_L1, "piccmdFrGotoFriends"_L1, "piccmdFrGotoComments"_L1});
    row->addStretch();
    return row;
}

QLayout* DepthRow(const App& app) {
    QHBoxLayout* row =
        NewRow({Named(new QRadioButton, "optQuickGather"_L1), Named(new QRadioButton, "optFullGather"_L1)});
    if (app.commands.Has(u"lblFullGatherHelp_Click"_s))
        row->insertWidget(row->count() - 1, NewLink("lblFullGatherHelp"_L1));
    return row;
}

QLayout* Options(const App& app) {
    auto* column = new QVBoxLayout;
    column->setSpacing(7);
    column->addLayout(GoToRow(app));
    for (const QLatin1StringView name : ScanOptions)
        column->addWidget(Named(new QRadioButton, name));
    column->addLayout(DepthRow(app));
    return column;
}

void AddListMenu(QListView& list, ControlBinder& binder) {
    auto* menu = Named(new QMenu(&list), "mnuContextIDsList"_L1);
    // The numbers count the separator in.
    for (const int number : {0, 2, 3, 4}) {
        if (number == 2)
            menu->addSeparator();
        auto* action = new QAction(menu);
        action->setObjectName(u"mnuContextIDsListItem(%1)"_s.arg(number));
        menu->addAction(action);
        binder.Bind(*action);
    }
    list.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&list, &QListView::customContextMenuRequested, menu,
                     [&list, menu](const QPoint& at) { menu->popup(list.viewport()->mapToGlobal(at)); });
}

QLayout* RunBand(const App& app, ControlBinder& binder) {
    auto* list = Named(new QListView, "lstFriendIDs"_L1);
    list->setMinimumHeight(LeastListHeight);
    AddListMenu(*list, binder);
    QHBoxLayout* gathered = NewRow({NewLabel("lblProfilesGathered"_L1, u"subheading"_s)});
    AddPictureButtons(*gathered, app.commands, Caption::Beside, {"picFilterOptions"_L1});
    auto* column = new QVBoxLayout;
    column->addLayout(NewRunRow(app.commands, "picScanStart"_L1, "picScanStop"_L1));
    column->addLayout(gathered);
    column->addWidget(list, 1);
    return column;
}

QLayout* Tools(const App& app) {
    auto* column = new QVBoxLayout;
    column->setSpacing(3);
    column->addLayout(NewToolRow(
        app.commands, {"picRandomize"_L1, "piccmdClearList"_L1, "picImport"_L1, "picSaveToFile"_L1}));
    column->addLayout(NewToolRow(app.commands, {"piccmdBlackList"_L1, "picRemoveFriends"_L1}));
    column->addWidget(Named(new TickBox, "chkSaveScanned"_L1));
    column->addWidget(Named(new TickBox, "chkRemoveAfterSent"_L1));
    return column;
}

} // namespace

QWidget* BuildScanIDs(App& app, ControlBinder& binder) {
    return NewPanel(
        "picScanIDs"_L1,
        {.options = Options(app), .run = RunBand(app, binder), .tools = Tools(app), .runGrows = true});
}

} // namespace qlm
