// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> InviteTab() {
    return {
        Label("lblInviteBusy", u"Busy... please be patient"),
        Label("lblInviteBatch"),
        Label("lblInviteCount", u"Invites: 0"),
        Label("lblGroupInvitesToday"),
        Label("lblEventInvitesToday"),
        Button("piccmdGroupInvite", u"Invite to &Group")
            .Picture("SEND")
            .Runs("cmdGroupInvite_Click")
            .Begins()
            .Tip(u"Invite friends to the group whose main page is shown in the browser"),
        Button("piccmdEventInvite", u"Invite to &Event")
            .Picture("SEND")
            .Runs("cmdEventInvite_Click")
            .Begins()
            .Tip(u"Invite friends to the event whose page is shown in the browser"),
        Button("piccmdInviteStop", u"S&top")
            .Picture("SENDSTOP")
            .Tip(u"Stop choosing friends; you are asked what becomes of those chosen so far"),
        Button("piccmdInvClearLog", u"&Log...")
            .Picture("LOG")
            .Tip(u"See or clear the log of the group or event whose page is shown in the browser"),
        Button("piccmdInviteReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"Who was invited in a run, and who stands in the log without having been invited"),
    };
}

std::vector<ControlRow> InviteForms() {
    return {
        Option("frmGroupInviteOptions.optInvIDs", "inviteWhom",
               u"Only send invites to the &ID's I've gathered")
            .Ticked(),
        Option("frmGroupInviteOptions.optInvLists", "inviteWhom", u"Send invites to my entire &friends list"),
        Line("frmGroupInviteOptions.txtInviteStartPage", u"&Start page:").Holds(u"1"),
        Label("frmGroupInviteOptions.lblNotice",
              u"Please note that Quillmere will skip friends that you've already invited to this group"),
        Button("frmGroupInviteOptions.cmdSave", u"&OK"),
        Button("frmGroupInviteOptions.cmdCancel", u"&Cancel"),
        Choice("frmInvites.cboStart", u"&Start"),
        Choice("frmInvites.cboEnd", u"&to").Spoken(u"End"),
        Button("frmInvites.cmdOK", u"&OK"),
        Button("frmInvites.cmdCancel", u"&Cancel"),
        Box("frmPleaseEnterCaptcha.chkDontShowAgain", u"&Don't show again"),
        Button("frmPleaseEnterCaptcha.cmdOK", u"&OK"),
    };
}

} // namespace qlm::rows
