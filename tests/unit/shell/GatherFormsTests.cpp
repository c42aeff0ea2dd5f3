// SPDX-License-Identifier: MIT
// What the gather tab and its windows say, and how they are worked by the keyboard.
#include "WindowTest.h"
#include "shell/FormRegistry.h"
#include "shell/Look.h"
#include "steps/StopResume.h"

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

namespace qlm {
namespace {

class GatherFormsTest : public WindowTest {
protected:
    QWidget* Tab() {
        dialogs.ShowForm(u"frmMain"_s);
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        return dialogs.FormWidget(u"frmMain"_s)->findChild<QWidget*>(u"picScanIDs"_s);
    }
    static QStringList Captions(const QWidget& form) {
        QStringList captions;
        for (const auto* button : form.findChildren<QAbstractButton*>())
            if (!button->text().isEmpty())
                captions.append(button->text().remove(u'&'));
        return captions;
    }
};

struct Row {
    const char* name;
    QString caption;
    QString toolTip;
};

const QString Help =
    u"Please click the 'help' link next to the option for more information on 'Full Gather'"_s;

} // namespace

TEST_F(GatherFormsTest, TheTabSaysWhatEachOfItsControlsDoes) {
    const QWidget* tab = Tab();
    for (
        const Row& row : {
            Row{"optScanCurrentPage", u"Gather ID’s from Current Page Only"_s,
                u"Only gather ID's on the current page"_s},
            Row{"optScanFollowing", u"Gather ID’s from All Pages"_s,
                u"Gather from current page and automatically continue to the following pages, if there are "
                "any."_s},
            Row{"optScanGoogle", u"Gather ID’s from Google Search"_s,
                u"Perform a Google search and gather ID's of profiles with the specified words on their "
                "profile page"_s},
            Row{"optImportClickedProfiles", u"Gather Clicked Profiles"_s,
                u"When this is selected, you can add individual ID's to the list by clicking on the links in "
                "the browser window"_s},
            Row{"optQuickGather", u"Quick Gather"_s, Help},
            Row{"optFullGather", u"Full Gather"_s, Help},
            Row{"chkSaveScanned", u"Save on exit"_s,
                u"Load all the current ID's to the list the next time QLM is run"_s},
            Row{"chkRemoveAfterSent", u"Remove from list after sent"_s,
                u"After an ID in the list has been used, it will be removed from the list"_s},
            Row{"piccmdFrGotoBrowse", u"Browse"_s, u"Navigate to the MySpace browse page"_s},
            Row{"piccmdFrGotoFriends", u"Friends"_s, u"Navigate to the current profile's friends list"_s},
            Row{"piccmdFrGotoComments", u"Comments"_s, u"Navigate to the current profile's comments list"_s},
            Row{"picRandomize", u"Shuffle"_s,
                u"Clicking this button will re-sort the ID's in the list in a random order"_s},
            Row{"piccmdClearList", u"Clear"_s, u"Clear the ID's in the list"_s},
            Row{"picImport", u"Import"_s, u"Import ID's into the list from a text file"_s},
            Row{"picSaveToFile", u"Save"_s, u"Save the ID's in the list to a text file"_s},
            Row{"piccmdBlackList", u"Black list"_s, u"Manage your blacklisted ID's"_s},
            Row{"picRemoveFriends", u"Remove friends"_s,
                u"After clicking this button, Quillmere will go through all your existing friends and remove "
                "those ID's from the scanned list above"_s},
            Row{"lblFullGatherHelp", u"- Help -"_s, {}},
        }) {
        const auto* button = tab->findChild<QAbstractButton*>(QString::fromLatin1(row.name));
        ASSERT_NE(button, nullptr) << row.name;
        EXPECT_EQ(button->text().remove(u'&'), row.caption);
        EXPECT_EQ(button->toolTip(), row.toolTip) << row.name;
    }
    EXPECT_TRUE(Texts(*tab).contains(u"Go to:"_s));
    EXPECT_EQ(tab->findChild<QWidget*>(u"optImportClickedProfiles"_s)->whatsThis(),
              u"Use this to click on any profile in the browser and add that profile to the list"_s);
}

TEST_F(GatherFormsTest, TheTabIsWorkedThroughByTheKeyboardFromTopToBottom) {
    EXPECT_EQ(
        TabOrder(*Tab()),
        (QStringList{u"piccmdFrGotoBrowse"_s, u"piccmdFrGotoFriends"_s, u"piccmdFrGotoComments"_s,
                     u"optScanFollowing"_s, u"optQuickGather"_s, u"lblFullGatherHelp"_s, u"picScanStart"_s,
                     u"picScanStop"_s, u"picFilterOptions"_s, u"lstFriendIDs"_s, u"picRandomize"_s,
                     u"piccmdClearList"_s, u"picImport"_s, u"picSaveToFile"_s, u"piccmdBlackList"_s,
                     u"picRemoveFriends"_s, u"chkSaveScanned"_s, u"chkRemoveAfterSent"_s}));
}

TEST_F(GatherFormsTest, TheFilterWindowSaysWhatItFiltersBy) {
    const QDialog* form = Shown("frmFilters");
    EXPECT_EQ(form->windowTitle(), u"Filter Options"_s);
    EXPECT_EQ(Captions(*form),
              (QStringList{u"Filter Off"_s, u"Bands"_s, u"Comedy"_s, u"Film"_s, u"People"_s, u"Filter Off"_s,
                           u"Male"_s, u"Female"_s, u"Filter Off"_s, u"Age:"_s, u"Filter Off"_s,
                           u"Location:"_s, u"Filter Off"_s, u"Online now"_s, u"Last login within"_s,
                           u"Filter when gathering"_s, u"Filter when sending"_s, u"OK"_s, u"Cancel"_s}));
    for (const QString& text : {u"to"_s, u"Seperate multiple locations by comma"_s, u"days"_s})
        EXPECT_TRUE(Texts(*form).contains(text)) << text.toStdString();
    for (const char* name : {"cboFilterAge1", "cboFilterAge2"}) {
        const auto* ages = form->findChild<QComboBox*>(QString::fromLatin1(name));
        EXPECT_EQ(ages->itemText(0), u"13"_s);
        EXPECT_EQ(ages->itemText(ages->count() - 1), u"100"_s);
        EXPECT_GT(ages->width(), ages->fontMetrics().horizontalAdvance(u"100"_s));
    }
    QStringList spoken;
    for (const auto* option : form->findChildren<QRadioButton*>())
        spoken.append(option->accessibleName());
    EXPECT_EQ(spoken.removeDuplicates(), 0) << spoken.join(u'|').toStdString();
    EXPECT_TRUE(spoken.contains(u"Gender: Filter Off"_s));
}

TEST_F(GatherFormsTest, TheSearchWindowsButtonKeepsItsLetterWhereItBeginsTheCaption) {
    const auto* button = Shown("frmGoogleSearch")->findChild<QPushButton*>(u"cmdOK"_s);
    for (const auto& [caption, shown] : {std::pair{u"Stop"_s, u"&Stop"_s},
                                         {u"Finishing..."_s, u"Finishing..."_s},
                                         {u"Search"_s, u"&Search"_s}}) {
        app->controls.SetText("frmGoogleSearch.cmdOK"_L1, caption);
        EXPECT_EQ(button->text(), shown);
    }
}

TEST_F(GatherFormsTest, EachFrameOfTheFilterWindowHasALetterOfItsOwn) {
    const QDialog* form = Shown("frmFilters");
    QStringList letters;
    for (const auto* frame : form->findChildren<QGroupBox*>())
        letters.append(QKeySequence::mnemonic(frame->title()).toString());
    EXPECT_EQ(letters.size(), 6);
    letters.append(QKeySequence::mnemonic(form->findChild<QPushButton*>(u"cmdOK"_s)->text()).toString());
    EXPECT_FALSE(letters.contains(QString())) << letters.join(u'|').toStdString();
    EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u'|').toStdString();
}

