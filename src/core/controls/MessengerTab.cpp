// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

// Its send-from-list box goes by the comment's name in the store.
std::vector<ControlRow> MessengerTab() {
    return {
        Line("txtMsgSubject").Kept("Message"),
        Lines("txtMsgMessage").Kept("Message"),
        Box("chkMsgDontSendAgain").Kept("Message"),
        Line("txtMsgStopAt").Kept("Message"),
        Choice("cboMSGPerDayOrSession").Choices(Periods).Holds(u"this session").Kept("Message"),
        Option("optSendSingle(0)", "sendMSG").Ticked().Kept("Message"),
        Option("optSendFromList(0)", "sendMSG").Kept("Message"),
        List("picMessanger.lstSendList"),
        Box("chkMsgSendFromList").Kept("Message", "chkComSendFromList"),
        Label("lblMsgSentCount", u"Messages sent: 0"),
        Label("lblMsgTotalToday", u"Total Today: 0"),
    };
}

} // namespace qlm::rows
