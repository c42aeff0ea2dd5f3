// SPDX-License-Identifier: MIT
#include "steps/FullListRules.h"

#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "browser/ProfileLinks.h"
#include "core/App.h"

#include <map>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Count { None, Profiles, Images, Videos, Comments };
// Last: a page of that kind is judged by no later row.
enum class Say { OneOfMany, Last };
// Yes: a complete page is full with any number.
enum class ByComplete { No, Yes };

// A kind of list page, and when it is full.
struct FullListRow {
    PageKinds kinds;
    Count count = Count::None;
    int enough = 0; // so many of what is counted
    Say say = Say::OneOfMany;
    ByComplete byComplete = ByComplete::No;
    PageKinds full = {}; // and then it is one of these, too; none: nothing more is asked
};

const std::vector<FullListRow>& FullListRules() {
    using enum In;
    using enum Count;
    constexpr auto Last = Say::Last;
    constexpr auto OneOfMany = Say::OneOfMany;
    constexpr auto OrComplete = ByComplete::Yes;
    constexpr auto Counted = ByComplete::No;
    static const PageKinds BrowseByName{
        {{Text, u"set browse criteria"}, {Text, u"First Name:"}, {Text, u"Gender:"}},
        {{Text, u"set advanced browse criteria"}, {Text, u"First Name:"}, {Text, u"Gender:"}}};
    static const PageKinds Browse{
        {{Text, u"set browse criteria"}, {NoText, u"First Name:"}, {Text, u"Gender:"}},
        {{Text, u"set advanced browse criteria"}, {NoText, u"First Name:"}, {Text, u"Gender:"}}};
    static const PageKinds Forum{
        {{Address, u"&PageIndex="},
         {Address, u"{ForumHost}"},
         {Address, u"forums"},
         {Element, u"ctl00_ctl00_ctl00_cpMain_cpMain_bcr_PostList_ctl01_PostView_PostNameAnchor"}},
        {{Address, u"&page="}, {Address, u"{ForumHost}"}, {Element, u"UserDataNode2"}},
        {{Text, u"band name:"}, {Element, u"UserDataNode29"}}};
    static const PageKinds Friends{{{Text, u"you can search for display name"}, {Text, u"display:"}},
                                   {{Text, u"search within friends is disabled"}, {Text, u"display:"}}};
    static const PageKinds People{{{Address, u"{SiteDomain}/browse"}},
                                  {{Address, u"{BrowseUsersHost}/Browse/Browse.aspx"}}};
    static const PageKinds Notifications{
        {{Address, u"fuseaction=mail.notifications"}, {Markup, u"id=tr7"}},
        {{Address, u"fuseaction=mail.notifications"}, {Markup, u"id=\"tr7"}}};
    static const PageKinds UntitledSearch{{{AddressStart, u"{SearchServiceHost}"},
                                           {NoText, u"results for"},
                                           {NoText, u"find a friend"},
                                           {NoText, u"displaying "}}};
    static const PageKinds ImageSearch{{{AddressStart, u"{SearchServiceHost}"}, {Address, u"type=images"}}};
    static const PageKinds Search{{{AddressStart, u"{SearchServiceHost}"}}};
    static const PageKinds Mail{{{Address, u"{SiteDomain}/my/mail"}},
                                {{Address, u"{MessagingHost}/index.cfm?fuseaction=mail."}}};
    static const PageKinds FriendSearch{
        {{Text, u"find a friend"}, {Text, u"results for"}, {Markup, u"_ctl08_"}}};
    static const PageKinds Bulletins{
        {{Text, u"Show Bulletins I've Posted"}, {Markup, u"bulletins_Repeater_ctl12"}}};
    static const PageKinds AllFriends{
        {{Text, u"view all friends"}, {Text, u"listing "}, {Text, u" : friends ("}}};
    static const PageKinds GroupMembers{{{Text, u"view all members"}, {Address, u"{GroupsHost}"}},
                                        {{Text, u"view all members"}, {Address, u"{SingularGroupHost}"}}};
    static const std::vector<FullListRow> rows{
        {BrowseByName, None, 0, Last, Counted, {{{Markup, u"ctl08_regularItemView"}}}},
        {Browse, None, 0, Last, Counted, {{{Markup, u"_ctl32"}}}},
        {{{{Element, u"ctl00_Main_browseList_ctl08_regularItemView"}}}},
        {Forum},
        {Says(u"Return to event page")},
        {Friends, Profiles, 33, OneOfMany, OrComplete},
        {{{{Address, u"/PAGE/"}, {Address, u"/FRIENDS/"}}}, Profiles, 20, Last, OrComplete},
        {At(u"/comments?"), Comments, 41, Last, OrComplete},
        {People, Profiles, 36},
        {{{{Address, u"{SiteDomain}/browse"}, {Markup, u"gapAddFriend"}}}, Profiles, 8},
        {Notifications},
        {Says(u"Artist Signup", u"Set Search Criteria"), Profiles, 9, Last},
        {UntitledSearch, Profiles, 10, Last, Counted, At(u"&type=Music&")},
        {ImageSearch, Images, 6, Last},
        {Search, Profiles, 6, Last},
        {Mail, Profiles, 1},
        {FriendSearch},
        {Bulletins},
        {At(u"{VideoHost}"), Videos, 17, Last},
        {AllFriends, Profiles, 33},
        {{{{Text, u"members ("}, {Address, u"{SchoolHost}"}}}, Profiles, 17},
        {At(u"{TopArtistsHost}"), Profiles, 10},
        {{{{Text, u"shows in your area"}, {Address, u"{MusicHost}"}}}, Profiles, 8},
        {GroupMembers, Profiles, 20},
    };
    return rows;
}

int CountOf(Count what, App& app, const PageView& page) {
    switch (what) {
    case Count::None:
        return 0;
    case Count::Profiles:
        return app.Get<ProfileLinks>().CountProfileLinks();
    case Count::Images:
        return app.Get<ProfileLinks>().CountProfileLinks(u"images"_s);
    case Count::Videos:
        return app.Get<ProfileLinks>().CountProfileLinks(u"video"_s);
    case Count::Comments:
        return CountOccurrences(page.Markup(), u"commentCommands"_s);
    }
    return 0;
}

// Counting is costly: each count is made when the first row asks for it, and kept for the others.
class Counts {
public:
    Counts(App& app, const PageView& page) : m_app(app), m_page(page) {}
    int Of(Count what) {
        const auto known = m_counts.find(what);
        return known != m_counts.end() ? known->second : m_counts[what] = CountOf(what, m_app, m_page);
    }

private:
    App& m_app;
    const PageView& m_page;
    std::map<Count, int> m_counts;
};

bool IsFull(const FullListRow& row, const ShownPage& page, Counts& counts) {
    return page.IsOneOf(row.full) &&
           ((row.byComplete == ByComplete::Yes && page.IsComplete()) || counts.Of(row.count) >= row.enough);
}

} // namespace

bool IsGatherPageComplete(App& app) {
    const ShownPage page(app);
    Counts counts(app, page);
    for (const FullListRow& row : FullListRules()) {
        if (!page.IsOneOf(row.kinds))
            continue;
        if (IsFull(row, page, counts))
            return true;
        if (row.say == Say::Last)
            return false;
    }
    return false;
}

} // namespace qlm
