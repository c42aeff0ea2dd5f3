// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> StatusTab() {
    return {
        Lines("txtStatusBody").Kept("Status"),
        Line("txtStatusPostAmount").Kept("Status"),
        Line("txtStatusTimerFrom").Kept("Status"),
        Line("txtStatusTimerTo").Kept("Status"),
        Box("chkStatusAntiFlood").Kept("Status"),
        Option("optSendSingle(3)", "sendSTATUS").Ticked().Kept("Status"),
        Option("optSendFromList(3)", "sendSTATUS").Kept("Status"),
        List("picStatusUpdater.lstSendList"),
        Button("picStatusUpdater.picEditList", u"Edit the list of status updates")
            .Picture("EDITLIST")
            .Tip(u"Click this button to manage your list of status updates"),
        Label("lblStatusSentCount", u"Statuses posted: 0"),
    };
}

} // namespace qlm::rows
