// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> StatusTab() {
    return {
        Lines("txtStatusBody").Spoken(u"Text of the status update").Kept("Status"),
        Line("txtStatusPostAmount", u"&Post it")
            .Tip(u"The number of times to post a status update in total")
            .Spoken(u"Number of status updates to post")
            .Hint(u"1")
            .Kept("Status"),
        Line("txtStatusTimerFrom", u"&Every")
            .Tip(u"The interval between posts")
            .Spoken(u"Least minutes between two posts")
            .Hint(u"60")
            .Kept("Status"),
        Line("txtStatusTimerTo", u"to")
            .Tip(u"The interval between posts")
            .Spoken(u"Most minutes between two posts")
            .Hint(u"60")
            .Kept("Status"),
        Box("chkStatusAntiFlood", u"&Anti-flood")
            .Tip(u"Check this to delete the previous status update each time before posting the next")
            .Kept("Status"),
        Option("optSendSingle(3)", "sendSTATUS", u"Post this stat&us:")
            .Ticked()
            .Tip(u"Each post is the status update that is written here")
            .Kept("Status"),
        Option("optSendFromList(3)", "sendSTATUS", u"Post &from the list:")
            .Tip(u"Each post is the next status update of your list")
            .Kept("Status"),
        List("picStatusUpdater.lstSendList").Spoken(u"Status updates of the list"),
        Label("lblStatusCharactersRemaining"),
        Button("picStatusUpdater.picEditList", u"Edit the list of status updates")
            .Picture("EDITLIST")
            .Tip(u"Click this button to manage your list of status updates"),
        Label("lblStatusSentCount", u"Statuses posted: 0"),
        Label("lblStatusBusy", u"ACTIVE"),
        Label("lblStatusDue"),
        Button("piccmdSendStatusUpdates", u"&Send Status Updates")
            .Picture("SEND")
            .Begins()
            .Tip(u"Post the status update on your home page, again and again by the clock"),
        Button("piccmdStatusReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"What became of each status update of a run"),
    };
}

} // namespace qlm::rows
