// SPDX-License-Identifier: MIT
#include "steps/FullListRules.h"

#include "browser/PageSigns.h"
#include "browser/ProfileLinks.h"
#include "core/App.h"

#include <optional>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The list page under test, with what is costly to find out found out at most once.
class ListPage {
public:
    explicit ListPage(App& app) : m_app(app) {}

    bool Text(const char16_t* text) const {
        return m_app.Get<PageSigns>().IsTextInPage(QString::fromUtf16(text));
    }
    bool Html(const char16_t* markup) const {
        return m_app.Get<PageSigns>().IsTextInPage(QString::fromUtf16(markup), true);
    }
    bool At(const char16_t* address) const {
        return m_app.Get<PageSigns>().AddressContains(QString::fromUtf16(address));
    }
    bool BeginsOn(const char16_t* host) const {
        return m_app.Get<PageSigns>().AddressBeginsWith(QString::fromUtf16(host));
    }
    bool HasElement(const char16_t* id) const {
        return !m_app.WebBrowser1().Document().GetElementById(QString::fromUtf16(id)).IsNull();
    }
    bool Complete() const { return m_app.WebBrowser1().ReadyState() == 4; }
    int Count(const char16_t* markup) const {
        return CountOccurrences(m_app.WebBrowser1().Document().BodyHTML(), QString::fromUtf16(markup));
    }
    int N() {
        if (!m_links)
            m_links = m_app.Get<ProfileLinks>().CountProfileLinks();
        return *m_links;
    }
    int NImages() const { return m_app.Get<ProfileLinks>().CountProfileLinks(u"images"_s); }
    int NVideos() const { return m_app.Get<ProfileLinks>().CountProfileLinks(u"video"_s); }
    // The groups' host with its first "groups" read as "group".
    bool AtSingularGroupHost() const {
        QString host = m_app.deployment.Role(u"GroupsHost"_s);
        const qsizetype plural = host.indexOf(u"groups"_s);
        if (plural >= 0)
            host.replace(plural, 6, u"group"_s);
        return m_app.Get<PageSigns>().AddressContains(host);
    }

private:
    App& m_app;
    std::optional<int> m_links;
};

bool BrowseCriteria(const ListPage& p) {
    return p.Text(u"set browse criteria") || p.Text(u"set advanced browse criteria");
}

bool IsForumList(const ListPage& p) {
    return (p.At(u"&PageIndex=") && p.At(u"{ForumHost}") && p.At(u"forums") &&
            p.HasElement(u"ctl00_ctl00_ctl00_cpMain_cpMain_bcr_PostList_ctl01_PostView_PostNameAnchor")) ||
           (p.At(u"&page=") && p.At(u"{ForumHost}") && p.HasElement(u"UserDataNode2")) ||
           (p.Text(u"band name:") && p.HasElement(u"UserDataNode29"));
}

// A row decides when applies is true: found is the answer then. Rows whose condition holds the count itself
// go on to the next row when it isn't reached.
struct GatherPageRow {
    bool (*applies)(ListPage&);
    bool (*found)(ListPage&);
};

bool Yes(ListPage&) {
    return true;
}

const std::vector<GatherPageRow>& Rows() {
    static const std::vector<GatherPageRow> rows{
        {[](ListPage& p) { return BrowseCriteria(p) && p.Text(u"First Name:") && p.Text(u"Gender:"); },
         [](ListPage& p) { return p.Html(u"ctl08_regularItemView"); }},
        {[](ListPage& p) { return BrowseCriteria(p) && !p.Text(u"First Name:") && p.Text(u"Gender:"); },
         [](ListPage& p) { return p.Html(u"_ctl32"); }},
        {[](ListPage& p) { return p.HasElement(u"ctl00_Main_browseList_ctl08_regularItemView"); }, Yes},
        {[](ListPage& p) { return IsForumList(p); }, Yes},
        {[](ListPage& p) { return p.Text(u"Return to event page"); }, Yes},
        {[](ListPage& p) {
             return (p.Text(u"you can search for display name") ||
                     p.Text(u"search within friends is disabled")) &&
                    p.Text(u"display:") && (p.Complete() || p.N() >= 33);
         },
         Yes},
        {[](ListPage& p) { return p.At(u"/PAGE/") && p.At(u"/FRIENDS/"); },
         [](ListPage& p) { return p.Complete() || p.N() >= 20; }},
        {[](ListPage& p) { return p.At(u"/comments?"); },
         [](ListPage& p) { return p.Complete() || p.Count(u"commentCommands") >= 41; }},
        {[](ListPage& p) {
             return (p.At(u"{SiteDomain}/browse") || p.At(u"{BrowseUsersHost}/Browse/Browse.aspx")) &&
                    p.N() >= 36;
         },
         Yes},
        {[](ListPage& p) { return p.At(u"{SiteDomain}/browse") && p.Html(u"gapAddFriend") && p.N() >= 8; },
         Yes},
        {[](ListPage& p) {
             return p.At(u"fuseaction=mail.notifications") && (p.Html(u"id=tr7") || p.Html(u"id=\"tr7"));
         },
         Yes},
        {[](ListPage& p) { return p.Text(u"Artist Signup") && p.Text(u"Set Search Criteria"); },
         [](ListPage& p) { return p.N() >= 9; }},
        {[](ListPage& p) {
             return p.BeginsOn(u"{SearchServiceHost}") && !p.Text(u"results for") &&
                    !p.Text(u"find a friend") && !p.Text(u"displaying ");
         },
         [](ListPage& p) { return p.At(u"&type=Music&") && p.N() >= 10; }},
        {[](ListPage& p) { return p.BeginsOn(u"{SearchServiceHost}"); },
         [](ListPage& p) { return (p.At(u"type=images") ? p.NImages() : p.N()) >= 6; }},
        {[](ListPage& p) {
             return (p.At(u"{SiteDomain}/my/mail") || p.At(u"{MessagingHost}/index.cfm?fuseaction=mail.")) &&
                    p.N() >= 1;
         },
         Yes},
        {[](ListPage& p) { return p.Text(u"find a friend") && p.Text(u"results for") && p.Html(u"_ctl08_"); },
         Yes},
        {[](ListPage& p) {
             return p.Text(u"Show Bulletins I've Posted") && p.Html(u"bulletins_Repeater_ctl12");
         },
         Yes},
        {[](ListPage& p) { return p.At(u"{VideoHost}"); }, [](ListPage& p) { return p.NVideos() >= 17; }},
        {[](ListPage& p) {
             return p.Text(u"view all friends") && p.Text(u"listing ") && p.Text(u" : friends (") &&
                    p.N() >= 33;
         },
         Yes},
        {[](ListPage& p) { return p.Text(u"members (") && p.At(u"{SchoolHost}") && p.N() >= 17; }, Yes},
        {[](ListPage& p) { return p.At(u"{TopArtistsHost}") && p.N() >= 10; }, Yes},
        {[](ListPage& p) { return p.Text(u"shows in your area") && p.At(u"{MusicHost}") && p.N() >= 8; },
         Yes},
        {[](ListPage& p) {
             return p.Text(u"view all members") && (p.At(u"{GroupsHost}") || p.AtSingularGroupHost()) &&
                    p.N() >= 20;
         },
         Yes},
    };
    return rows;
}

} // namespace

bool IsGatherPageComplete(App& app) {
    ListPage page(app);
    for (const GatherPageRow& row : Rows())
        if (row.applies(page))
            return row.found(page);
    return false;
}

} // namespace qlm
