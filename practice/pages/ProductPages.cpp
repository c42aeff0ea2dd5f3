// SPDX-License-Identifier: MIT
#include "ProductPages.h"

#include "../Frame.h"
#include "../Html.h"

namespace qlm::practice {

namespace {

// These pages stand by themselves, narrow enough for a panel.
Response Sheet(const QString& title, const QString& markup) {
    Response response;
    response.body = Fill(uR"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>{title}</title>
<link rel="stylesheet" href="{root}/style/site.css"></head>
<body class="sheet"><h1>{title}</h1>
{!markup}
</body></html>
)",
                         {{u"title", title}, {u"root", Url(Role::SiteRoot, {})}, {u"markup", markup}})
                        .toUtf8();
    return response;
}

} // namespace

Response OnlineTest(Visit&) {
    return PlainText(u"ok"_s);
}

Response Version(Visit&) {
    return PlainText(u"version 0.0.0"_s);
}

Response IssueAlert(Visit&) {
    return PlainText(u"; no notice today\r\n"_s);
}

Response LoginMessage(Visit&) {
    return PlainText(u"ok"_s);
}

Response ServerDate(Visit& visit) {
    return PlainText(visit.world.now().date().toString(Qt::ISODate));
}

Response News(Visit&) {
    return Sheet(u"News"_s, uR"(<p><b>You are on the practice site.</b> Everybody here is invented.</p>
<ul><li>Sign in as a@example.com to j@example.com; the word is "secret".</li>
<li>Gather from a friends list or from Browse, then try a few requests.</li>
<li>Some profiles say no, and some ask for letters from an image. That is on purpose.</li></ul>)"_s);
}

Response Terms(Visit&) {
    return Sheet(u"Terms"_s,
                 uR"(<p>The practice site is there to be practised on. Its people are made up by chance,
and nothing that is done to them reaches anybody.</p>
<p>On a real site, ask only people who will be glad of it, and keep to that site's own rules.</p>)"_s);
}

} // namespace qlm::practice
