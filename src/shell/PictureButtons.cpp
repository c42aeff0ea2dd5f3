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
    {"picBack", "NAVBACK", u"Back", u"Go back one page"},
    {"picForward", "NAVFORWARD", u"Forward", u"Go forward one page"},
    {"picHome", "NAVHOME", u"Home", u"Go to your MySpace home page"},
    {"picRefresh", "REFRESH", u"Refresh", u"Load this page again"},
    {"picStop", "STOP", u"Stop", u"Stop the page and whatever is running"},
    {"picGO", "GO", u"Go", u"Go to the address"},
    {"picSkip", "SKIP", u"S&kip", u"Skip the current profile, or end a running time delay"},
    {"picCollapse", "COLLAPSE_LEFT", u"Fold the control panel away", u"Fold the control panel away"},

    // Gather ID's.
    {"piccmdFrGotoBrowse", "GOTOBROWSE", u"&Browse", u"Navigate to the MySpace browse page"},
    {"piccmdFrGotoFriends", "GOTOFRIENDS", u"&Friends", u"Navigate to the current profile's friends list"},
    {"piccmdFrGotoComments", "GOTOCOMMENTS", u"&Comments",
     u"Navigate to the current profile's comments list"},
    {"picScanStart", "SCANSTART", u"&Start Gathering", u"Gather the profile ID's of the page in the browser",
     "", true},
    {"picScanStop", "SCANSTOP", u"S&top", u"Stop gathering"},
    {"picFilterOptions", "FILTER", u"Fi&lters...", u"Choose which profiles are kept"},
    {"picRandomize", "RANDOMIZE", u"Shuffle",
     u"Clicking this button will re-sort the ID's in the list in a random order"},
    {"piccmdClearList", "CLEARLIST", u"Clear", u"Clear the ID's in the list"},
    {"picImport", "IMPORT", u"Import", u"Import ID's into the list from a text file"},
    {"picSaveToFile", "SAVETOFILE", u"Save", u"Save the ID's in the list to a text file"},
    {"piccmdBlackList", "BLACKLIST", u"Black list", u"Manage your blacklisted ID's"},
    {"picRemoveFriends", "REMOVEFRIENDS", u"Remove friends",
     u"After clicking this button, Quillmere will go through all your existing friends and remove those ID's "
     u"from the "
     u"scanned list above",
     "", true},

    // Friend Requester.
    {"piccmdAddFriends", "SEND", u"&Send Friend Requests",
     u"Send a friend request to each ID in the gathered list", "", true},
    {"piccmdAddFriendsStop", "SENDSTOP", u"S&top", u"Stop sending friend requests"},
    {"piccmdFrClearLog", "LOG", u"&Log...", u"The record of everyone you have sent friend requests to"},
    {"piccmdFrReport", "REPORT", u"&Report...", u"What became of each profile of a run"},
    {"piccmdFRRefreshCategories", "REFRESH", u"Fill the list of categories",
     u"Fill the list with the categories of your friends", "", true},
    {"piccmdFrTimeDelay", "DELAY", u"Time &Delay...", u"Set the pause between two friend requests",
     "mnuTimeDelay_Click"},
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
    const QString words = QString::fromUtf16(picture.caption);
    auto* button = Named(new QToolButton, name, QString(words).remove(u'&'));
    button->setIcon(PictureIcon(QString::fromLatin1(picture.image)));
    button->setIconSize({20, 20});
    // The hover picture is only shown by buttons that raise themselves.
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(QString::fromUtf16(picture.toolTip));
    if (caption == Caption::Beside) {
        button->setText(words);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
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
