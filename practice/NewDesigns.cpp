// SPDX-License-Identifier: MIT
#include "Designs.h"
#include "Entries.h"
#include "MiniProfile.h"
#include "pages/ChartPages.h"
#include "pages/CommentPages.h"
#include "pages/ListPages.h"

namespace qlm::practice {

namespace {

using enum ListDesign::Who;
using enum ListDesign::Names;
using How = Turning::How;

constexpr QStringView nextTitle = u"title=\"next page\"";
constexpr QStringView deadNext = u"class=\"disabled disablePaging\" title=\"next page\"";

constexpr ListDesign rows[] = {
    {.name = u"friends",
     .title = u"Friends",
     .role = Role::SiteRoot,
     .path = u"{id}/friends",
     .page = u"/page/",
     .perPage = 40,
     .entries = 0,
     .handler = FriendsPage},
    {.name = u"browse",
     .title = u"Browse people",
     .role = Role::SiteRoot,
     .path = u"browse/people",
     .page = u"?page=",
     .who = People,
     .perPage = 40,
     .entries = 5000,
     .handler = BrowsePage},
    {.name = u"browse-cards",
     .title = u"Browse people: cards",
     .role = Role::SiteRoot,
     .path = u"browse/cards",
     .page = u"?page=",
     .who = People,
     .names = Numbered,
     .entry = CardEntry,
     .head = u"<p>{count} people, page by page</p>",
     .next = {u"Next page"}},
    {.name = u"people-search",
     .title = u"Search: people",
     .role = Role::SiteRoot,
     .path = u"search/people",
     .query = u"?q=kites",
     .page = u"&page=",
     .who = People,
     .entry = MediaEntry,
     .head = u"<p>People who like kites: {from} to {to} of {count}</p>",
     .next = {.caption = u"Next", .attributes = nextTitle, .lastPage = deadNext}},
    {.name = u"music-search",
     .title = u"Search: music",
     .role = Role::SiteRoot,
     .path = u"search/music",
     .query = u"?q=night",
     .page = u"&page=",
     .who = Bands,
     .perPage = 10,
     .entries = 24,
     .entry = MediaEntry,
     .head = u"<ul><li>Artists ({count})</li><li>Music Videos (3)</li><li>Albums (8)</li><li>Songs (61)</li>"
             u"<li><a href=\"/search/artists?q=night\">see all artists</a></li></ul>",
     .next = {.caption = u"Next", .attributes = nextTitle, .lastPage = deadNext}},
    {.name = u"artist-search",
     .title = u"Search: artists",
     .role = Role::SiteRoot,
     .path = u"search/artists",
     .query = u"?q=night",
     .page = u"&page=",
     .who = Bands,
     .entry = MediaEntry,
     .head = u"<p>Artists {from} to {to} of {count}</p>",
     .next = {u"Next \u203A"}},
    {.name = u"chart",
     .title = u"Music chart",
     .role = Role::SiteRoot,
     .path = u"music/charts/top/artists",
     .page = u"/",
     .everyPage = true,
     .who = Bands,
     .entries = 200,
     .names = Numbered,
     .handler = ChartPage},
    {.name = u"chart-more",
     .title = u"Music chart with a plain link",
     .role = Role::SiteRoot,
     .path = u"music/charts/new/artists",
     .page = u"/",
     .everyPage = true,
     .who = Bands,
     .entries = 200,
     .names = Numbered,
     .handler = ChartPage},
    {.name = u"forum",
     .title = u"Forum thread",
     .role = Role::SiteRoot,
     .path = u"forums/t/4711",
     .page = u"?page=",
     .entry = ForumEntry,
     .head = u"<p>What was your first instrument? {count} replies</p>",
     .next = {u"Next \u00BB"}},
    {.name = u"comments",
     .title = u"Comments that grow in place",
     .role = Role::SiteRoot,
     .path = u"{id}/comments",
     .entries = 0,
     .handler = CommentsPage},
    {.name = u"notifications",
     .title = u"Notifications that grow in place",
     .role = Role::SiteRoot,
     .path = u"my/notifications",
     .perPage = 15,
     .entries = 40,
     .names = Numbered,
     .handler = NotificationsPage},
    {.name = u"new-friends",
     .title = u"New friends",
     .role = Role::SiteRoot,
     .path = u"my/requests",
     .page = u"?page=",
     .entry = NewFriendEntry,
     .next = {u"next", u"javascript:requestlist.GoToPage({n})", u"requestlist.GoToPage", How::Replace},
     .neighbours = true},
    {.name = u"mail",
     .title = u"Mail",
     .role = Role::SiteRoot,
     .path = u"my/mail/inbox",
     .page = u"?page=",
     .names = Numbered,
     .entry = MailEntry,
     .head = u"<p>Mail Center</p><div>Listing {from}-{to} of {count}</div>",
     .next = {u"next", u"javascript:gotonextpage()", u"gotonextpage"},
     .neighbours = true},
};

} // namespace

std::span<const ListDesign> NewDesigns() {
    return rows;
}

} // namespace qlm::practice
