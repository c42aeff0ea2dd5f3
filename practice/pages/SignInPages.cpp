// SPDX-License-Identifier: MIT
#include "SignInPages.h"

#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "../SignInDesigns.h"
#include "NoticePages.h"

namespace qlm::practice {

namespace {

QString HomeUrl() {
    return Url(Role::Home, u"/index.cfm?fuseaction=home"_s);
}

QString SomeFaces(const World& world) {
    QString faces;
    for (int i = 0; i < 12; ++i)
        faces += Face(world.people.Crowd()[(i * 487 + 13) % People::crowdSize]);
    return faces;
}

// Most designs' fields have long names that begin with the control they stand in; only their ends matter.
QString FieldEndingIn(const Fields& form, const QString& end) {
    for (auto field = form.constBegin(); field != form.constEnd(); ++field)
        if (field.key().endsWith(end))
            return field.value();
    return {};
}

} // namespace

QString SessionCookie(Role role) {
    return role == Role::Mobile ? u"PRACTICEMOBILE"_s : u"PRACTICESESSION"_s;
}

QString CookieHeader(Role role, const QString& value, const QString& more) {
    return SessionCookie(role) + u'=' + value + u"; Domain=."_s + SiteDomain() + u"; Path=/"_s + more;
}

Response SignInPage(const Visit& visit, const QString& message) {
    const QString note =
        message.isEmpty() ? QString() : Fill(u"<p class=\"warn\">{m}</p>", {{u"m", message}});
    const QString main =
        Fill(uR"(<div class="cols"><div class="col wideCol">
<div class="box hero"><div class="in"><h1>A place for practice</h1>
<p>Five thousand invented people, a few hundred bands that never played, and films nobody has seen.
Look around as long as you like.</p></div></div>
<div class="box"><h2>Cool New People</h2><div class="in faces">{!faces}</div></div>
</div><div class="col">
<div class="box login"><h2>Member Login</h2><div class="in">{!note}
{!form}
<ul class="links"><li><a href="{forgot}">Forgot your password?</a></li><li><a href="{signup}">Sign Up!</a>
</li></ul>
</div></div></div></div>)",
             {{u"faces", SomeFaces(visit.world)},
              {u"note", note},
              {u"form", SignInForm(visit.world.signInDesign)},
              {u"forgot", Url(Role::Login, u"/index.cfm?fuseaction=user.retrievepassword"_s)},
              {u"signup", Url(Role::SiteRoot, u"/signup"_s)}});
    return Framed(visit, {.title = u"Welcome"_s, .main = main, .tab = u"Home"_s});
}

Response LoginPage(Visit& visit) {
    return visit.account ? Redirect(HomeUrl()) : SignInPage(visit, {});
}

Response LoginProcess(Visit& visit) {
    const Fields& sent = visit.IsPost() ? visit.form : visit.address.query;
    const SignInFields fields = FieldsOf(visit.world.signInDesign);
    if (!visit.IsPost() && FieldEndingIn(sent, fields.mail).isEmpty())
        return LoginPage(visit);
    const QString mail = FieldEndingIn(sent, fields.mail).trimmed();
    const QString password = FieldEndingIn(sent, fields.password);
    const Account* account = visit.world.accounts.Check(mail, password);
    if (!account) {
        visit.world.journal.Write(u"wrong-password "_s + mail.simplified());
        visit.account = nullptr;
        return SignInPage(visit, u"We don't know that e-mail with that word. Please try again."_s);
    }
    visit.world.journal.Write(u"signed-in %1 %2"_s.arg(account->mail).arg(account->id));
    visit.world.accounts.DropSession(visit.session);
    Response response = Redirect(HomeUrl());
    const QString token = visit.world.accounts.OpenSession(visit.world.seed, *account);
    response.headers.append({u"Set-Cookie"_s, CookieHeader(visit.role, token)});
    return response;
}

Response SignOut(Visit& visit) {
    if (visit.account)
        visit.world.journal.Write(u"signed-out %1 %2"_s.arg(visit.account->mail).arg(visit.account->id));
    visit.world.accounts.DropSession(visit.session);
    visit.account = nullptr;
    Response response = SignInPage(visit, u"You have signed out. See you soon!"_s);
    response.headers.append({u"Set-Cookie"_s, CookieHeader(visit.role, {}, u"; Max-Age=0"_s)});
    return response;
}

Response SignUp(Visit& visit) {
    return Notice(
        visit, u"Sign Up!"_s,
        u"Ten accounts are ready for you: a@example.com to j@example.com, all with the word \"secret\"."_s);
}

Response RetrievePassword(Visit& visit) {
    return Notice(visit, u"Lost your key?"_s, u"On the practice site the word is always \"secret\"."_s);
}

} // namespace qlm::practice
