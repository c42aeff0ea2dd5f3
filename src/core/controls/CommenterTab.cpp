// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> CommenterTab() {
    return {
        Lines("txtComment").Kept("Comment"),
        Lines("txtCommentNonHTML").Kept("Comment"),
        Option("optCOMHTMLBLocked(0)", "htmlCOM").Ticked().Kept("Comment"),
        Option("optCOMHTMLBLocked(1)", "htmlCOM").Kept("Comment"),
        Option("optCOMHTMLBLocked(2)", "htmlCOM").Kept("Comment"),
        Box("chkComUseNonHTML").Kept("Comment"),
        Line("txtComStopAt").Kept("Comment"),
        Box("chkComDontSendAgain").Kept("Comment"),
        Choice("cboCOMPerDayOrSession").Choices(Periods).Holds(u"this session").Kept("Comment"),
        Box("chkCOMListSkipNonHMTL").Kept("Comment"),
        Option("optSendSingle(1)", "sendCOM").Ticked().Kept("Comment"),
        Option("optSendFromList(1)", "sendCOM").Kept("Comment"),
        List("picCommentor.lstSendList"),
        Box("chkComSendFromList").Kept("Comment"),
        Label("lblComSentCount", u"Comments sent: 0"),
        Label("lblComTotalToday", u"Total Today: 0"),
    };
}

} // namespace qlm::rows
