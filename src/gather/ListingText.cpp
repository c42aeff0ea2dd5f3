// SPDX-License-Identifier: MIT
#include "gather/ListingText.h"

#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/App.h"
#include "gather/GatherDriver.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Source { Text, Markup };
enum class Slice { AsItIs, Trimmed };

// The label of a kind of page runs from the last of the start markers, each sought after the one before, to
// the first end marker that is there. A second way of starting is tried when the first isn't there. {Role}s
// in starts are replaced.
struct ListingRow {
    PageKinds kinds;
    Source source;
    std::vector<std::vector<const char16_t*>> starts;
    std::vector<const char16_t*> ends;
    Slice slice = Slice::AsItIs;
};

const std::vector<ListingRow>& ListingRows() {
    using enum In;
    constexpr auto FromText = Source::Text;
    constexpr auto FromMarkup = Source::Markup;
    static const std::vector<ListingRow> rows{
        {{{{Text, u"add comment"}, {Address, u"/comments?"}}}, FromMarkup, {{u"listing "}}, {u"of"}},
        {{{{Text, u"Return to event page"}, {Text, u"Comments"}}},
         FromMarkup,
         {{u"friendID=", u"font-weight: bold;"}},
         {u"</span>"}},
        {{{{Text, u"Mail Center"}}, {{Text, u"Mail Centre"}}},
         FromMarkup,
         {{u"Listing "}},
         {u"</div>"},
         Slice::Trimmed},
        {{{{Address, u"http://{VideoHost}"}, {Text, u"add comment"}},
          {{Address, u"http://{ForumHost}"}},
          {{Address, u"http://{BulletinsHost}/index.cfm?fuseaction=bulletin"}},
          {{Address, u"http://{TopArtistsHost}"}},
          {{Address, u"fuseaction=user.viewComments"}},
          {{Address, u"http://{BrowseUsersHost}"}},
          {{Address, u"http://{MusicHost}"}}},
         FromMarkup,
         {{u"listing "}, {u"displaying "}},
         {u"of"}},
        {{{{Address, u"http://{SearchServiceHost}"}, {Address, u"&type=Music&"}}},
         FromText,
         {{u"View All (", u"{SiteRootHost}/"}},
         {u"matches on", u"of"}},
        {{{{Address, u"http://{SearchServiceHost}"}}}, FromText, {{u"displaying "}}, {u"of"}},
        {{{{Address, u"/friends?p="}}, {{AddressEnd, u"/friends"}}}, FromText, {{u"listing "}}, {u"of"}},
        {{{{Address, u"fuseaction=groups.updateMembers"}},
          {{Address, u"fuseaction=groups.viewMembers"}},
          {{Address, u"{GroupsHost}"}},
          {{Address, u"{SingularGroupHost}"}}},
         FromText,
         {{u"listing "}},
         {u"of"}},
        {{{{Address, u".{SiteDomain}/index.cfm?fuseaction=groups.groupInvite&groupID="}},
          {{Address, u"{EventsHost}/Event/"}}},
         FromText,
         {{u"listing "}},
         {u"of"}},
        {{}, FromText, {{u"showing "}}, {u"of"}},
    };
    return rows;
}

qsizetype StartOf(const std::vector<const char16_t*>& markers, const QString& source, const PageView& page) {
    qsizetype at = -1;
    qsizetype from = 0;
    for (const char16_t* marker : markers) {
        at = source.indexOf(page.Expand(QString::fromUtf16(marker)), from, Qt::CaseInsensitive);
        if (at < 0)
            return -1;
        from = at + 1;
    }
    return at;
}

QString LabelOf(const ListingRow& row, const PageView& page) {
    const QString source = row.source == Source::Markup ? page.Markup() : page.Text();
    for (const auto& markers : row.starts) {
        const qsizetype start = StartOf(markers, source, page);
        if (start < 0)
            continue;
        for (const char16_t* end : row.ends)
            if (const qsizetype stop = source.indexOf(QString::fromUtf16(end), start, Qt::CaseInsensitive);
                stop >= 0)
                return row.slice == Slice::Trimmed ? source.mid(start, stop - start).trimmed()
                                                   : source.mid(start, stop - start);
    }
    return {};
}

QString Between(const QString& text, const QString& first, const QString& second) {
    const qsizetype start = text.indexOf(first, 0, Qt::CaseInsensitive);
    const qsizetype end = start < 0 ? -1 : text.indexOf(second, start + first.size(), Qt::CaseInsensitive);
    return end < 0 ? QString() : text.mid(start, end - start);
}

} // namespace

QString ListingText(const PageView& page) {
    for (const ListingRow& row : ListingRows())
        if (page.IsOneOf(row.kinds))
            if (const QString label = LabelOf(row, page); !label.isEmpty())
                return label;
    return {};
}

QString ListingMarkup(const PageView& page) {
    if (page.At(u"{SiteDomain}/search/") || page.At(u"{SiteDomain}/browse"))
        return page.Has({In::Markup, u"miniProfile"})
                   ? Between(page.Markup(), u"miniProfile"_s, u"<ul>"_s)
                   : Between(page.Markup(), u"gapAddFriend"_s, u"gapAddFriend"_s);
    if (page.At(u"{SiteDomain}/my/requests")) {
        const QString markup = page.Markup();
        const qsizetype start = markup.indexOf(u"is now your friend"_s, 0, Qt::CaseInsensitive) - 50;
        return start < 0 ? QString() : markup.mid(start, 73);
    }
    return page.At(u"{SiteDomain}/forums/t/") ? Between(page.Markup(), u"Reply_"_s, u" "_s) : QString();
}

QString GatherDriver::GetListingText() {
    m_app.Get<PageSigns>().WaitForDocument();
    return ListingText(ShownPage(m_app));
}

QString GatherDriver::LastPageMarkup() {
    m_app.Get<PageSigns>().WaitForDocument();
    return ListingMarkup(ShownPage(m_app));
}

} // namespace qlm
