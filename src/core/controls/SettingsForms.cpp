// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> SettingsForms() {
    return {
        Box("frmGlobalSettings.chkUseGlobalSettings", u"Use same Global Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalFilterSettings", u"Use same Filter Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalBookmarks", u"Use same Bookmarks for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalLogs", u"Use same Logs for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalGatheredIDsList", u"Use same Gathered ID's List for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalGatherIDsSettings",
            u"Use same Gather ID's Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalFriendRequesterSettings",
            u"Use same Friend Requester Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalAutoMessengerSettings",
            u"Use same Auto Messenger Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalAutoCommenterSettings",
            u"Use same Auto Commenter Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalBulletinSettings", u"Use same Bulletin Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalAutoAccepterSettings",
            u"Use same Auto Accepter Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalInviteSettings", u"Use same Invite Settings for all accounts"),
        Box("frmGlobalSettings.chkUseGlobalStatusSettings",
            u"Use same Status Update Settings for all accounts"),
        Label("frmGlobalSettings.lblNote",
              u"A box that is not ticked gives each account its own: an account then starts with empty "
              u"values until they are saved. Ticking the box again shows the shared ones, which are kept."),
        Button("frmGlobalSettings.cmdResetAll", u"&Reset All..."),
        Button("frmGlobalSettings.cmdClose", u"&Close"),
        Label("frmTimeDelay.Label1", u"Here you can specify the amount of time that must pass inbetween "
                                     u"sending each friend request, message or comment."),
        Line("frmTimeDelay.txtMinutes", u"&From").Holds(u"0").Spoken(u"From, minutes"),
        Line("frmTimeDelay.txtSeconds").Holds(u"0").Spoken(u"From, seconds"),
        Line("frmTimeDelay.txtMinutes2", u"&To").Holds(u"0").Spoken(u"To, minutes"),
        Line("frmTimeDelay.txtSeconds2").Holds(u"0").Spoken(u"To, seconds"),
        Label("frmTimeDelay.lblProblem"),
        Button("frmTimeDelay.cmdOK", u"&OK"),
        Button("frmTimeDelay.cmdCancel", u"Cancel"),
        Label("frmLog.lblHeading"),
        Label("frmLog.Label1", u"What do you want to do with the log?"),
        Button("frmLog.cmdClearLog", u"Cle&ar Log"),
        Button("frmLog.cmdEditLog", u"&Edit Log"),
        Button("frmLog.cmdExportLog", u"E&xport Log"),
        Button("frmLog.cmdImportLog", u"&Import Log"),
        Button("frmLog.cmdClose", u"&Close"),
    };
}

} // namespace qlm::rows
