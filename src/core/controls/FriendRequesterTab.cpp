// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

namespace {
constexpr const char16_t* TipOfThePage = u"This setting appears on the friend request page";
}

std::vector<ControlRow> FriendRequesterTab() {
    return {
        Button("lblProfileIDHelp", u"- What is a profile ID? -"),
        Line("txtFriendRequestsToSend", u"Stop on&e request after")
            .Tip(u"With 3 here four requests are sent: the run stops at the fourth, which isn't counted. "
                 u"Leave blank to send an unlimited number of requests")
            .Spoken(u"Number of friend requests to send")
            .Hint(u"no limit")
            .Kept("FriendRequest"),
        Choice("cboFRPerDayOrSession", u"requests")
            .Choices(Periods)
            .Holds(u"this session")
            .Tip(PeriodTip)
            .Spoken(u"Limit counts for")
            .Kept("FriendRequest"),
        Box("chkFRNote", u"Add this &note:").Tip(TipOfThePage).Kept("FriendRequest"),
        Lines("txtFRNote").Tip(TipOfThePage).Spoken(u"Text of the note").Kept("FriendRequest"),
        Box("chkFRFullName", u"Show my f&ull name").Tip(TipOfThePage).Kept("FriendRequest"),
        Box("chkFrSendMessage", u"Send a &message after each request")
            .Tip(u"Uses the message specified on the 'Auto Messenger' tab")
            .Kept("FriendRequest"),
        Box("chkFRAddToUpdates", u"Add to my friend u&pdates").Tip(TipOfThePage).Kept("FriendRequest"),
        Line("txtDelPenFRStartPage", u"&First page")
            .Tip(u"The page of your sent requests to begin on")
            .Spoken(u"Page to begin on")
            .Hint(u"1")
            .Kept("FriendRequest"),
        Box("chkFRAddToCategory", u"&Add to").Tip(TipOfThePage).Kept("FriendRequest"),
        Choice("cboFRCategories", u"cate&gory")
            .Holds(u"Select a category from the list")
            .Tip(TipOfThePage)
            .Spoken(u"Category")
            .Kept("FriendRequest"),
        Label("lblFrSentCount", u"Friends requested: 0"),
        Label("lblFrTotalToday", u"Total Today: 0"),
        Label("lblFrFailedCount", u"Failed: 0"),
        Label("lblFrSkippedCount", u"Skipped: 0"),
        Button("piccmdAddFriends", u"&Send Friend Requests")
            .Picture("SEND")
            .Begins()
            .Tip(u"Send a friend request to each ID in the gathered list"),
        Button("piccmdAddFriendsStop", u"S&top").Picture("SENDSTOP").Tip(u"Stop sending friend requests"),
        Button("picDeletePendingRequests", u"&Cancel pending requests")
            .Picture("REMOVEFRIENDS")
            .Begins()
            .Tip(u"Take back the friend requests that nobody has answered"),
        Button("picDeletePendingRequestsStop", u"Stop canceling")
            .Picture("SENDSTOP")
            .Tip(u"Stop canceling pending requests"),
        Button("piccmdDelPenReport", u"Report of canceled requests")
            .Picture("REPORT")
            .Tip(u"What became of each pending request of a run"),
        Button("piccmdFRRefreshCategories", u"Fill the list of categories")
            .Picture("REFRESH")
            .Begins()
            .Tip(u"Fill the list with the categories of your friends"),
        Button("piccmdFrTimeDelay", u"Time &Delay...")
            .Picture("DELAY")
            .Runs("mnuTimeDelay_Click")
            .Tip(u"Set the pause between two friend requests"),
        Button("piccmdFrClearLog", u"&Log...")
            .Picture("LOG")
            .Tip(u"The record of everyone you have sent friend requests to"),
        Button("piccmdFrReport", u"&Report...")
            .Picture("REPORT")
            .Tip(u"What became of each profile of a run"),
    };
}

} // namespace qlm::rows
