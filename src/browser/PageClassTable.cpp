// SPDX-License-Identifier: MIT
#include "browser/PageClassTable.h"

namespace qlm {

namespace {

const char* const PrivateProfile = "The profile is private";

} // namespace

const std::vector<PageClassRow>& PageClassTable() {
    using enum PageEffect;
    using enum In;
    constexpr bool Error = true;
    constexpr bool Harmless = false;
    static const std::vector<PageClassRow> table{
        {1,
         {{{ExactText, u"This profile is undergoing routine maintenance"}}},
         "The profile is under maintenance"},
        {2, Says(u"This member is already one of your friends."), "Is already one of your friends"},
        {3, Says(u"you already have a pending friend request for this person"),
         "A request to this person is pending already"},
        {4, Says(u"you can't send a message to"), "Messages to this person are not allowed"},
        {5,
         {{{Text, u"invalid friend id"}}, {{Text, u"invalid id"}, {Text, u"go to user profile"}}},
         "There is no profile with this ID"},
        {6, Says(u"an application error occurred on the server"), "The site had an application error"},
        {7, Says(u"only accepts add requests from people"), "Takes requests only from people known to them",
         None, Error, ActivityWord::FriendRequests},
        {8, Says(u"does not accept friend requests from"),
         "Doesn't take friend requests from your kind of profile"},
        {9, Says(u"the page you are looking for is currently unavailable"),
         "The page is currently unavailable"},
        {10, Says(u"server is too busy"), "The site was too busy"},
        {11, Says(u"this user's profile has been temporarily disabled"),
         "The profile is temporarily disabled"},
        {12, Says(u"this user requires all comments to be approved"), "", None, Harmless},
        {13, Says(u"you have exceeded your daily useage"), "The site says that your daily usage is exceeded",
         DailyLimit},
        {14, Says(u"user has exceeded their daily useage"),
         "The site says that this user's daily usage is exceeded", DailyLimit},
        {15, Says(u"you must be someone's friend to make comments"), "", SkipCurrentID, Harmless},
        {16,
         {{{Text, u"this profile is set to private"}, {NoText, u"last login"}}},
         PrivateProfile,
         SkipCurrentID},
        {16, Says(u"this profile is set to private"), PrivateProfile, SkipCurrentID, Error,
         ActivityWord::Comments},
        {17, Says(u"server error in"), "The site had a server error"},
        {18, Says(u"the page cannot be displayed"), "The page could not be displayed"},
        {19, Says(u"this user requires all comments to be approved"), ""}, // class 12 takes it first
        {20, Says(u"MailMaintenance"), "The site's mail is under maintenance", None, Error,
         ActivitySet::AllBut({ActivityWord::DeletingPending})},
        {21, Says(u"an error has occurred trying to send this message"), "The site could not send"},
        {22,
         {{{Text, u"friend to send"}, {Text, u"you must be"}, {Text, u"a message"}},
          {{Text, u"only allow messages from friends"}}},
         "Only friends may write to this person"},
        {23, Says(u"they have set an away message"), "Has an away message"},
        {24, Says(u"LinkContent1", u"ReturnMessage1"), "The site showed a page in place of the request"},
        {25, Says(u"an error occurred while trying to process your request"),
         "The site could not process the request"},
        {26, Says(u"invalid user", u"send a message"), "The site does not know this user"},
        {27, Says(u"does not accept add requests from bands"), "Doesn't take requests from bands"},
        {28, Says(u"you already sent a request to add friend to this member"),
         "You have sent a request to this member before"},
        {29, Says(u"this program cannot display the webpage"), "The page could not be displayed"},
        {30, Says(u"the page cannot be found"), "The page was not found"},
        {31, Says(u"the page you are looking for might have been removed"), "The page may have been removed"},
        {32,
         {{{Address, u".com/error.aspx"}}},
         "The site answered with its error page, although the request went out"},
        {33, Says(u"has blocked you and removed you from their friends list"), "Has blocked you"},
        {34, Says(u"Getting Started with MySpaceIM for Web"), "The site showed its chat page"},
        {35, Says(u"Please enter UserName/Screen Name"), "The site showed its sign-in page", SkipCurrentID},
        {36, Says(u"You have blocked", u"and removed them from your friends list"),
         "You have blocked this person"},
        {37, Says(u"This person is already your friend"), "Is already your friend"},
        {38, Says(u"the page you wish to access cannot be found"), "The page was not found", SkipCurrentID},
        {39, Says(u"we couldn’t locate the page you are looking for"), "The page was not found",
         SkipCurrentID},
        {40, Says(u"the webpage cannot be found"), "The page was not found"},
        {41, Says(u"you cannot add yourself as a friend"), "That is you", None, Error,
         ActivityWord::FriendRequests},
        {42, Says(u"sorry, the profile of", u"is only viewable by friends"),
         "The profile is only for friends", SkipCurrentID},
        {43, Says(u"an error occurred and the page you requested is unavailable"), "The page is unavailable",
         SkipCurrentID},
        {44, Says(u"There is a problem with the resource you are looking for, and it cannot be displayed"),
         "The page could not be displayed", SkipCurrentID},
        {45, Says(u"You already have a pending friend request for"),
         "A request to this person is pending already", SkipCurrentID},
        {46, Says(u"is already your friend"), "Is already your friend", SkipCurrentID},
        {47, Says(u"this action is blocked due to age restrictions"), "Not allowed due to age restrictions",
         SkipCurrentID},
        {48, Says(u"doesn't accept friend requests from bands"), "Doesn't take requests from bands",
         SkipCurrentID},
        {49, Says(u"What's my email address?"), "Wants to know their e-mail address first", SkipCurrentID},
        {50,
         {{{Text, u"you have reached the maximum limit of friend requests for the day"}},
          {{Text, u"an error occurred while processing your friend request"}}},
         "The site's daily limit of friend requests",
         DailyLimit},
    };
    return table;
}

} // namespace qlm
