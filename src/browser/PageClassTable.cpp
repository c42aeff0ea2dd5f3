// SPDX-License-Identifier: MIT
#include "browser/PageClassTable.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

PageClassRow Row(qint16 pageClass, const char16_t* marker, PageEffect effect = PageEffect::None,
                 PageCondition condition = PageCondition::None) {
    return {pageClass, {{QString::fromUtf16(marker).toLower()}}, condition, effect};
}

PageClassRow Exact(qint16 pageClass, const char16_t* marker) {
    return {pageClass, {{QString::fromUtf16(marker)}}, PageCondition::None, PageEffect::None, true, true};
}

// Noted in intPageClass and the trail, but no obstacle.
PageClassRow Harmless(qint16 pageClass, const char16_t* marker, PageEffect effect = PageEffect::None) {
    PageClassRow row = Row(pageClass, marker, effect);
    row.isErrorPage = false;
    return row;
}

using Alternatives = std::vector<std::vector<const char16_t*>>;

PageClassRow Either(qint16 pageClass, const Alternatives& alternatives,
                    PageEffect effect = PageEffect::None) {
    PageClassRow row{pageClass, {}, PageCondition::None, effect};
    for (const auto& allOf : alternatives) {
        row.anyOf.emplace_back();
        for (const char16_t* marker : allOf)
            row.anyOf.back().push_back(QString::fromUtf16(marker).toLower());
    }
    return row;
}

PageClassRow Both(qint16 pageClass, const char16_t* one, const char16_t* other,
                  PageEffect effect = PageEffect::None) {
    return Either(pageClass, {{one, other}}, effect);
}

} // namespace

const std::vector<PageClassRow>& PageClassTable() {
    using enum PageEffect;
    using Page = PageCondition;
    static const std::vector<PageClassRow> table{
        Exact(1, u"This profile is undergoing routine maintenance"),
        Row(2, u"This member is already one of your friends."),
        Row(3, u"you already have a pending friend request for this person"),
        Row(4, u"you can't send a message to"),
        Either(5, {{u"invalid friend id"}, {u"invalid id", u"go to user profile"}}),
        Row(6, u"an application error occurred on the server"),
        Row(7, u"only accepts add requests from people", None, Page::WhileRequesting),
        Row(8, u"does not accept friend requests from"),
        Row(9, u"the page you are looking for is currently unavailable"),
        Row(10, u"server is too busy"),
        Row(11, u"this user's profile has been temporarily disabled"),
        Harmless(12, u"this user requires all comments to be approved"),
        Row(13, u"you have exceeded your daily useage", DailyLimit),
        Row(14, u"user has exceeded their daily useage", DailyLimit),
        Harmless(15, u"you must be someone's friend to make comments", SkipCurrentID),
        Row(16, u"this profile is set to private", SkipCurrentID, Page::NoLastLoginOrCommenting),
        Row(17, u"server error in"),
        Row(18, u"the page cannot be displayed"),
        Row(19, u"this user requires all comments to be approved"), // class 12 takes it first
        Row(20, u"MailMaintenance", None, Page::NotDeletingPending),
        Row(21, u"an error has occurred trying to send this message"),
        Either(22,
               {{u"friend to send", u"you must be", u"a message"}, {u"only allow messages from friends"}}),
        Row(23, u"they have set an away message"),
        Both(24, u"LinkContent1", u"ReturnMessage1"),
        Row(25, u"an error occurred while trying to process your request"),
        Both(26, u"invalid user", u"send a message"),
        Row(27, u"does not accept add requests from bands"),
        Row(28, u"you already sent a request to add friend to this member"),
        Row(29, u"this program cannot display the webpage"),
        Row(30, u"the page cannot be found"),
        Row(31, u"the page you are looking for might have been removed"),
        {32, {}, Page::ErrorAddress},
        Row(33, u"has blocked you and removed you from their friends list"),
        Row(34, u"Getting Started with MySpaceIM for Web"),
        Row(35, u"Please enter UserName/Screen Name", SkipCurrentID),
        Both(36, u"You have blocked", u"and removed them from your friends list"),
        Row(37, u"This person is already your friend"),
        Row(38, u"the page you wish to access cannot be found", SkipCurrentID),
        Row(39, u"we couldn’t locate the page you are looking for", SkipCurrentID),
        Row(40, u"the webpage cannot be found"),
        Row(41, u"you cannot add yourself as a friend", None, Page::WhileRequesting),
        Both(42, u"sorry, the profile of", u"is only viewable by friends", SkipCurrentID),
        Row(43, u"an error occurred and the page you requested is unavailable", SkipCurrentID),
        Row(44, u"There is a problem with the resource you are looking for, and it cannot be displayed",
            SkipCurrentID),
        Row(45, u"You already have a pending friend request for", SkipCurrentID),
        Row(46, u"is already your friend", SkipCurrentID),
        Row(47, u"this action is blocked due to age restrictions", SkipCurrentID),
        Row(48, u"doesn't accept friend requests from bands", SkipCurrentID),
        Row(49, u"What's my email address?", SkipCurrentID),
        Either(50,
               {{u"you have reached the maximum limit of friend requests for the day"},
                {u"an error occurred while processing your friend request"}},
               DailyLimit),
    };
    return table;
}

} // namespace qlm
