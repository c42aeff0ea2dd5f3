// SPDX-License-Identifier: MIT
#include "core/Controls.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int YoungestAge = 13;
constexpr int OldestAge = 100;

QStringList Periods() {
    return {u"this session"_s, u"per day"_s};
}

QStringList HalvesOfTheDay() {
    return {u"AM"_s, u"PM"_s};
}

QStringList Ages() {
    QStringList ages;
    for (int age = YoungestAge; age <= OldestAge; ++age)
        ages.append(QString::number(age));
    return ages;
}

} // namespace

// Rows of one kind stand in the order in which they are restored and saved. optFilterOff comes last of its
// kind, so that what depends on it settles on its final state.
const std::vector<ControlRow>& Controls::Table() {
    using enum ControlType;
    static const std::vector<ControlRow> table{
        // The frame of the main window.
        {"txtAddress", TextBox},
        {"lblStatus", Label},
        {"lblLoggedInAs", Label},
        {"myfraCurrentAction", Label},
        {"lblWaitingFor", Label},
        {"lblTimeDelay", Label, "", "", "", u"Time Delay: OFF"},
        {"lblLaterErrors", Label},
        {"lblProgress", Label},
        {"MousePointer", Label, "", "", "", u"0"}, // the shape's number: 0 the usual one, 11 the hourglass
        {"lblPracticeSite", Label},
        {"TabStrip1", ListBox},
        {"ucpanelFullGatherIDNotify", Panel},
        {"lblFullGatherIDNotify", Label},

        // Menu states and chain items. The friend-request items of chaining are stored without their "FR".
        {"mnuMultipleAccountsFROn", MenuItem, "General", "mnuMultipleAccountsOn", "chainFR", u"On (always)"},
        {"mnuMultipleAccountsFROnSession", MenuItem, "General", "", "chainFR", u"On (until I close QLM)"},
        {"mnuMultipleAccountsFROff", MenuItem, "General", "mnuMultipleAccountsOff", "chainFR", u"Off", true},
        {"mnuMultipleAccountsMSGOn", MenuItem, "General", "", "chainMSG", u"On (always)"},
        {"mnuMultipleAccountsMSGOnSession", MenuItem, "General", "", "chainMSG", u"On (until I close QLM)"},
        {"mnuMultipleAccountsMSGOff", MenuItem, "General", "", "chainMSG", u"Off", true},
        {"mnuMultipleAccountsBULOn", MenuItem, "General", "", "chainBUL", u"On (always)"},
        {"mnuMultipleAccountsBULOnSession", MenuItem, "General", "", "chainBUL", u"On (until I close QLM)"},
        {"mnuMultipleAccountsBULOff", MenuItem, "General", "", "chainBUL", u"Off", true},
        {"mnuCaptchaSound", MenuItem, "General", "", "", u"Play a sound when CAPTCHA page is reached", true},
        {"mnuCaptchaPopup", MenuItem, "General", "", "",
         u"Display a popup alert when CAPTCHA page is reached"},
        {"mnuCaptchaRestoreIfMinimized", MenuItem, "General", "", "", u"Restore QLM window if minimized",
         true},
        {"mnuSkipProfileCAPTCHAs", MenuItem, "General", "", "",
         u"Skip profiles that require CAPTCHA's (except CAPTCHA's required by MySpace)"},
        {"mnuAddToLogWhenAccepting", MenuItem, "General", "", "",
         u"Add  recipient to log when accepting with message/comment"},
        {"mnuEnableLogging", MenuItem, "General", "", "", u"Enable logging for support"},
        {"mnuMinimizeTray", MenuItem, "General", "", "", u"Minimize To Tray"},
        {"mnuShowInfoBar", MenuItem, "General", "", "", u"Show Info Bar"},
        {"mnuDisableBrowserSounds", MenuItem, "General", "", "", u"Disable Browser Sounds"},
        {"mnuExitWhenFinished", MenuItem, "", "", "", u"Exit When Finished"},

        // Auto start, shared by all accounts.
        {"optAutoStartOn", OptionButton, "Field Entries", "", "autostart"},
        {"txtTimeHH", TextBox, "Field Entries", "", "", u"hh"},
        {"txtTimeMM", TextBox, "Field Entries", "", "", u"00"},
        {"cboAMPM", ComboBox, "Field Entries", "", "", u"AM", false, HalvesOfTheDay},
        {"cboAutostartAction", ComboBox, "Field Entries"},

        // Gather ID's.
        {"lstFriendIDs", ListBox},
        {"lstAcceptIDs", ListBox},
        {"lblProfilesGathered", Label, "", "", "", u"Profiles Gathered: 0"},
        {"optScanCurrentPage", OptionButton, "GatherSettings", "", "scan",
         u"Gather ID’s from Current Page Only"},
        {"optScanFollowing", OptionButton, "GatherSettings", "", "scan", u"Gather ID’s from All Pages", true},
        {"optScanGoogle", OptionButton, "GatherSettings", "", "scan", u"Gather ID’s from Google Search"},
        {"optImportClickedProfiles", OptionButton, "", "", "scan", u"Gather Clicked Profiles"},
        {"optFullGather", OptionButton, "GatherSettings", "", "gather", u"Full Gather"},
        {"optQuickGather", OptionButton, "GatherSettings", "", "gather", u"Quick Gather", true},
        {"chkSaveScanned", CheckBox, "GatherSettings", "", "", u"Save on exit"},
        {"chkRemoveAfterSent", CheckBox, "GatherSettings", "", "", u"Remove from list after sent"},

        // Friend Requester.
        {"txtFriendRequestsToSend", TextBox, "FriendRequest"},
        {"cboFRPerDayOrSession", ComboBox, "FriendRequest", "", "", u"this session", false, Periods},
        {"chkFRNote", CheckBox, "FriendRequest"},
        {"txtFRNote", ManyLineBox, "FriendRequest"},
        {"chkFRFullName", CheckBox, "FriendRequest"},
        {"chkFrSendMessage", CheckBox, "FriendRequest"},
        {"chkFRAddToUpdates", CheckBox, "FriendRequest"},
        {"txtDelPenFRStartPage", TextBox, "FriendRequest"},
        {"chkFRAddToCategory", CheckBox, "FriendRequest"},
        {"cboFRCategories", ComboBox, "FriendRequest", "", "", u"Select a category from the list"},
        {"lblFrSentCount", Label, "", "", "", u"Friends requested: 0"},
        {"lblFrTotalToday", Label, "", "", "", u"Total Today: 0"},
        {"lblFrFailedCount", Label, "", "", "", u"Failed: 0"},
        {"lblFrSkippedCount", Label, "", "", "", u"Skipped: 0"},

        // Auto Messenger. Its send-from-list box goes by the comment's name in the store.
        {"txtMsgSubject", TextBox, "Message"},
        {"txtMsgMessage", ManyLineBox, "Message"},
        {"chkMsgDontSendAgain", CheckBox, "Message"},
        {"txtMsgStopAt", TextBox, "Message"},
        {"cboMSGPerDayOrSession", ComboBox, "Message", "", "", u"this session", false, Periods},
        {"optSendSingle(0)", OptionButton, "Message", "", "sendMSG", u"", true},
        {"optSendFromList(0)", OptionButton, "Message", "", "sendMSG"},
        {"picMessanger.lstSendList", ListBox},
        {"chkMsgSendFromList", CheckBox, "Message", "chkComSendFromList"},
        {"lblMsgSentCount", Label, "", "", "", u"Messages sent: 0"},
        {"lblMsgTotalToday", Label, "", "", "", u"Total Today: 0"},

        // Auto Commenter.
        {"txtComment", ManyLineBox, "Comment"},
        {"txtCommentNonHTML", ManyLineBox, "Comment"},
        {"optCOMHTMLBLocked(0)", OptionButton, "Comment", "", "htmlCOM", u"", true},
        {"optCOMHTMLBLocked(1)", OptionButton, "Comment", "", "htmlCOM"},
        {"optCOMHTMLBLocked(2)", OptionButton, "Comment", "", "htmlCOM"},
        {"chkComUseNonHTML", CheckBox, "Comment"},
        {"txtComStopAt", TextBox, "Comment"},
        {"chkComDontSendAgain", CheckBox, "Comment"},
        {"cboCOMPerDayOrSession", ComboBox, "Comment", "", "", u"this session", false, Periods},
        {"chkCOMListSkipNonHMTL", CheckBox, "Comment"},
        {"optSendSingle(1)", OptionButton, "Comment", "", "sendCOM", u"", true},
        {"optSendFromList(1)", OptionButton, "Comment", "", "sendCOM"},
        {"picCommentor.lstSendList", ListBox},
        {"chkComSendFromList", CheckBox, "Comment"},
        {"lblComSentCount", Label, "", "", "", u"Comments sent: 0"},
        {"lblComTotalToday", Label, "", "", "", u"Total Today: 0"},

        // Timed Bulletins.
        {"txtBulSubject", TextBox, "Bulletin"},
        {"txtBulMessage", ManyLineBox, "Bulletin"},
        {"txtPostAmount", TextBox, "Bulletin"},
        {"txtTimer", TextBox, "Bulletin"},
        {"txtBulTimerTo", TextBox, "Bulletin"},
        {"chkAntiFlood", CheckBox, "Bulletin"},
        {"chkBulAllowComments", CheckBox, "Bulletin"},
        {"optSendSingle(2)", OptionButton, "Bulletin", "", "sendBUL", u"", true},
        {"optSendFromList(2)", OptionButton, "Bulletin", "", "sendBUL"},
        {"picBulletin.lstSendList", ListBox},
        {"chkBulSendFromList", CheckBox, "Bulletin"},
        {"lblBulSentCount", Label, "", "", "", u"Bulletins sent: 0"},

        // Status Updater.
        {"txtStatusBody", ManyLineBox, "Status"},
        {"txtStatusPostAmount", TextBox, "Status"},
        {"txtStatusTimerFrom", TextBox, "Status"},
        {"txtStatusTimerTo", TextBox, "Status"},
        {"chkStatusAntiFlood", CheckBox, "Status"},
        {"optSendSingle(3)", OptionButton, "Status", "", "sendSTATUS", u"", true},
        {"optSendFromList(3)", OptionButton, "Status", "", "sendSTATUS"},
        {"picStatusUpdater.lstSendList", ListBox},
        {"lblStatusSentCount", Label, "", "", "", u"Statuses posted: 0"},

        // Accept Friends.
        {"txtAcceptMessage", ManyLineBox, "Accept"},
        {"txtAcceptSubject", TextBox, "Accept"},
        {"txtAcceptComment", ManyLineBox, "Accept"},
        {"txtAcceptCommentNonHTML", ManyLineBox, "Accept"},
        {"optACCcomHTMLBLocked(0)", OptionButton, "Accept", "", "htmlACC", u"", true},
        {"optACCcomHTMLBLocked(1)", OptionButton, "Accept", "", "htmlACC"},
        {"optACCcomHTMLBLocked(2)", OptionButton, "Accept", "", "htmlACC"},
        {"chkAcceptCommentNonHTML", CheckBox, "Accept"},
        {"optAcceptDontSend", OptionButton, "Accept", "", "sendACC", u"", true},
        {"optAcceptSendMsg", OptionButton, "Accept", "", "sendACC"},
        {"optAcceptSendCom", OptionButton, "Accept", "", "sendACC"},
        {"chkAcceptAddToUpdates", CheckBox, "Accept"},
        {"txtAcceptToPage", TextBox, "Accept"},

        // Filters.
        {"optFilterBands", OptionButton, "Filter", "", "filterType", u"Bands"},
        {"optFilterComedy", OptionButton, "Filter", "", "filterType", u"Comedy"},
        {"optFilterFilm", OptionButton, "Filter", "", "filterType", u"Film"},
        {"optFilterPeople", OptionButton, "Filter", "", "filterType", u"People"},
        {"optFilterGenderOff", OptionButton, "Filter", "", "filterGender", u"Filter Off", true},
        {"optFilterMale", OptionButton, "Filter", "", "filterGender", u"Male"},
        {"optFilterFemale", OptionButton, "Filter", "", "filterGender", u"Female"},
        {"optFilterLocationOff", OptionButton, "Filter", "", "filterLocation", u"Filter Off", true},
        {"optFilterLocation", OptionButton, "Filter", "", "filterLocation", u"Location:"},
        {"txtFilterLocation", TextBox, "Filter"},
        {"optFilterWhenGathering", OptionButton, "Filter", "", "filterWhen", u"Filter when gathering"},
        {"optFilterWhenSending", OptionButton, "Filter", "", "filterWhen", u"Filter when sending", true},
        {"optFilterAgeOff", OptionButton, "Filter", "", "filterAge", u"Filter Off", true},
        {"optFilterAgeOn", OptionButton, "Filter", "blnFilterAgeOn", "filterAge", u"Age:"},
        {"cboFilterAge1", ComboBox, "Filter", "", "", u"18", false, Ages},
        {"cboFilterAge2", ComboBox, "Filter", "", "", u"99", false, Ages},
        {"optFilterLastLoginOff", OptionButton, "Filter", "", "filterLogin", u"Filter Off", true},
        {"optFilterOnlineNow", OptionButton, "Filter", "", "filterLogin", u"Online now"},
        {"optFilterLastLoginOn", OptionButton, "Filter", "", "filterLogin", u"Last login within"},
        {"txtFilterLastLoginDays", TextBox, "Filter", "", "", u"0"},
        {"optFilterOff", OptionButton, "Filter", "", "filterType", u"Filter Off", true},

        // Login screen. Its values are stored on Continue, not with the rest.
        {"frmInteken.lblHeading", Label},
        {"frmInteken.lstAccounts", ListBox},
        {"frmInteken.cmdAdd", Button, "", "", "", u"Add"},
        {"frmInteken.cmdEdit", Button, "", "", "", u"Edit"},
        {"frmInteken.cmdDelete", Button, "", "", "", u"Delete"},
        {"frmInteken.chkTOS", CheckBox},
        {"frmInteken.lblTOS", Label, "", "", "", u"I agree to the Quillmere Terms of Service"},
        {"frmInteken.Label5", Label, "", "", "", u"Quillmere is in no way affiliated with MySpace™"},
        {"frmInteken.lblPracticeSite", Label},
        {"frmInteken.cmdContinue", Button, "", "", "", u"Continue"},

        // Terms of Service.
        {"frmTerms.txtTerms", Label},
        {"frmTerms.cmdClose", Button, "", "", "", u"Close"},

        // Switch Account.
        {"frmSwitchAccount.lstAccounts", ListBox},
        {"frmSwitchAccount.lblHeading", Label, "", "", "", u"Log in with another MySpace account:"},
        {"frmSwitchAccount.cmdAdd", Button, "", "", "", u"Add"},
        {"frmSwitchAccount.cmdEdit", Button, "", "", "", u"Edit"},
        {"frmSwitchAccount.cmdDelete", Button, "", "", "", u"Delete"},
        {"frmSwitchAccount.cmdClear", Button, "", "", "", u"Clear"},
        {"frmSwitchAccount.cmdExport", Button, "", "", "", u"Export"},
        {"frmSwitchAccount.cmdImport", Button, "", "", "", u"Import"},
        {"frmSwitchAccount.cmdOK", Button, "", "", "", u"Login"},
        {"frmSwitchAccount.cmdCancel", Button, "", "", "", u"Cancel"},

        // Account Details.
        {"frmAccountDetails.txtEmail", TextBox},
        {"frmAccountDetails.txtPassword", TextBox},
        {"frmAccountDetails.txtConfirmPassword", TextBox},
        {"frmAccountDetails.fraFields", Panel},
        {"frmAccountDetails.cmdOK", Button, "", "", "", u"OK"},
        {"frmAccountDetails.cmdCancel", Button, "", "", "", u"Cancel"},

        // Filter Options: what the user edits; stored on OK.
        {"frmFilters.optFilterBands", OptionButton, "", "", "frmFilters.Type", u"Bands"},
        {"frmFilters.optFilterComedy", OptionButton, "", "", "frmFilters.Type", u"Comedy"},
        {"frmFilters.optFilterFilm", OptionButton, "", "", "frmFilters.Type", u"Film"},
        {"frmFilters.optFilterPeople", OptionButton, "", "", "frmFilters.Type", u"People"},
        {"frmFilters.optFilterGenderOff", OptionButton, "", "", "frmFilters.Gender", u"Filter Off", true},
        {"frmFilters.optFilterMale", OptionButton, "", "", "frmFilters.Gender", u"Male"},
        {"frmFilters.optFilterFemale", OptionButton, "", "", "frmFilters.Gender", u"Female"},
        {"frmFilters.optFilterLocationOff", OptionButton, "", "", "frmFilters.Location", u"Filter Off", true},
        {"frmFilters.optFilterLocation", OptionButton, "", "", "frmFilters.Location", u"Location:"},
        {"frmFilters.txtFilterLocation", TextBox},
        {"frmFilters.optFilterWhenGathering", OptionButton, "", "", "frmFilters.When",
         u"Filter when gathering"},
        {"frmFilters.optFilterWhenSending", OptionButton, "", "", "frmFilters.When", u"Filter when sending",
         true},
        {"frmFilters.optFilterAgeOff", OptionButton, "", "", "frmFilters.Age", u"Filter Off", true},
        {"frmFilters.optFilterAgeOn", OptionButton, "", "", "frmFilters.Age", u"Age:"},
        {"frmFilters.cboFilterAge1", ComboBox, "", "", "", u"18", false, Ages},
        {"frmFilters.cboFilterAge2", ComboBox, "", "", "", u"99", false, Ages},
        {"frmFilters.optFilterLastLoginOff", OptionButton, "", "", "frmFilters.Login", u"Filter Off", true},
        {"frmFilters.optFilterOnlineNow", OptionButton, "", "", "frmFilters.Login", u"Online now"},
        {"frmFilters.optFilterLastLoginOn", OptionButton, "", "", "frmFilters.Login", u"Last login within"},
        {"frmFilters.txtFilterLastLoginDays", TextBox, "", "", "", u"0"},
        {"frmFilters.optFilterOff", OptionButton, "", "", "frmFilters.Type", u"Filter Off", true},
        {"frmFilters.cmdOK", Button, "", "", "", u"OK"},
        {"frmFilters.cmdCancel", Button, "", "", "", u"Cancel"},

        // Black List.
        {"frmBlacklist.txtID", TextBox},
        {"frmBlacklist.cmdAdd", Button, "", "", "", u"Add ID"},
        {"frmBlacklist.lstFriendIDs", ListBox},
        {"frmBlacklist.cmdDelete", Button, "", "", "", u"Delete Selected ID"},
        {"frmBlacklist.cmdAddFromFile", Button, "", "", "", u"Add ID's from file"},
        {"frmBlacklist.cmdClearList", Button, "", "", "", u"Clear list"},
        {"frmBlacklist.cmdClose", Button, "", "", "", u"Close"},

        // Google Search. The term is stored when the window goes.
        {"frmGoogleSearch.txtGoogleTerm", TextBox},
        {"frmGoogleSearch.cmdOK", Button, "", "", "", u"Search"},
        {"frmGoogleSearch.lblInProgress", Label, "", "", "",
         u"Extracting Google Results (1000 max) - please be patient"},
        {"frmGoogleSearch.lblFullGatheringID", Label, "", "", "", u"Full-Gathering ID's..."},

        // Global Settings.
        {"frmGlobalSettings.chkUseGlobalSettings", CheckBox, "", "", "",
         u"Use same Global Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalFilterSettings", CheckBox, "", "", "",
         u"Use same Filter Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalBookmarks", CheckBox, "", "", "",
         u"Use same Bookmarks for all accounts"},
        {"frmGlobalSettings.chkUseGlobalLogs", CheckBox, "", "", "", u"Use same Logs for all accounts"},
        {"frmGlobalSettings.chkUseGlobalGatheredIDsList", CheckBox, "", "", "",
         u"Use same Gathered ID's List for all accounts"},
        {"frmGlobalSettings.chkUseGlobalGatherIDsSettings", CheckBox, "", "", "",
         u"Use same Gather ID's Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalFriendRequesterSettings", CheckBox, "", "", "",
         u"Use same Friend Requester Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalAutoMessengerSettings", CheckBox, "", "", "",
         u"Use same Auto Messenger Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalAutoCommenterSettings", CheckBox, "", "", "",
         u"Use same Auto Commenter Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalBulletinSettings", CheckBox, "", "", "",
         u"Use same Bulletin Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalAutoAccepterSettings", CheckBox, "", "", "",
         u"Use same Auto Accepter Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalInviteSettings", CheckBox, "", "", "",
         u"Use same Invite Settings for all accounts"},
        {"frmGlobalSettings.chkUseGlobalStatusSettings", CheckBox, "", "", "",
         u"Use same Status Update Settings for all accounts"},
        {"frmGlobalSettings.lblNote", Label, "", "", "",
         u"A box that is not ticked gives each account its own: an account then starts with empty values "
         u"until "
         u"they are saved. Ticking the box again shows the shared ones, which are kept."},
        {"frmGlobalSettings.cmdResetAll", Button, "", "", "", u"Reset All..."},
        {"frmGlobalSettings.cmdClose", Button, "", "", "", u"Close"},

        // Small forms.
        {"frmLoginProblem.cmdClose", Button, "", "", "", u"Close"},
        {"frmError.lblErrorLogPath", Label},
        {"frmError.lblHowToClick", Label, "", "", "", u"- How do I Send an Error Report? -"},
        {"frmError.lblHowTo", Label},
        {"frmError.cmdOK", Button, "", "", "", u"OK"},
        {"frmError.cmdOpenFolder", Button, "", "", "", u"Open folder"},
        {"frmTimeDelay.Label1", Label, "", "", "",
         u"Here you can specify the amount of time that must pass inbetween sending each friend request, "
         u"message or "
         u"comment."},
        {"frmTimeDelay.txtMinutes", TextBox, "", "", "", u"0"},
        {"frmTimeDelay.txtSeconds", TextBox, "", "", "", u"0"},
        {"frmTimeDelay.txtMinutes2", TextBox, "", "", "", u"0"},
        {"frmTimeDelay.txtSeconds2", TextBox, "", "", "", u"0"},
        {"frmTimeDelay.lblProblem", Label},
        {"frmTimeDelay.cmdOK", Button, "", "", "", u"OK"},
        {"frmTimeDelay.cmdCancel", Button, "", "", "", u"Cancel"},
        {"frmGroupGatherPrompt.chkDontShowAgain", CheckBox, "", "", "", u"Don't show again"},
        {"frmGroupGatherPrompt.cmdOK", Button, "", "", "", u"OK"},
        {"frmMusicSearchGatherPrompt.chkDontShowAgain", CheckBox, "", "", "", u"Don't show again"},
        {"frmMusicSearchGatherPrompt.cmdOK", Button, "", "", "", u"OK"},
        {"frmFullGatherReminder.chkDontShowAgain", CheckBox, "", "", "", u"Don't show again"},
        {"frmFullGatherReminder.cmdOK", Button, "", "", "", u"OK"},
        {"frmFullGatherHelp.cmdClose", Button, "", "", "", u"Close"},
        {"frmProifleIDHelp.cmdClose", Button, "", "", "", u"Close"},
        {"frmLog.lblHeading", Label},
        {"frmLog.Label1", Label, "", "", "", u"What do you want to do with the log?"},
        {"frmLog.cmdClearLog", Button, "", "", "", u"Clear Log"},
        {"frmLog.cmdEditLog", Button, "", "", "", u"Edit Log"},
        {"frmLog.cmdExportLog", Button, "", "", "", u"Export Log"},
        {"frmLog.cmdImportLog", Button, "", "", "", u"Import Log"},
        {"frmLog.cmdClose", Button, "", "", "", u"Close"},
        {"frmRunReport.cboRuns", ComboBox},
        {"frmRunReport.lblSummary", Label},
        {"frmRunReport.lblProblem", Label},
        {"frmRunReport.cmdSaveCSV", Button, "", "", "", u"Save as CSV..."},
        {"frmRunReport.cmdClose", Button, "", "", "", u"Close"},
        {"frmStarting.cmdClose", Button, "", "", "", u"Close"},
        {"frmTempMySpaceErrorFR.chkDontShowAgain", CheckBox, "", "", "", u"Don't show again"},
        {"frmTempMySpaceErrorFR.cmdOK", Button, "", "", "", u"OK"},
    };
    return table;
}

} // namespace qlm
