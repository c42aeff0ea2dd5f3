// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> BulletinTab() {
    return {
        Line("txtBulSubject", u"S&ubject:").Spoken(u"Subject of the bulletin").Kept("Bulletin"),
        Lines("txtBulMessage").Spoken(u"Text of the bulletin").Kept("Bulletin"),
        Line("txtPostAmount", u"&Post it")
            .Tip(u"The number of times to post the bulletin in total")
            .Spoken(u"Number of bulletins to post")
            .Hint(u"1")
            .Kept("Bulletin"),
        Line("txtBulTimerFrom", u"&Every")
            .Tip(u"The interval between posts")
            .Spoken(u"Least minutes between two posts")
            .Hint(u"60")
            .Kept("Bulletin", "txtTimer"),
        Line("txtBulTimerTo", u"to")
            .Tip(u"The interval between posts")
            .Spoken(u"Most minutes between two posts")
            .Hint(u"60")
            .Kept("Bulletin"),
        Box("chkAntiFlood", u"&Anti-flood")
            .Tip(u"Check this to delete the previous bulletin each time before posting the next. "
                 u"This will ensure you don't flood the bulletin boards.")
            .Kept("Bulletin"),
        Box("chkBulAllowComments", u"Allow &comments")
            .Tip(u"This setting appears on the bulletin page")
            .Kept("Bulletin"),
        Option("optSendSingle(2)", "sendBUL", u"Post th&is bulletin:")
            .Ticked()
            .Tip(u"Each post is the bulletin that is written here")
            .Kept("Bulletin"),
        Option("optSendFromList(2)", "sendBUL", u"Post &from the list:")
            .Tip(u"Each post is the next bulletin of your list")
            .Kept("Bulletin"),
        List("picBulletin.lstSendList").Spoken(u"Bulletins of the list"),
        Box("chkBulSendFromList").Kept("Bulletin"),
        Button("picBulPreview", u"Preview the bulletin")
            .Picture("PREVIEW")
            .Tip(u"Show the bulletin as it looks on the site"),
        Button("picBulletin.picEditList", u"Edit the list of bulletins")
            .Picture("EDITLIST")
            .Tip(u"Click this button to manage your list of bulletins"),
        Label("lblBulSentCount", u"Bulletins sent: 0"),
        Label("lblBulBusy", u"ACTIVE"),
        Label("lblBulDue"),
        Button("picCmdBulSend", u"&Send Bulletins")
            .Picture("SEND")
            .Begins()
            .Tip(u"Post the bulletin to all your friends, again and again by the clock"),
        Button("piccmdBulStop", u"S&top").Picture("SENDSTOP").Tip(u"Stop posting bulletins"),
        Button("piccmdBulReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"What became of each bulletin of a run"),
    };
}

} // namespace qlm::rows
