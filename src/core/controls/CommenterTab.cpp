// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> CommenterTab() {
    return {
        Lines("txtComment").Tip(NameTip).Spoken(u"Text of the comment").Kept("Comment"),
        Lines("txtCommentNonHTML")
            .Tip(NameTip)
            .Spoken(u"Text of the alternative comment")
            .Hint(u"Enter non-HTML comment here")
            .Kept("Comment"),
        Option("optCOMHTMLBLocked(0)", "htmlCOM", u"Sk&ip")
            .Ticked()
            .Tip(u"A profile that blocks HTML gets no comment")
            .Kept("Comment"),
        Option("optCOMHTMLBLocked(1)", "htmlCOM", u"Use the same &comment")
            .Tip(u"A profile that blocks HTML gets the comment as it is")
            .Kept("Comment"),
        Option("optCOMHTMLBLocked(2)", "htmlCOM", u"Use &alternative comment")
            .Tip(u"A profile that blocks HTML gets the comment below")
            .Kept("Comment"),
        Box("chkComUseNonHTML").Kept("Comment"),
        Line("txtComStopAt", u"Sto&p after")
            .Tip(u"Leave blank to send an unlimited number of comments")
            .Spoken(u"Number of comments to send")
            .Hint(u"no limit")
            .Kept("Comment"),
        Box("chkComDontSendAgain", u"Don't send a&gain to anyone in the log")
            .Tip(u"Whoever has had a comment from you is passed over. Unticked, they get another one")
            .Kept("Comment"),
        Choice("cboCOMPerDayOrSession", u"comme&nts")
            .Choices(Periods)
            .Holds(u"this session")
            .Tip(PeriodTip)
            .Spoken(u"Limit counts for")
            .Kept("Comment"),
        Box("chkCOMListSkipNonHMTL", u"Skip th&em when sending from the list")
            .Tip(
                u"Unticked, they get the alternative of the list's entry, or the same comment if it has none")
            .Kept("Comment"),
        Option("optSendSingle(1)", "sendCOM", u"Send this co&mment:")
            .Ticked()
            .Tip(u"Everybody gets the comment that is written here")
            .Kept("Comment"),
        Option("optSendFromList(1)", "sendCOM", u"Send &from the list:")
            .Tip(u"Each target gets the next comment of your list")
            .Kept("Comment"),
        List("picCommentor.lstSendList").Spoken(u"Comments of the list"),
        Box("chkComSendFromList").Kept("Comment"),
        Label("lblComReads"),
        Label("lblComNonHTMLReads"),
        Label("lblComSentCount", u"Comments sent: 0"),
        Label("lblComTotalToday", u"Total Today: 0"),
        Label("lblComFailedCount", u"Failed: 0"),
        Label("lblComSkippedCount", u"Skipped: 0"),
        Button("picComPreview", u"Preview the comment")
            .Picture("PREVIEW")
            .Tip(u"Show the comment as it looks on the site"),
        Button("picComPreviewNonHTML", u"Preview the alternative comment")
            .Picture("PREVIEW")
            .Tip(u"Show the alternative comment as it looks on the site"),
        Button("picCommentor.picEditList", u"Edit the list of comments")
            .Picture("EDITLIST")
            .Tip(u"Click this button to manage your list of comments"),
        Button("picCmdComSend", u"&Send Comments")
            .Picture("SEND")
            .Begins()
            .Tip(u"Post a comment on the profile of each ID in the gathered list"),
        Button("picCmdComStop", u"S&top").Picture("SENDSTOP").Tip(u"Stop sending comments"),
        Button("piccmdComTimeDelay", u"Time &Delay...")
            .Picture("DELAY")
            .Runs("mnuTimeDelay_Click")
            .Tip(u"Set the pause between two comments"),
        Button("piccmdComClearLog", u"&Log...")
            .Picture("LOG")
            .Tip(u"The record of everyone you have sent comments to"),
        Button("piccmdComReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"What became of each profile of a run"),
    };
}

} // namespace qlm::rows
