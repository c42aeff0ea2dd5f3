// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> AcceptTab() {
    return {
        Lines("txtAcceptMessage").Tip(NameTip).Spoken(u"Text of the message").Kept("Accept"),
        Line("txtAcceptSubject", u"S&ubject:").Tip(NameTip).Kept("Accept"),
        Lines("txtAcceptComment").Tip(NameTip).Spoken(u"Text of the comment").Kept("Accept"),
        Lines("txtAcceptCommentNonHTML")
            .Tip(NameTip)
            .Spoken(u"Text of the alternative comment")
            .Hint(u"Enter non-HTML comment here")
            .Kept("Accept"),
        Option("optACCcomHTMLBLocked(0)", "htmlACC", u"Sk&ip")
            .Ticked()
            .Tip(u"A profile that blocks HTML gets no comment")
            .Kept("Accept"),
        Option("optACCcomHTMLBLocked(1)", "htmlACC", u"Use alternati&ve comment")
            .Tip(u"A profile that blocks HTML gets the comment below")
            .Kept("Accept"),
        Option("optACCcomHTMLBLocked(2)", "htmlACC", u"Use th&e same comment")
            .Tip(u"A profile that blocks HTML gets the comment as it is")
            .Kept("Accept"),
        Box("chkAcceptCommentNonHTML", u"Start o&nly with an alternative")
            .Tip(u"Ticked, a run with comments begins only when an alternative comment is written below")
            .Kept("Accept"),
        Option("optAcceptDontSend", "sendACC", u"Onl&y accept")
            .Ticked()
            .Tip(u"Select this option to only accept the friend requests without sending a message or "
                 u"comment to those profiles.")
            .Kept("Accept"),
        Option("optAcceptSendMsg", "sendACC", u"Accept, and send this &message:")
            .Tip(u"Select this option to accept the friend requests and send a message to those profiles")
            .Kept("Accept"),
        Option("optAcceptSendCom", "sendACC", u"Accept, and send this &comment:")
            .Tip(u"Select this option to accept the friend requests and send a comment to those profiles")
            .Kept("Accept"),
        Box("chkAcceptAddToUpdates", u"Add them to my friend u&pdates")
            .Tip(u"Kept for request lists that ask for it")
            .Kept("Accept"),
        Box("chkAcceptFromOldest", u"O&ldest first")
            .Tip(u"Begin on the last page of the list, that is with the oldest requests"),
        Line("txtAcceptToPage", u"i&f there are at least")
            .Tip(u"With fewer pages than this nothing is accepted")
            .Spoken(u"Least number of pages")
            .Hint(u"1")
            .Kept("Accept"),
        Button("picAccMsgPreview", u"Preview the message to a new friend")
            .Picture("PREVIEW")
            .Tip(u"Show the message as it looks on the site"),
        Button("picAccComPreview", u"Preview the comment to a new friend")
            .Picture("PREVIEW")
            .Tip(u"Show the comment as it looks on the site"),
        Button("picAccComNonHTMLPreview", u"Preview the alternative comment to a new friend")
            .Picture("PREVIEW")
            .Tip(u"Show the alternative comment as it looks on the site"),
        Label("lblAccMsgReads"),
        Label("lblAccComReads"),
        Label("lblAccComNonHTMLReads"),
        Button("picCmdAutoApprove", u"&Accept Friends")
            .Picture("SEND")
            .Begins()
            .Tip(u"Accept every friend request that has come in"),
        Button("piccmdAccStop", u"S&top")
            .Picture("SENDSTOP")
            .Tip(u"Stop after the request that is being accepted; pressed again, at once"),
        Button("piccmdAccReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"What became of each friend request of a run"),
    };
}

} // namespace qlm::rows
