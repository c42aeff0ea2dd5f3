// SPDX-License-Identifier: MIT
#include "HomePages.h"

#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "SignInPages.h"
#include "StatusBox.h"

namespace qlm::practice {

namespace {

QString NewPeople(const World& world, qint64 owner) {
    QString faces;
    for (int i = 0; i < 12; ++i)
        faces +=
            Face(world.people.Crowd()[(static_cast<int>(owner % 997) * 31 + i * 611) % People::crowdSize]);
    return faces;
}

} // namespace

Response HomePage(Visit& visit) {
    if (!visit.account)
        return SignInPage(visit, {});
    const StatusAnswer answer = TakeStatus(visit);
    if (answer.response)
        return *answer.response;
    const Person& me = *visit.world.people.Find(visit.account->id);
    const QString own = Url(Role::SiteRoot, u"/%1"_s.arg(me.id));
    const QString main = Fill(uR"(<div class="cols"><div class="col">
<div class="box"><h2>Hello, {first}!</h2><div class="in own">
<img class="portrait" src="{picture}" width="120" height="120" alt="">
<p class="quote">&ldquo;{headline}&rdquo;</p><p>Mood: {mood}</p>
<ul class="links"><li><a href="{own}">My profile</a></li><li>
<a href="{own}/friends">My friends ({count})</a></li>
<li><a href="{mail}">My mail</a></li><li><a href="{bulletins}">Bulletins</a></li>
<li><a href="{root}/my/requests/friendrequest?viewall=1">Friend requests ({requests})</a></li>
<li><a href="{browse}">Browse people</a></li></ul></div></div>
</div><div class="col wideCol">
{!status}
<div class="box"><h2>Cool New People</h2><div class="in faces">{!people}</div></div>
</div></div>)",
                              {{u"first", FirstName(me)},
                               {u"picture", PictureUrl(me)},
                               {u"headline", me.headline},
                               {u"mood", me.mood},
                               {u"own", own},
                               {u"count", QString::number(visit.world.friends.Count(me.id))},
                               {u"mail", Url(Role::Messaging, u"/index.cfm?fuseaction=mail.inbox"_s)},
                               {u"root", Url(Role::SiteRoot, {})},
                               {u"requests", QString::number(visit.world.incoming.Of(me.id).size())},
                               {u"bulletins", Url(Role::SiteRoot, u"/bulletins"_s)},
                               {u"browse", Url(Role::SiteRoot, u"/browse/people"_s)},
                               {u"status", StatusMarkup(visit, answer.notice)},
                               {u"people", NewPeople(visit.world, me.id)}});
    return Framed(visit, {.title = u"Home"_s, .main = main, .tab = u"Home"_s, .shownId = me.id});
}

} // namespace qlm::practice
