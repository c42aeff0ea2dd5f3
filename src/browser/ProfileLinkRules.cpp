// SPDX-License-Identifier: MIT
#include "browser/ProfileLinkRules.h"

#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QString Wide(const char16_t* text) {
    return QString::fromUtf16(text);
}

} // namespace

JudgedLink::JudgedLink(App& theApp, const Element& element, std::shared_ptr<PageFacts> page)
    : app(theApp),
      facts(element, std::move(page)),
      address(theApp.Get<PageSigns>().LocationURL()),
      newLayout(theApp.state.blnNewLayout) {}

bool JudgedLink::At(const char16_t* part) const {
    return Has(address, app.Expand(Wide(part)));
}

bool JudgedLink::HrefHas(const char16_t* part) {
    return Has(facts.Href(), app.Expand(Wide(part)));
}

bool JudgedLink::TextHas(int ancestor, const char16_t* part) {
    return facts.Holds(ancestor, ElementText::InnerText, part, Wide(part));
}

bool JudgedLink::InnerHas(int ancestor, const char16_t* part) {
    return facts.Holds(ancestor, ElementText::InnerHTML, part, app.Expand(Wide(part)));
}

bool JudgedLink::OuterHas(int ancestor, const char16_t* part) {
    return facts.Holds(ancestor, ElementText::OuterHTML, part, Wide(part));
}

bool JudgedLink::OuterHasExact(int ancestor, const char16_t* part) {
    return OuterHas(ancestor, part) && facts.OuterHTML(ancestor).contains(Wide(part));
}

bool JudgedLink::TextBegins(int ancestor, const char16_t* part) {
    return facts.Text(ancestor).startsWith(Wide(part), Qt::CaseInsensitive);
}

bool JudgedLink::TextIs(const char16_t* text) {
    return facts.Text().trimmed().compare(Wide(text), Qt::CaseInsensitive) == 0;
}

QString VanityName(const QString& href) {
    const qsizetype slash = href.indexOf(u'/', 7);
    return slash < 0 ? QString() : href.mid(slash + 1);
}

bool IsCommentsOrNotificationsAddress(const QString& address) {
    return address.endsWith(u"/comments"_s, Qt::CaseInsensitive) ||
           address.endsWith(u"/notifications"_s, Qt::CaseInsensitive);
}

bool IsVanityAddress(App& app, const QString& href) {
    return href == app.Expand(u"http://{SiteRootHost}/"_s) + VanityName(href);
}

namespace {

// What a name never holds, and the pages of the site that look like somebody's name.
const std::vector<QString>& PartsOfNoName() {
    static const std::vector<QString> parts{
        u"trailerpark"_s,   u"getconnected"_s, u"myspaceid"_s, u"#"_s,
        u"myspacemobile"_s, u"sitemap"_s,      u"?"_s,         u"/"_s,
    };
    return parts;
}

const std::vector<QString>& PagesThatAreNoName() {
    static const std::vector<QString> pages{
        u"missing"_s,
        u"music"_s,
        u"todayonmyspace"_s,
        u"pressroom"_s,
    };
    return pages;
}

} // namespace

bool IsVanityProfile(App& app, const QString& href) {
    const QString name = VanityName(href);
    if (name.isEmpty() || !IsVanityAddress(app, href))
        return false;
    const auto& pages = PagesThatAreNoName();
    const auto& parts = PartsOfNoName();
    return std::find(pages.begin(), pages.end(), name.toLower()) == pages.end() &&
           std::none_of(parts.begin(), parts.end(), [&](const QString& part) { return Has(name, part); });
}

namespace {

constexpr qsizetype FriendBlockLength = 4000;
constexpr qsizetype TopFriendsPosition = 400;
constexpr qsizetype ProfileLinkBlockLength = 650;
constexpr qsizetype TrackingLinkLength = 200;

bool IsFriendsEntry(JudgedLink& l) {
    if (l.OuterHas(1, u"Send Message") || l.OuterHas(2, u"miniProfile"))
        return !l.OuterHas(0, u"MySpace.CMS.track") && !l.OuterHas(0, u"/photos") &&
               l.facts.Text().trimmed() != u"IM"_s && l.facts.OuterHTML(1).size() <= FriendBlockLength;
    const QString list = u"topFriendsList"_s;
    const QString beginning = l.facts.OuterHTML(3).left(TopFriendsPosition - 2 + list.size());
    if (Has(beginning, list) && l.OuterHas(4, u"topFriendsList"))
        l.remember = false;
    return false;
}

bool IsChartEntry(JudgedLink& l) {
    if (l.OuterHas(2, u"nickname") && l.OuterHas(0, u"artistImgFrame"))
        return true;
    if (l.OuterHas(1, u"MOVERImage"))
        l.remember = false;
    return false;
}

// A row of a music chart that belongs to the page and not to the chart.
bool IsChartFurniture(JudgedLink& l) {
    if (!l.At(u"{SiteDomain}/music/charts") || l.TextHas(7, u"added by your friends"))
        return false;
    const QString chart = GetStringFromEnd(l.address, u"/"_s);
    if (chart == u"songs"_s)
        return !l.InnerHas(2, u"Add song to playlist");
    if (chart == u"albums"_s)
        return !l.OuterHas(2, u"chartAlbum-");
    if (chart == u"3"_s)
        return !l.OuterHas(1, u"Duration:");
    if (l.OuterHas(2, u"artistImg"))
        return false;
    l.remember = false;
    return true;
}

bool IsMediaBlock(JudgedLink& l) {
    if (!l.OuterHas(3, u"mediablock"))
        return false;
    l.remember = false;
    return true;
}

// "fe" is compared with three characters, so that only the value "fe" itself fits.
bool IsRecommendation(JudgedLink& l) {
    for (int ancestor = 2; ancestor <= 5; ++ancestor) {
        const QString category = l.facts.Attribute(ancestor, u"data-category"_s).toLower().left(3);
        if (category == u"rec"_s || category == u"fe"_s)
            return true;
    }
    return false;
}

} // namespace

