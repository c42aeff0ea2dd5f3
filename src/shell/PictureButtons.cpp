// SPDX-License-Identifier: MIT
#include "shell/PictureButtons.h"

#include "core/Commands.h"
#include "shell/FormParts.h"
#include "shell/PictureIcon.h"

#include <QBoxLayout>
#include <QToolButton>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PictureButton Table[] = {
    // Address bar.
    {"picBack", "NAVBACK"},
    {"picForward", "NAVFORWARD"},
    {"picHome", "NAVHOME"},
    {"picRefresh", "REFRESH"},
    {"picStop", "STOP"},
    {"picGO", "GO"},
    {"picSkip", "SKIP"},
    {"picCollapse", "COLLAPSE_LEFT"},

    // Gather ID's.
    {"piccmdFrGotoBrowse", "GOTOBROWSE"},
    {"piccmdFrGotoFriends", "GOTOFRIENDS"},
    {"piccmdFrGotoComments", "GOTOCOMMENTS"},
    {"picScanStart", "SCANSTART", "", true},
    {"picScanStop", "SCANSTOP"},
    {"picFilterOptions", "FILTER"},
    {"picRandomize", "RANDOMIZE"},
    {"piccmdClearList", "CLEARLIST"},
    {"picImport", "IMPORT"},
    {"picSaveToFile", "SAVETOFILE"},
    {"piccmdBlackList", "BLACKLIST"},
    {"picRemoveFriends", "REMOVEFRIENDS", "", true},

    // Friend Requester.
    {"piccmdAddFriends", "SEND", "", true},
    {"piccmdAddFriendsStop", "SENDSTOP"},
    {"piccmdFrClearLog", "LOG"},
    {"piccmdFrReport", "REPORT"},
    {"piccmdFRRefreshCategories", "REFRESH", "", true},
    {"piccmdFrTimeDelay", "DELAY", "mnuTimeDelay_Click"},

    // Auto Messenger.
    {"piccmdMsgLoad", "IMPORT"},
    {"piccmdMsgSave", "SAVETOFILE"},
    {"picCmdMsgSend", "SEND", "", true},
    {"picCmdMsgStop", "SENDSTOP"},
    {"piccmdMsgTimeDelay", "DELAY", "mnuTimeDelay_Click"},
    {"piccmdMsgClearLog", "LOG"},
    {"piccmdMsgReport", "REPORT"},

    // Auto Commenter.
    {"picCmdComSend", "SEND", "", true},
    {"picCmdComStop", "SENDSTOP"},
    {"piccmdComTimeDelay", "DELAY", "mnuTimeDelay_Click"},
    {"piccmdComClearLog", "LOG"},
    {"piccmdComReport", "REPORT"},
};

} // namespace

const PictureButton& PictureButtonNamed(QLatin1StringView name) {
    for (const PictureButton& button : Table)
        if (name == QLatin1StringView(button.name))
            return button;
    throw std::logic_error("No picture button is named " + QString(name).toStdString());
}

QToolButton* NewPictureButton(QLatin1StringView name, Caption caption) {
    const PictureButton& picture = PictureButtonNamed(name);
    auto* button = Named(new QToolButton, name);
    button->setIcon(PictureIcon(QString::fromLatin1(picture.image)));
    button->setIconSize(caption == Caption::Beside ? QSize(16, 16) : QSize(20, 20));
    // The hover picture is only shown by buttons that raise themselves.
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    if (caption == Caption::Beside)
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (picture.begins)
        TakeDoubleClickAsOne(*button);
    if (picture.command[0])
        button->setProperty("command", QString::fromLatin1(picture.command));
    return button;
}

void AddPictureButtons(QBoxLayout& layout, const Commands& commands, Caption caption,
                       std::initializer_list<QLatin1StringView> names) {
    for (QLatin1StringView name : names) {
        const PictureButton& picture = PictureButtonNamed(name);
        const QString command =
            picture.command[0] ? QString::fromLatin1(picture.command) : QString(name) + u"_Click"_s;
        if (commands.Has(command))
            layout.addWidget(NewPictureButton(name, caption));
    }
}

} // namespace qlm
