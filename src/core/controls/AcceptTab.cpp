// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> AcceptTab() {
    return {
        Lines("txtAcceptMessage").Kept("Accept"),
        Line("txtAcceptSubject").Kept("Accept"),
        Lines("txtAcceptComment").Kept("Accept"),
        Lines("txtAcceptCommentNonHTML").Kept("Accept"),
        Option("optACCcomHTMLBLocked(0)", "htmlACC").Ticked().Kept("Accept"),
        Option("optACCcomHTMLBLocked(1)", "htmlACC").Kept("Accept"),
        Option("optACCcomHTMLBLocked(2)", "htmlACC").Kept("Accept"),
        Box("chkAcceptCommentNonHTML").Kept("Accept"),
        Option("optAcceptDontSend", "sendACC").Ticked().Kept("Accept"),
        Option("optAcceptSendMsg", "sendACC").Kept("Accept"),
        Option("optAcceptSendCom", "sendACC").Kept("Accept"),
        Box("chkAcceptAddToUpdates").Kept("Accept"),
        Line("txtAcceptToPage").Kept("Accept"),
    };
}

} // namespace qlm::rows
