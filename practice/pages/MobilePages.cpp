// SPDX-License-Identifier: MIT
#include "MobilePages.h"

#include "../Frame.h"
#include "../Html.h"
#include "RequestLists.h"
#include "SignInPages.h"

namespace qlm::practice {

namespace {

constexpr int perPage = 10;
const QString offDeck = u"?bfd=offdeck"_s;

QString MobileUrl(const QString& path) {
    return Url(Role::Mobile, path + offDeck);
}

Response Small(const QString& title, const QString& markup) {
    Response response;
    response.headers.append({u"Cache-Control"_s, u"no-cache"_s});
    response.body = Fill(uR"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<title>{title} | Practice Site</title><link rel="stylesheet" href="{root}/style/site.css"></head>
<body class="sheet mobile"><h1>{title}</h1>
{!markup}
</body></html>
)",
                         {{u"title", title}, {u"root", Url(Role::SiteRoot, {})}, {u"markup", markup}})
                        .toUtf8();
    return response;
}

Response Says(const QString& title, const QString& text) {
    return Small(title, Fill(uR"(<p>{text}</p><p><a href="{list}">Sent requests</a></p>)",
                             {{u"text", text}, {u"list", MobileUrl(u"/messaging/sentrequests.wap"_s)}}));
}

Response SignInSheet(const QString& warning) {
    return Small(
        u"Sign in"_s,
        Fill(uR"({!warning}<form method="post" action="{action}">
<p><label for="emailTextBox">E-mail:</label> <input type="text" id="emailTextBox" name="email"></p>
<p><label for="passwordTextBox">Password:</label> <input type="password" id="passwordTextBox" name="password"></p>
<p><input type="submit" class="button" id="loginCommand" name="loginCommand" value="Sign in"></p></form>)",
             {{u"warning",
               warning.isEmpty() ? QString() : Fill(u"<p class=\"warn\">{w}</p>", {{u"w", warning}})},
              {u"action", MobileUrl(u"/login.wap"_s)}}));
}

// Readers of the list take the first link that says whom it is about and of what kind it is.
QString Entry(const World& world, qint64 id) {
    const Person* person = world.people.Find(id);
    const QString name = person ? person->name : u"(gone)"_s;
    const bool isNamed = world.mobileDesign == MobileDesign::Names;
    const QString key = isNamed ? name.section(u' ', 0, 0) : QString::number(id);
    return Fill(uR"(<li><a href="{profile}&amp;friendid={key}">Profile</a>
<a href="{request}&amp;friendid={key}&amp;pvm=7">{name}</a></li>)",
                {{u"profile", MobileUrl(u"/profile.wap"_s)},
                 {u"request", MobileUrl(u"/messaging/sentrequest.wap"_s)},
                 {u"key", key},
                 {u"name", name}});
}

QString NextPage(const World& world, const RequestPage& page) {
    if (page.page >= page.pages || world.mobileDesign == MobileDesign::NoNext)
        return {};
    return Fill(
        uR"(<p><a href="{url}?p={n}&amp;bfd=offdeck"><span class="pagination_next">Next page</span></a></p>)",
        {{u"url", Url(Role::Mobile, u"/messaging/sentrequests.wap"_s)},
         {u"n", QString::number(page.page + 1)}});
}

Response Question(const Person& person) {
    return Small(u"Sent request"_s, Fill(uR"(<p>Are you sure you want to cancel your request to {name}?</p>
<form method="post" action="{url}&amp;friendid={id}&amp;pvm=7"><p><button class="button" name="act" value="cancel">OK</button></p></form>)",
                                         {{u"name", person.name},
                                          {u"url", MobileUrl(u"/messaging/sentrequest.wap"_s)},
                                          {u"id", QString::number(person.id)}}));
}

} // namespace

