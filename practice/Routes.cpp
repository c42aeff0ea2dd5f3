// SPDX-License-Identifier: MIT
#include "Routes.h"

#include "Designs.h"
#include "pages/AssetPages.h"
#include "pages/BulletinForm.h"
#include "pages/BulletinPages.h"
#include "pages/CaptchaPages.h"
#include "pages/CategoryPages.h"
#include "pages/CommentForms.h"
#include "pages/ComposePages.h"
#include "pages/ControlPages.h"
#include "pages/DesignPages.h"
#include "pages/EventPages.h"
#include "pages/FormMap.h"
#include "pages/GroupPages.h"
#include "pages/HardPages.h"
#include "pages/HomePages.h"
#include "pages/IncomingPages.h"
#include "pages/ListPages.h"
#include "pages/MobilePages.h"
#include "pages/NoticePages.h"
#include "pages/PendingPages.h"
#include "pages/ProductPages.h"
#include "pages/ProfilePages.h"
#include "pages/RequestPages.h"
#include "pages/SignInPages.h"
#include "pages/SitePages.h"
#include "pages/WebSearchPages.h"

#include <array>

namespace qlm::practice {

namespace {

enum class Shows { Page, Picture };

struct RouteRow {
    Role role;
    QStringView path;   // segments; "{id}" stands for digits, "{name}" for anything, a fixed end may follow
    QStringView action; // the query's "fuseaction", or "" for a page that doesn't look at it
    Handler handler;
    Shows shows = Shows::Page;
};

// The first row that fits wins, so "{name}" stands behind everything that has a name of its own. The lists
// stand in tables of their own, which are looked through before.
constexpr std::array routeRows{
    RouteRow{Role::SiteRoot, u"", u"", HomePage},
    RouteRow{Role::SiteRoot, u"home", u"", HomePage},
    RouteRow{Role::Home, u"", u"", HomePage},
    RouteRow{Role::Home, u"index.cfm", u"home", HomePage},
    RouteRow{Role::Login, u"index.cfm", u"login", LoginPage},
    RouteRow{Role::Login, u"index.cfm", u"login.process", LoginProcess},
    RouteRow{Role::Login, u"index.cfm", u"user.retrievepassword", RetrievePassword},
    RouteRow{Role::SiteRoot, u"signout", u"", SignOut},
    RouteRow{Role::SiteRoot, u"signup", u"", SignUp},
    RouteRow{Role::SiteRoot, u"error.aspx", u"", UnexpectedError},
    RouteRow{Role::SiteRoot, u"my/friends/addtofriends/{id}", u"", AddToFriends},
    RouteRow{Role::SiteRoot, u"my/requests/friendrequest", u"", IncomingNew},
    RouteRow{Role::Messaging, u"index.cfm", u"mail.friendRequestsV3", IncomingOld},
    RouteRow{Role::Messaging, u"index.cfm", u"mail.friendRequests", IncomingSecond},
    RouteRow{Role::Friends, u"index.cfm", u"invite.addfriend_verify", AddFriendVerify},
    RouteRow{Role::Friends, u"index.cfm", u"user.viewfriends", OldFriendsAddress},
    RouteRow{Role::Friends, u"index.cfm", u"user.viewcategories", CategoriesPage},
    RouteRow{Role::Profile, u"index.cfm", u"user.viewprofile", OldProfileAddress},
    RouteRow{Role::SiteRoot, u"my/mail/new", u"", ComposeNew},
    RouteRow{Role::Messaging, u"index.cfm", u"mail.message", ComposeOld},
    RouteRow{Role::Messaging, u"index.cfm", u"mailsetup.createaccount", CreateMailAccount},
    RouteRow{Role::Comment, u"index.cfm", u"user.viewProfile_commentForm", CommentForm},
    RouteRow{Role::Comment, u"index.cfm", u"user.confirmComment", CommentForm},
    RouteRow{Role::SiteRoot, u"bulletins", u"", BulletinBoard},
    RouteRow{Role::SiteRoot, u"bulletins/new", u"", BulletinForm},
    RouteRow{Role::SiteRoot, u"bulletins/{id}", u"", PostedBulletins},
    RouteRow{Role::Groups, u"index.cfm", u"groups.grouphome", GroupPage},
    RouteRow{Role::Groups, u"index.cfm", u"groups.groupInvite", GroupInvitePage},
    RouteRow{Role::Groups, u"index.cfm", u"groups.friendBox", GroupFriendBox},
    RouteRow{Role::Events, u"index.cfm", u"groups.friendBox", GroupFriendBox},
    RouteRow{Role::Events, u"Event/View/{id}", u"", EventPage},
    RouteRow{Role::Events, u"Event/Report/{id}", u"", EventPage},
    RouteRow{Role::Events, u"Event/AddEdit/{id}", u"", EventGuestPage},
    RouteRow{Role::Events, u"Event/FriendBox/{id}", u"", EventFriendBox},
    RouteRow{Role::SiteRoot, u"{id}", u"", ProfilePage},
    RouteRow{Role::SiteRoot, u"{id}/classic", u"", ClassicProfile},
    RouteRow{Role::SiteRoot, u"style/site.css", u"", StyleSheet, Shows::Picture},
    RouteRow{Role::SiteRoot, u"style/forms.js", u"", FormScript, Shows::Picture},
    RouteRow{Role::SiteRoot, u"style/requests.js", u"", RequestScript, Shows::Picture},
    RouteRow{Role::SiteRoot, u"style/invites.js", u"", InviteScript, Shows::Picture},
    RouteRow{Role::SiteRoot, u"style/logo.svg", u"", Logo, Shows::Picture},
    RouteRow{Role::SiteRoot, u"style/post.svg", u"", PostButton, Shows::Picture},
    RouteRow{Role::SiteRoot, u"pictures/{id}.svg", u"", ProfilePicture, Shows::Picture},
    RouteRow{Role::SiteRoot, u"images/{name}", u"", BadgeImage, Shows::Picture},
    RouteRow{Role::SiteRoot, u"captcha/{name}.svg", u"", CaptchaImage, Shows::Picture},
    RouteRow{Role::SiteRoot, u"sitemap", u"", Sitemap},
    RouteRow{Role::SiteRoot, u"sitemap/forms", u"", FormMap},
    RouteRow{Role::SiteRoot, u"music", u"", SitePage},
    RouteRow{Role::SiteRoot, u"pressroom", u"", SitePage},
    RouteRow{Role::SiteRoot, u"silentanna", u"", SilentProfile},
    RouteRow{Role::SiteRoot, u"silentbert", u"", SilentProfile},
    RouteRow{Role::SiteRoot, u"silentcleo", u"", SilentProfile},
    RouteRow{Role::Mobile, u"", u"", MobileHome},
    RouteRow{Role::Mobile, u"home.wap", u"", MobileHome},
    RouteRow{Role::Mobile, u"login.wap", u"", MobileSignIn},
    RouteRow{Role::Mobile, u"signout.wap", u"", MobileSignOut},
    RouteRow{Role::Mobile, u"messaging/sentrequests.wap", u"", MobileSentRequests},
    RouteRow{Role::Mobile, u"messaging/sentrequest.wap", u"", MobileSentRequest},
    RouteRow{Role::SearchService, u"index.cfm", u"sitesearch.viewmorepics", OtherProfileAddress},
    RouteRow{Role::Video, u"index.cfm", u"vids.channel", OtherProfileAddress},
    RouteRow{Role::WebSearch, u"", u"", WebSearchPage},
    RouteRow{Role::WebSearch, u"search", u"", WebSearchPage},
    RouteRow{Role::SiteRoot, u"{name}", u"", VanityProfile},
    RouteRow{Role::Product, u"online.htm", u"", OnlineTest},
    RouteRow{Role::Product, u"version.htm", u"", Version},
    RouteRow{Role::Product, u"issuealert.ini", u"", IssueAlert},
    RouteRow{Role::Product, u"login/showloginmessage.htm", u"", LoginMessage},
    RouteRow{Role::Product, u"news.htm", u"", News},
    RouteRow{Role::Product, u"dateandtime.php", u"", ServerDate},
    RouteRow{Role::Product, u"dateandtime.htm", u"", ServerDate},
    RouteRow{Role::Product, u"terms.php", u"", Terms},
    RouteRow{Role::Control, u"control", u"", ControlPage},
    RouteRow{Role::Control, u"journal", u"", JournalPage},
    RouteRow{Role::Control, u"journal/take", u"", JournalTake},
};

bool SegmentFits(QStringView pattern, const QString& segment, QStringList& captures) {
    if (!pattern.startsWith(u'{'))
        return segment.compare(pattern, Qt::CaseInsensitive) == 0;
    const QStringView end = pattern.sliced(pattern.indexOf(u'}') + 1);
    if (!segment.endsWith(end))
        return false;
    const QString value = segment.chopped(end.size());
    const bool wantsDigits = pattern.startsWith(u"{id}");
    captures.append(value);
    return wantsDigits ? IsDigits(value) : !value.isEmpty();
}

bool PathFits(QStringView pattern, const QStringList& segments, QStringList& captures) {
    const auto parts = pattern.split(u'/', Qt::SkipEmptyParts);
    if (parts.size() != segments.size())
        return false;
    for (qsizetype i = 0; i < parts.size(); ++i)
        if (!SegmentFits(parts[i], segments[i], captures))
            return false;
    return true;
}

// Both addresses of the product server show the same.
Role Playing(Role role) {
    return role == Role::ProductAlternate ? Role::Product : role;
}

// Browsers ask every host for an icon.
bool IsIcon(const Visit& visit) {
    return visit.address.path == u"/favicon.ico";
}

} // namespace

RouteMatch FindRoute(const Visit& visit) {
    if (IsIcon(visit))
        return {Icon, true, {}};
    const DesignMatch match = FindDesign(visit);
    if (match.design && match.design->name == u"mail-pending" && HasPendingRequests(visit))
        return {PendingRequests, false, {}};
    if (match.design)
        return {match.design->handler ? match.design->handler : DesignPage, false, match.captures};
    const QString action = visit.address.query.value(u"fuseaction"_s);
    for (const RouteRow& row : routeRows) {
        QStringList captures;
        if (row.role == Playing(visit.role) && PathFits(row.path, visit.address.segments, captures) &&
            (row.action.isEmpty() || action.compare(row.action, Qt::CaseInsensitive) == 0))
            return {row.handler, row.shows == Shows::Picture, captures};
    }
    return {NotFound, false, {}};
}

} // namespace qlm::practice
