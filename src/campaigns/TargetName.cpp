// SPDX-License-Identifier: MIT
#include "campaigns/TargetName.h"

#include "core/App.h"
#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString NameToken = u"&NAME&"_s;
constexpr qsizetype FarthestEnd = 100'000;

// From place to the next "<", or as far as the text or the limit goes.
QString UpToTag(const QString& html, qsizetype place, qsizetype limit = -1) {
    const qsizetype end = html.indexOf(u'<', place);
    const QString text = html.mid(place, end < 0 ? -1 : end - place);
    return limit < 0 ? text : text.left(limit);
}

QString NameInMessageOld(App&, const QString& html) {
    const qsizetype box = html.indexOf(u"toBox"_s);
    const qsizetype name = box < 0 ? -1 : html.indexOf(u"rcptText"_s, box, Qt::CaseInsensitive);
    const qsizetype start = name < 0 ? -1 : html.indexOf(u'>', name) + 1;
    const qsizetype end = start < 1 ? -1 : html.indexOf(u"</span"_s, start, Qt::CaseInsensitive);
    return end < 0 ? QString() : html.mid(start, end - start);
}

QString NameInMessageNew(App& app, const QString&) {
    QString name;
    Diagnostics::IgnoreErrors([&] {
        const std::vector<Element> images =
            app.WebBrowser1().Document().GetElementById(u"toBox"_s).Tags(u"img"_s);
        if (!images.empty())
            name = images.front().Read(ElementText::Alt);
    });
    return name;
}

QString NameInCommentOld(App&, const QString& html) {
    const QString words = u"Post A Comment About"_s;
    const qsizetype place = html.indexOf(words);
    const QString name = place < 0 ? QString() : UpToTag(html, place + words.size());
    return Has(name, u"border-right"_s) ? QString() : name;
}

QString NameInCommentNew(App& app, const QString&) {
    const QString words = u"Photo of"_s;
    for (const Element& image : app.WebBrowser1().Document().Images())
        if (QString alt = image.Read(ElementText::Alt); Has(alt, words))
            return alt.remove(words, Qt::CaseInsensitive);
    return {};
}

QString NameInRequestOld(App&, const QString& html) {
    const qsizetype place = html.indexOf(u"do you want to add"_s, 0, Qt::CaseInsensitive);
    const qsizetype start = place < 0 ? 0 : html.indexOf(u'>', place) + 1;
    return start < 1 ? QString() : UpToTag(html, start, FarthestEnd);
}

QString NameInRequestNew(App&, const QString& html) {
    const QString words = u"send a friend request to"_s;
    const qsizetype place = html.indexOf(words, 0, Qt::CaseInsensitive);
    return place < 0 ? QString() : UpToTag(html, place + words.size(), FarthestEnd);
}

struct NamePlace {
    QLatin1StringView kind;
    QString (*oldLayout)(App&, const QString& html);
    QString (*newLayout)(App&, const QString& html);
};

const std::vector<NamePlace>& NamePlaces() {
    static const std::vector<NamePlace> rows{
        {"Message"_L1, NameInMessageOld, NameInMessageNew},
        {"Comment"_L1, NameInCommentOld, NameInCommentNew},
        {"Friend Request"_L1, NameInRequestOld, NameInRequestNew},
    };
    return rows;
}

bool BelongsToName(QChar c) {
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9') || c == u'-' ||
           c == u' ';
}

} // namespace

QString CleanTargetName(const QString& name) {
    if (name.count(u' ') >= 3 || !std::all_of(name.begin(), name.end(), BelongsToName))
        return {};
    const QString first = name.section(u' ', 0, 0);
    return first.left(1).toUpper() + first.mid(1).toLower();
}

bool IsNewerPage(App& app) {
    const QString address = app.WebBrowser1().LocationURL();
    return app.state.blnNewLayout || address.contains(u"/my/mail/new"_s) ||
           address.contains(u"/my/friends/addtofriends"_s) || address.endsWith(u"/comments"_s);
}

QString GetTargetName(App& app, const QString& html, const QString& kind) {
    QString name;
    app.diagnostics.Trap("GetTargetName", [&] {
        for (const NamePlace& place : NamePlaces())
            if (kind == place.kind)
                // Blanks around it belong to the page and not to the name.
                name = CleanTargetName(
                    (IsNewerPage(app) ? place.newLayout : place.oldLayout)(app, html).trimmed());
    });
    return name;
}

QString PutName(QString text, const QString& name) {
    return text.replace(NameToken, name, Qt::CaseInsensitive);
}

QString ReplaceTargetName(App& app, const QString& text, const QString& html, const QString& kind) {
    return Has(text, NameToken) ? PutName(text, GetTargetName(app, html, kind)) : text;
}

} // namespace qlm
