// SPDX-License-Identifier: MIT
#include "Frame.h"

#include "Html.h"

#include <QJsonDocument>

namespace qlm::practice {

namespace {

constexpr QStringView frame = uR"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>{title} | Practice Site</title>
<link rel="stylesheet" href="{root}/style/site.css">
<link rel="icon" href="{root}/favicon.ico">
</head>
<body>
{!script}
<div id="topbar"><div class="wide">
<div class="brand"><a href="{root}/">
<img src="{root}/style/logo.svg" width="214" height="44" alt="Practice Site"></a>
<p class="tagline">a practice stand-in, invented people only</p></div>
<ul class="account">{!account}</ul>
</div></div>
<div id="tabs"><ul class="wide">{!tabs}</ul></div>
<div id="main" class="wide">
{!main}
</div>
<div id="foot"><div class="wide">
<ul><li><a href="{product}/terms.php">Terms</a></li><li><a href="{product}/news.htm">News</a></li></ul>
<p>Everybody here is made up: names, faces and words. Nothing you do reaches anybody.</p>
</div></div>
</body>
</html>
)";

struct Tab {
    QString caption;
    QString url;
};

QString Tabs(const Visit& visit, const QString& current) {
    const QString home = Url(Role::Home, u"/index.cfm?fuseaction=home"_s);
    QList<Tab> tabs{{u"Home"_s, home},
                    {u"Browse"_s, Url(Role::SiteRoot, u"/browse/people"_s)},
                    {u"Lists"_s, Url(Role::SiteRoot, u"/sitemap"_s)}};
    if (visit.account) {
        const QString own = u'/' + QString::number(visit.account->id);
        tabs.append({u"Profile"_s, Url(Role::SiteRoot, own)});
        tabs.append({u"Friends"_s, Url(Role::SiteRoot, own + u"/friends"_s)});
    }
    QString markup;
    for (const Tab& tab : tabs)
        markup += Fill(uR"(<li class="{class}"><a href="{url}">{caption}</a></li>)",
                       {{u"class", tab.caption == current ? u"on"_s : u"off"_s},
                        {u"url", tab.url},
                        {u"caption", tab.caption}});
    return markup;
}

QString AccountCorner(const Visit& visit) {
    if (!visit.account)
        return Fill(uR"(<li><a href="{home}">Log In</a></li><li><a href="{signup}">Sign Up!</a></li>)",
                    {{u"home", Url(Role::Home, u"/index.cfm?fuseaction=home"_s)},
                     {u"signup", Url(Role::SiteRoot, u"/signup"_s)}});
    return Fill(uR"(<li class="me">{mail}</li><li><a href="{url}/signout?id={id}">Sign Out</a></li>)",
                {{u"mail", visit.account->mail},
                 {u"url", Url(Role::SiteRoot, {})},
                 {u"id", QString::number(visit.account->id)}});
}

// It stands in the body, where readers of the page's markup look. They cut a value at the comma behind
// it, so the keys' order must leave one there.
QString ContextScript(const Visit& visit, const Page& page) {
    QJsonObject context = page.facts;
    context.insert(u"site"_s, u"practice"_s);
    if (page.shownId)
        context.insert(u"DisplayFriendId"_s, page.shownId);
    if (visit.account)
        context.insert(u"UserId"_s, visit.account->id);
    const QString json = QString::fromUtf8(QJsonDocument(context).toJson(QJsonDocument::Compact));
    return u"<script>var PageContext = "_s + json + u";</script>"_s;
}

} // namespace

Response Framed(const Visit& visit, const Page& page) {
    Response response;
    response.status = page.status;
    response.headers.append({u"Cache-Control"_s, u"no-cache"_s});
    response.body = Fill(frame, {{u"title", page.title},
                                 {u"root", Url(Role::SiteRoot, {})},
                                 {u"product", Url(Role::Product, {})},
                                 {u"script", ContextScript(visit, page)},
                                 {u"account", AccountCorner(visit)},
                                 {u"tabs", Tabs(visit, page.tab)},
                                 {u"main", page.main}})
                        .toUtf8();
    return response;
}

Response Redirect(const QString& url) {
    Response response;
    response.status = 302;
    response.headers.append({u"Location"_s, url});
    response.body =
        Fill(u"<html><body><p><a href=\"{url}\">Go on</a></p></body></html>", {{u"url", url}}).toUtf8();
    return response;
}

Response RedirectToSignIn() {
    return Redirect(Url(Role::SiteRoot, u"/"_s));
}

Response PlainText(const QString& text, int status) {
    Response response;
    response.status = status;
    response.contentType = u"text/plain; charset=utf-8"_s;
    response.headers.append({u"Cache-Control"_s, u"no-cache"_s});
    response.body = text.toUtf8();
    return response;
}

Response Svg(const QString& drawing) {
    Response response;
    response.contentType = u"image/svg+xml"_s;
    response.headers.append({u"Cache-Control"_s, u"max-age=3600"_s});
    response.body = drawing.toUtf8();
    return response;
}

} // namespace qlm::practice
