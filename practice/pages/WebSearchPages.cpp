// SPDX-License-Identifier: MIT
#include "WebSearchPages.h"

#include "../Html.h"

#include <algorithm>

namespace qlm::practice {

namespace {

constexpr int mostResults = 1000;
constexpr int mostOnAPage = 100;

constexpr QStringView style =
    uR"(body { font: 14px/1.5 Arial, sans-serif; margin: 24px auto; max-width: 720px; color: #333; }
h1 { font-size: 20px; color: #17436d; } input { font: inherit; padding: 4px; width: 420px; }
h3 { font-size: 15px; margin: 14px 0 0; } p { margin: 0; } .at { color: #2f7d3b; font-size: 12px; }
.turn { margin-top: 20px; })";

// No address of the site stands here but those of the results: they are all that is looked for.
constexpr QStringView frame = uR"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>{q} | Web search</title>
<style>{!style}</style></head>
<body><h1>Web search</h1><form action="/search"><input name="q" value="{q}"> <button>Search</button></form>
<p>{told}</p>
{!results}{!turn}</body></html>
)";

bool Fits(const Person& person, const QStringList& words) {
    const QString text = QStringList{person.name,      person.town,  person.region,  person.country,
                                     person.interests, person.genre, person.headline}
                             .join(u' ');
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

QStringList Words(const QString& q) {
    QStringList words = q.simplified().split(u' ', Qt::SkipEmptyParts);
    words.removeIf([](const QString& word) { return word.startsWith(u"site:"_s); });
    return words;
}

// The engine has come by some people through their old address.
QString Result(Visit& visit, const Person& person) {
    const bool old = person.id % 2 == 0;
    const QString url =
        old ? Url(Role::Profile, u"/index.cfm?fuseaction=user.viewprofile&friendID=%1"_s.arg(person.id))
            : ProfileUrl(person);
    (old ? visit.shown : visit.shownByName).append(person.id);
    return Fill(uR"(<h3><a href="{url}">{name}</a></h3><p>{headline} {interests}</p><p class="at">{town}</p>
)",
                {{u"url", url},
                 {u"name", person.name},
                 {u"headline", person.headline},
                 {u"interests", person.interests},
                 {u"town", person.town}});
}

QString Turn(const QString& q, int start, int shown, int all) {
    if (start + shown >= all)
        return {};
    return Fill(
        uR"(<p class="turn"><a href="/search?q={q}&amp;num={num}&amp;start={start}">More results</a></p>)",
        {{u"q", QString::fromLatin1(q.toUtf8().toPercentEncoding())},
         {u"num", QString::number(shown)},
         {u"start", QString::number(start + shown)}});
}

} // namespace

Response WebSearchPage(Visit& visit) {
    const Fields& query = visit.address.query;
    const QString q = query.value(u"q"_s);
    QList<const Person*> found;
    if (!q.isEmpty())
        for (const Person& person : visit.world.people.Crowd())
            if (found.size() < mostResults && Fits(person, Words(q)))
                found.append(&person);
    const int start = std::max(0, query.value(u"start"_s).toInt());
    const int wanted = query.contains(u"num"_s) ? query.value(u"num"_s).toInt() : 10;
    QString results;
    const auto page = found.mid(start, std::clamp(wanted, 1, mostOnAPage));
    for (const Person* person : page)
        results += Result(visit, *person);
    Response response;
    response.body =
        Fill(frame,
             {{u"q", q},
              {u"style", style.toString()},
              {u"told", q.isEmpty() ? u"Looks for profiles of the practice site."_s
                                    : u"%1 results"_s.arg(found.size())},
              {u"results", results},
              {u"turn", Turn(q, start, static_cast<int>(page.size()), static_cast<int>(found.size()))}})
            .toUtf8();
    return response;
}

} // namespace qlm::practice
