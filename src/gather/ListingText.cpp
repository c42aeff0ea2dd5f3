// SPDX-License-Identifier: MIT
#include "gather/ListingText.h"

#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class In { Address, AddressEnd, Text };

struct Condition {
    In where;
    const char16_t* text;
};
using AllOf = std::vector<Condition>;

// One kind of page: any group of its conditions must hold. The label runs from the last of the start markers,
// each sought behind the one before, to the first end marker that is there. A second way of starting is tried
// when the first isn't there.
struct ListingRow {
    std::vector<AllOf> page;
    bool inMarkup;
    std::vector<std::vector<const char16_t*>> starts;
    std::vector<const char16_t*> ends;
    bool trimmed = false;
};

const std::vector<ListingRow>& Rows() {
    using enum In;
    static const std::vector<ListingRow> rows{
        {{{{Text, u"add comment"}, {Address, u"/comments?"}}}, true, {{u"listing "}}, {u"of"}},
        {{{{Text, u"Return to event page"}, {Text, u"Comments"}}},
         true,
         {{u"friendID=", u"font-weight: bold;"}},
         {u"</span>"}},
        {{{{Text, u"Mail Center"}}, {{Text, u"Mail Centre"}}}, true, {{u"Listing "}}, {u"</div>"}, true},
        {{{{Address, u"http://{VideoHost}"}, {Text, u"add comment"}},
          {{Address, u"http://{ForumHost}"}},
          {{Address, u"http://{BulletinsHost}/index.cfm?fuseaction=bulletin"}},
          {{Address, u"http://{TopArtistsHost}"}},
          {{Address, u"fuseaction=user.viewComments"}},
          {{Address, u"http://{BrowseUsersHost}"}},
          {{Address, u"http://{MusicHost}"}}},
         true,
         {{u"listing "}, {u"displaying "}},
         {u"of"}},
        {{{{Address, u"http://{SearchServiceHost}"}, {Address, u"&type=Music&"}}},
         false,
         {{u"View All (", u"{SiteRootHost}/"}},
         {u"matches on", u"of"}},
        {{{{Address, u"http://{SearchServiceHost}"}}}, false, {{u"displaying "}}, {u"of"}},
        {{{{Address, u"/friends?p="}}, {{AddressEnd, u"/friends"}}}, false, {{u"listing "}}, {u"of"}},
        {{{{Address, u"fuseaction=groups.updateMembers"}},
          {{Address, u"fuseaction=groups.viewMembers"}},
          {{Address, u"{GroupsHost}"}},
          {{Address, u"{SingularGroupHost}"}}},
         false,
         {{u"listing "}},
         {u"of"}},
        {{{{Address, u".{SiteDomain}/index.cfm?fuseaction=groups.groupInvite&groupID="}},
          {{Address, u"{EventsHost}/Event/"}}},
         false,
         {{u"listing "}},
         {u"of"}},
        {{{}}, false, {{u"showing "}}, {u"of"}},
    };
    return rows;
}

// The host of single groups is that of the groups with its first "groups" read as "group".
QString Expand(const ListingPage& page, const char16_t* text) {
    const QString wide = QString::fromUtf16(text);
    if (wide != u"{SingularGroupHost}"_s)
        return page.expand(wide);
    QString host = page.expand(u"{GroupsHost}"_s);
    const qsizetype plural = host.indexOf(u"groups"_s);
    return plural < 0 ? host : host.replace(plural, 6, u"group"_s);
}

bool Holds(const Condition& condition, const ListingPage& page) {
    const QString text = Expand(page, condition.text);
    switch (condition.where) {
    case In::Address:
        return Has(page.address, text);
    case In::AddressEnd:
        return page.address.endsWith(text, Qt::CaseInsensitive);
    case In::Text:
        return Has(page.text, text);
    }
    return false;
}

bool IsPage(const ListingRow& row, const ListingPage& page) {
    return std::any_of(row.page.begin(), row.page.end(), [&](const AllOf& group) {
        return std::all_of(group.begin(), group.end(), [&](const Condition& c) { return Holds(c, page); });
    });
}

qsizetype StartOf(const std::vector<const char16_t*>& markers, const QString& source,
                  const ListingPage& page) {
    qsizetype at = -1;
    qsizetype from = 0;
    for (const char16_t* marker : markers) {
        at = source.indexOf(Expand(page, marker), from, Qt::CaseInsensitive);
        if (at < 0)
            return -1;
        from = at + 1;
    }
    return at;
}

QString Slice(const ListingRow& row, const ListingPage& page) {
    const QString& source = row.inMarkup ? page.html : page.text;
    for (const auto& markers : row.starts) {
        const qsizetype start = StartOf(markers, source, page);
        if (start < 0)
            continue;
        for (const char16_t* end : row.ends)
            if (const qsizetype stop = source.indexOf(QString::fromUtf16(end), start, Qt::CaseInsensitive);
                stop >= 0)
                return row.trimmed ? source.mid(start, stop - start).trimmed()
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

QString ListingText(const ListingPage& page) {
    for (const ListingRow& row : Rows())
        if (IsPage(row, page))
            if (const QString slice = Slice(row, page); !slice.isEmpty())
                return slice;
    return {};
}

QString ListingMarkup(const ListingPage& page) {
    auto at = [&page](const QString& part) { return Has(page.address, page.expand(part)); };
    if (at(u"{SiteDomain}/search/"_s) || at(u"{SiteDomain}/browse"_s))
        return Has(page.html, u"miniProfile"_s) ? Between(page.html, u"miniProfile"_s, u"<ul>"_s)
                                                : Between(page.html, u"gapAddFriend"_s, u"gapAddFriend"_s);
    if (at(u"{SiteDomain}/my/requests"_s)) {
        const qsizetype start = page.html.indexOf(u"is now your friend"_s, 0, Qt::CaseInsensitive) - 50;
        return start < 0 ? QString() : page.html.mid(start, 73);
    }
    return at(u"{SiteDomain}/forums/t/"_s) ? Between(page.html, u"Reply_"_s, u" "_s) : QString();
}

namespace {

ListingPage PresentPage(App& app) {
    app.Get<PageSigns>().WaitForDocument();
    const Document document = app.WebBrowser1().Document();
    return {app.Get<PageSigns>().LocationURL(), document.BodyText(), document.BodyHTML(),
            [&app](const QString& text) { return app.Expand(text); }};
}

} // namespace

QString GatherDriver::GetListingText() {
    return ListingText(PresentPage(m_app));
}

QString GatherDriver::LastPageMarkup() {
    return ListingMarkup(PresentPage(m_app));
}

} // namespace qlm