const std::vector<PageLinkRule>& PageLinkRules() {
    static const std::vector<PageLinkRule> rules{
        {[](const JudgedLink& l) { return l.At(u"/friends") || IsCommentsOrNotificationsAddress(l.address); },
         IsFriendsEntry},
        {[](const JudgedLink& l) { return l.At(u"{SiteDomain}/browse"); },
         [](JudgedLink& l) {
             return l.OuterHas(1, u"vcard containerlarge") || l.OuterHas(2, u"miniProfile");
         }},
        {[](const JudgedLink& l) { return l.At(u"{SiteDomain}/music/charts"); }, IsChartEntry},
        {[](const JudgedLink& l) { return l.At(u"/search/"); },
         [](JudgedLink& l) { return l.OuterHas(3, u"media section"); }},
        {[](const JudgedLink& l) { return l.At(u"{SiteDomain}/forums/t/"); },
         [](JudgedLink& l) { return l.OuterHas(0, u"ForumPostUserName"); }},
    };
    return rules;
}

const std::vector<LinkTest>& RecognitionRules() {
    static const std::vector<LinkTest> rules{
        [](JudgedLink& l) {
            return l.HrefHas(u"fuseaction=user.viewprofile") &&
                   l.facts.HostName() == l.app.deployment.Role(u"ProfileHost"_s);
        },
        [](JudgedLink& l) {
            return l.HrefHas(u"ChannelID=") && l.facts.HostName() == l.app.deployment.Role(u"VideoHost"_s);
        },
        [](JudgedLink& l) { return l.At(u"http://{SearchServiceHost}") && l.HrefHas(u"viewmorepics"); },
        [](JudgedLink& l) {
            return l.InnerHas(1, u"msProfileLink") && l.InnerHas(2, u"friendid") &&
                   l.facts.InnerHTML(3).size() < ProfileLinkBlockLength;
        },
        [](JudgedLink& l) {
            return l.At(u"fuseaction=mail.pendingfriendrequests") &&
                   l.TextHas(2, u"Currently awaiting approval from") &&
                   l.InnerHas(1, u"http://{MessagingHost}/index.cfm?fuseaction=mail.message");
        },
        [](JudgedLink& l) { return IsVanityProfile(l.app, l.facts.Href()); },
    };
    return rules;
}

const std::vector<ExclusionRule>& ExclusionRules() {
    static const std::vector<ExclusionRule> rules{
        {[](JudgedLink& l) { return l.OuterHas(0, u"<SMALL>"); }, false},
        {[](JudgedLink& l) { return l.At(u"fuseaction=user.viewfriends") && l.InnerHas(0, u"pilRealName"); },
         false},
        {[](JudgedLink& l) { return l.TextHas(0, u"Back to Profile"); }, false},
        {[](JudgedLink& l) { return l.TextIs(u"IM"); }, false},
        {[](JudgedLink& l) { return l.HrefHas(u"friendID=6221"); }, false},
        {[](JudgedLink& l) { return l.OuterHas(0, u"Pymk") || l.OuterHas(0, u"thinlink"); }, false},
        {[](JudgedLink& l) { return l.TextBegins(0, u"Back to") || l.TextBegins(0, u"Go to"); }, false},
        {[](JudgedLink& l) { return l.TextHas(1, u"You have denied a friend request from"); }, false},
        {IsChartFurniture, true},
        {[](JudgedLink& l) { return l.facts.Text(2).startsWith(u"More"_s); }, false},
        {[](JudgedLink& l) {
             return l.At(u"&type=Music&") && l.facts.Text(4).startsWith(u"Your Friends are Listening to"_s);
         },
         false},
        {[](JudgedLink& l) {
             return l.OuterHas(0, u"MySpace.CMS.track") && l.facts.OuterHTML().size() < TrackingLinkLength;
         },
         false},
        {[](JudgedLink& l) {
             return l.OuterHasExact(4, u"footertools") || l.OuterHasExact(1, u"gblsubMenu");
         },
         false},
        {[](JudgedLink& l) {
             return (GetStringFromEnd(l.address, u"/"_s).toLower() == u"friends"_s || l.At(u"/FRIENDS/")) &&
                    l.InnerHas(1, u"_blank");
         },
         false},
        {[](JudgedLink& l) {
             return l.newLayout && (l.facts.TagName(1) == u"li"_s || l.facts.TagName(2) == u"li"_s);
         },
         false},
        {IsMediaBlock, true},
        {IsRecommendation, false},
    };
    return rules;
}

} // namespace qlm