Response MobileHome(Visit& visit) {
    if (!visit.account)
        return SignInSheet({});
    return Small(u"Hello!"_s,
                 Fill(uR"(<ul><li><a href="{profile}&amp;friendid={id}">My Profile</a></li>
<li><a href="{list}">Sent requests ({count})</a></li><li><a href="{out}">Sign out</a></li></ul>)",
                      {{u"profile", MobileUrl(u"/profile.wap"_s)},
                       {u"id", QString::number(visit.account->id)},
                       {u"list", MobileUrl(u"/messaging/sentrequests.wap"_s)},
                       {u"count", QString::number(visit.world.requests.Pending(visit.account->id).size())},
                       {u"out", MobileUrl(u"/signout.wap"_s)}}));
}

Response MobileSignIn(Visit& visit) {
    const QString mail = visit.form.value(u"email"_s).trimmed();
    if (visit.world.mobileDesign == MobileDesign::Closed) {
        visit.world.journal.Write(u"mobile-refused "_s + mail.simplified());
        return SignInSheet(u"Sorry, nobody can sign in from here today."_s);
    }
    const Account* account = visit.world.accounts.Check(mail, visit.form.value(u"password"_s));
    if (!account) {
        visit.world.journal.Write(u"mobile-wrong-password "_s + mail.simplified());
        return SignInSheet(u"We don't know that e-mail with that word."_s);
    }
    visit.world.journal.Write(u"mobile-signed-in %1 %2"_s.arg(account->mail).arg(account->id));
    Response response = Redirect(MobileUrl(u"/home.wap"_s));
    const QString token = visit.world.accounts.OpenSession(visit.world.seed, *account);
    response.headers.append({u"Set-Cookie"_s, CookieHeader(visit.role, token)});
    return response;
}

Response MobileSignOut(Visit& visit) {
    if (visit.account)
        visit.world.journal.Write(
            u"mobile-signed-out %1 %2"_s.arg(visit.account->mail).arg(visit.account->id));
    visit.world.accounts.DropSession(visit.session);
    Response response = SignInSheet({});
    response.headers.append({u"Set-Cookie"_s, CookieHeader(visit.role, {}, u"; Max-Age=0"_s)});
    return response;
}

Response MobileSentRequests(Visit& visit) {
    if (!visit.account)
        return SignInSheet({});
    const QList<qint64> pending = visit.world.requests.Pending(visit.account->id);
    RequestPage page = PageOf(visit, pending, perPage, u"p"_s);
    QString entries;
    for (const qint64 id : page.ids)
        entries += Entry(visit.world, id);
    const bool isBehind = visit.address.query.value(u"p"_s).toInt() > page.pages;
    if (pending.isEmpty() || isBehind)
        return Small(u"Sent requests"_s, u"<p>There are 0 sent requests.</p>"_s);
    return Small(u"Sent requests"_s,
                 Fill(uR"(<p>{slice}</p><ul>{!entries}</ul>{!next}<p><a href="{home}">Home</a></p>)",
                      {{u"slice", page.Slice()},
                       {u"entries", entries},
                       {u"next", NextPage(visit.world, page)},
                       {u"home", MobileUrl(u"/home.wap"_s)}}));
}

Response MobileSentRequest(Visit& visit) {
    if (!visit.account)
        return SignInSheet({});
    const qint64 id = visit.address.query.value(u"friendid"_s).toLongLong();
    const Person* person = visit.world.people.Find(id);
    if (!person || !visit.world.requests.Pending(visit.account->id).contains(id))
        return Says(u"Sent request"_s, u"Invalid friend ID."_s);
    if (visit.IsPost() && visit.form.value(u"act"_s) == u"cancel") {
        CancelRequest(visit, id);
        return Redirect(MobileUrl(u"/messaging/sentrequests.wap"_s));
    }
    if (visit.address.query.value(u"act"_s) == u"ask")
        return Question(*person);
    return Small(u"Sent request"_s, Fill(uR"(<p>{name} has not answered yet.</p>
<p><a href="{url}&amp;friendid={id}&amp;pvm=7&amp;act=ask">Cancel Request</a></p>)",
                                         {{u"name", person->name},
                                          {u"url", MobileUrl(u"/messaging/sentrequest.wap"_s)},
                                          {u"id", QString::number(id)}}));
}

} // namespace qlm::practice
