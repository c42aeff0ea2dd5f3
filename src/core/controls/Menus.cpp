// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> Menus() {
    return {
        MenuItem("mnuOptions", u"&Options"),
        MenuItem("mnuSwitchLogin", u"S&witch Login..."),
        MenuItem("mnuMultipleAccounts", u"&Multiple Account Chaining"),
        MenuItem("mnuChainingFriendRequests", u"&Friend Requests"),
        MenuItem("mnuSpecifyAccountsFR", u"&Specify Accounts..."),
        MenuItem("mnuChainingMessages", u"&Messages"),
        MenuItem("mnuSpecifyAccountsMSG", u"&Specify Accounts..."),
        MenuItem("mnuChainingBulletins", u"&Bulletins"),
        MenuItem("mnuSpecifyAccountsBUL", u"&Specify Accounts..."),
        MenuItem("mnuAutoStart", u"&Auto Start..."),
        MenuItem("mnuGlobalSettings", u"&Global Settings..."),
        MenuItem("mnuTimeDelay", u"&Time Delay..."),
        MenuItem("mnuCAPTCHAAlerts", u"&CAPTCHA Settings"),
        MenuItem("mnuExit", u"E&xit"),
        MenuItem("mnuBookmarks", u"&Bookmarks"),
        MenuItem("mnuBookmarkThisPage", u"&Bookmark this page..."),
        MenuItem("mnuManageBookmarks", u"&Manage Bookmarks..."),
        MenuItem("mnuHelp", u"&Help"),
        MenuItem("mnuResetSettings", u"&Reset Settings..."),
        MenuItem("mnuBackup", u"&Backup..."),
        MenuItem("mnuRestore", u"Res&tore..."),
        MenuItem("mnuSaveScreenshot", u"&Save screenshot and page source..."),
        MenuItem("mnuGoToQLMDataFolder", u"&Go to QLM Data Folder"),
        // Chaining. The items of the friend requests are stored without the activity's word.
        MenuItem("mnuMultipleAccountsFROn", u"On (always)")
            .In("chainFR")
            .Kept("General", "mnuMultipleAccountsOn"),
        MenuItem("mnuMultipleAccountsFROnSession", u"On (until I close QLM)").In("chainFR").Kept("General"),
        MenuItem("mnuMultipleAccountsFROff", u"Off")
            .In("chainFR")
            .Ticked()
            .Kept("General", "mnuMultipleAccountsOff"),
        MenuItem("mnuMultipleAccountsMSGOn", u"On (always)").In("chainMSG").Kept("General"),
        MenuItem("mnuMultipleAccountsMSGOnSession", u"On (until I close QLM)").In("chainMSG").Kept("General"),
        MenuItem("mnuMultipleAccountsMSGOff", u"Off").In("chainMSG").Ticked().Kept("General"),
        MenuItem("mnuMultipleAccountsBULOn", u"On (always)").In("chainBUL").Kept("General"),
        MenuItem("mnuMultipleAccountsBULOnSession", u"On (until I close QLM)").In("chainBUL").Kept("General"),
        MenuItem("mnuMultipleAccountsBULOff", u"Off").In("chainBUL").Ticked().Kept("General"),
        MenuItem("mnuCaptchaSound", u"Play a &sound when CAPTCHA page is reached").Ticked().Kept("General"),
        MenuItem("mnuCaptchaPopup", u"Display a &popup alert when CAPTCHA page is reached").Kept("General"),
        MenuItem("mnuCaptchaRestoreIfMinimized", u"&Restore QLM window if minimized")
            .Ticked()
            .Kept("General"),
        MenuItem("mnuSkipProfileCAPTCHAs",
                 u"S&kip profiles that require CAPTCHA's (except CAPTCHA's required by MySpace)")
            .Kept("General"),
        MenuItem("mnuAddToLogWhenAccepting", u"&Add  recipient to log when accepting with message/comment")
            .Kept("General"),
        MenuItem("mnuEnableLogging", u"&Enable logging for support").Kept("General"),
        MenuItem("mnuMinimizeTray", u"Minimize To Tray").Kept("General"),
        MenuItem("mnuShowInfoBar", u"Show Info Bar").Kept("General"),
        MenuItem("mnuDisableBrowserSounds", u"&Disable Browser Sounds").Kept("General"),
        MenuItem("mnuExitWhenFinished", u"Exit When &Finished"),
        // On the list of gathered IDs. The numbers count the separator in.
        MenuItem("mnuContextIDsListItem(0)", u"&Go to profile's page..."),
        MenuItem("mnuContextIDsListItem(2)", u"&Remove ID"),
        MenuItem("mnuContextIDsListItem(3)", u"&Export ID's..."),
        MenuItem("mnuContextIDsListItem(4)", u"&Import ID's..."),
    };
}

} // namespace qlm::rows
