// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

// Its send-from-list box goes by the comment's name in the store.
std::vector<ControlRow> MessengerTab() {
    return {
        Line("txtMsgSubject", u"S&ubject:").Tip(NameTip).Kept("Message"),
        Lines("txtMsgMessage").Tip(NameTip).Spoken(u"Text of the message").Kept("Message"),
        Box("chkMsgDontSendAgain", u"Do&n't send again to anyone in the log")
            .Tip(u"Whoever has had a message from you is passed over. Unticked, they get another one")
            .Kept("Message"),
        Line("txtMsgStopAt", u"Sto&p after")
            .Tip(u"Leave blank to send an unlimited number of messages")
            .Spoken(u"Number of messages to send")
            .Hint(u"no limit")
            .Kept("Message"),
        Choice("cboMSGPerDayOrSession", u"messa&ges")
            .Choices(Periods)
            .Holds(u"this session")
            .Tip(PeriodTip)
            .Spoken(u"Limit counts for")
            .Kept("Message"),
        Option("optSendSingle(0)", "sendMSG", u"Send this &message:")
            .Ticked()
            .Tip(u"Everybody gets the message that is written here")
            .Kept("Message"),
        Option("optSendFromList(0)", "sendMSG", u"Send &from the list:")
            .Tip(u"Each target gets the next message of your list")
            .Kept("Message"),
        List("picMessanger.lstSendList").Spoken(u"Messages of the list"),
        Box("chkMsgSendFromList").Kept("Message", "chkComSendFromList"),
        Label("lblMsgSubjectReads"),
        Label("lblMsgReads"),
        Label("lblMsgSentCount", u"Messages sent: 0"),
        Label("lblMsgTotalToday", u"Total Today: 0"),
        Label("lblMsgFailedCount", u"Failed: 0"),
        Label("lblMsgSkippedCount", u"Skipped: 0"),
        Button("piccmdMsgLoad", u"Load a message")
            .Picture("IMPORT")
            .Tip(u"Load subject and message from a file"),
        Button("piccmdMsgSave", u"Save the message")
            .Picture("SAVETOFILE")
            .Tip(u"Save subject and message to a file"),
        Button("picMsgPreview", u"Preview the message")
            .Picture("PREVIEW")
            .Tip(u"Show the message as it looks on the site"),
        Button("picMessanger.picEditList", u"Edit the list of messages")
            .Picture("EDITLIST")
            .Tip(u"Click this button to manage your list of messages"),
        Button("picCmdMsgSend", u"&Send Messages")
            .Picture("SEND")
            .Begins()
            .Tip(u"Send a message to each ID in the gathered list"),
        Button("picCmdMsgStop", u"S&top").Picture("SENDSTOP").Tip(u"Stop sending messages"),
        Button("piccmdMsgTimeDelay", u"Time &Delay...")
            .Picture("DELAY")
            .Runs("mnuTimeDelay_Click")
            .Tip(u"Set the pause between two messages"),
        Button("piccmdMsgClearLog", u"&Log...")
            .Picture("LOG")
            .Tip(u"The record of everyone you have sent messages to"),
        Button("piccmdMsgReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"What became of each profile of a run"),
    };
}

} // namespace qlm::rows