TEST_F(GatherFormsTest, TheBlackListsWindowIsWorkedThroughByTheKeyboardInOrder) {
    QDialog* form = Shown("frmBlacklist");
    EXPECT_EQ(form->windowTitle(), u"Black List"_s);
    EXPECT_EQ(TabOrder(*form), (QStringList{u"txtID"_s, u"cmdAdd"_s, u"lstFriendIDs"_s, u"cmdDelete"_s,
                                            u"cmdAddFromFile"_s, u"cmdClearList"_s, u"cmdClose"_s}));
    EXPECT_EQ(Captions(*form), (QStringList{u"Add ID"_s, u"Delete Selected ID"_s, u"Add ID's from file"_s,
                                            u"Clear list"_s, u"Close"_s}));
}

TEST_F(GatherFormsTest, TheSearchWindowAsksForATerm) {
    const QDialog* form = Shown("frmGoogleSearch");
    EXPECT_EQ(form->windowTitle(), u"Google Search"_s);
    QStringList texts = Texts(*form);
    EXPECT_TRUE(texts.replaceInStrings(u"&"_s, QString())
                    .contains(u"Please enter a Google search term to scan MySpace profiles:"_s));
    EXPECT_TRUE(texts.contains(u"Extracting Google Results (1000 max) - please be patient"_s));
    EXPECT_TRUE(texts.contains(u"Full-Gathering ID's..."_s));
    EXPECT_EQ(Captions(*form), QStringList{u"Search"_s});
}

TEST_F(GatherFormsTest, ThePromptsSayWhatIsToBeKnown) {
    struct Prompt {
        const char* name;
        QString title;
        QStringList texts;
        QStringList captions;
    };
    const QStringList once{u"Don't show again"_s, u"OK"_s};
    for (const Prompt& prompt : {
             Prompt{"frmGroupGatherPrompt",
                    u"Group Gather"_s,
                    {u"Quillmere detected that you are trying to gather from a group. Bear in mind that QLM "
                     "gathers all the ID's on the *current page*, and all following pages if there are any. "
                     "Therefore if you want to gather group members then you need to be on the \"View All "
                     "Members\" page before you start gathering."_s},
                    once},
             Prompt{
                 "frmMusicSearchGatherPrompt",
                 u"Gather ID's"_s,
                 {u"Quillmere detected that you are trying to gather from music search results. Bear in "
                  "mind that QLM gathers all the ID's on the *current page*, and all following pages if "
                  "there are any. Therefore if you want to gather artists then you need to click the \"see "
                  "all artists\" link before you start gathering."_s},
                 once},
             Prompt{"frmFullGatherReminder",
                    u"Gather ID's"_s,
                    {u"No ID's have been found on the page."_s,
                     u"Many ID's can't be gathered with the 'quick-gather' setting. Try changing to "
                     "'full-gather' for better results"_s},
                    once},
             Prompt{
                 "frmFullGatherHelp",
                 u"Gather Help"_s,
                 {u"What is the difference between \"Full Gather\" and \"Quick Gather\"?"_s,
                  u"Some ID's in MySpace can't be gathered via conventional means. When the 'Full Gather' "
                  "option is selected, those ID's will be gathered using a different method which could "
                  "take up to a few seconds per ID - depending on the speed of your internet connection."_s,
                  u"If 'Quick Gather' is selected, those ID's will be skipped during the gathering "
                  "process."_s},
                 {u"Close"_s}},
             Prompt{"frmProifleIDHelp", u"Profile ID Help"_s, {QString()}, {u"Close"_s}},
         }) {
        const QDialog* form = Shown(prompt.name);
        EXPECT_EQ(form->windowTitle(), prompt.title);
        EXPECT_EQ(Texts(*form), prompt.texts) << prompt.name;
        EXPECT_EQ(Captions(*form), prompt.captions) << prompt.name;
    }
}

TEST_F(GatherFormsTest, NoFormCutsItsTextOff) {
    ApplyLook(*qApp);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.3);
    QApplication::setFont(large);
    for (const QString& name : FormNames()) {
        dialogs.ShowForm(name);
        for (const auto* label : dialogs.FormWidget(name)->findChildren<QLabel*>())
            if (label->wordWrap() && label->isVisible()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << name.toStdString() << ": " << label->text().toStdString();
            }
        dialogs.CloseForm(name);
    }
    QApplication::setFont(usual);
    qApp->setStyleSheet({});
}

} // namespace qlm
