// SPDX-License-Identifier: MIT
#include "ProfilePages.h"

#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "NoticePages.h"

namespace qlm::practice {

namespace {

QString FaceRow(const World& world, const Person& person) {
    QString faces;
    for (const Person* shown : world.friends.Slice(world.people, person.id, 0, 12))
        faces += Face(*shown);
    return faces;
}

// The online mark has to stand shortly before the date, with no link between them. Firms don't tell.
QString LoginLine(const World& world, const Person& person) {
    if (person.advertiser)
        return u"<p class=\"advertiserProfile\">This page is a firm's.</p>"_s;
    const QDate day = world.now().date().addDays(-person.daysSinceLogin);
    return Fill(uR"(<p class="login">{!online}Last Login: {date}<br></p>)",
                {{u"online", person.online ? u"<span class=\"userOnline\">Online Now!</span> "_s : QString()},
                 {u"date", day.toString(u"M/d/yyyy"_s)}});
}

QString Badge(const Person& person) {
    const QString image = Url(Role::SiteRoot, u"/images/"_s);
    if (person.kind == Person::Kind::Comedian)
        return Fill(uR"(<img src="{i}comedy%2fmscomedy.gif" width="120" height="34" alt="">)",
                    {{u"i", image}});
    if (person.kind == Person::Kind::Film)
        return Fill(uR"(<img src="{i}film_logo.gif" width="120" height="34" alt="">)", {{u"i", image}});
    return {};
}

QString BandLinks(bool newer) {
    if (newer)
        return u"<div class=\"box\"><h2>Music</h2><div class=\"in\"><p>Featured Playlists: songs from the "
               u"van</p>"
               u"<p>Music News: the drummer is back</p></div></div>"_s;
    return Fill(
        uR"(<ul class="links"><li><a href="{r}/music/shows">Shows</a></li><li><a href="{r}/music/blog">)"
        uR"(Band Blog</a></li></ul>
<img class="musicJV_logo" src="{r}/style/logo.svg" width="107" height="22" alt="">)",
        {{u"r", Url(Role::SiteRoot, {})}});
}

QString ActionLinks(const Person& person, const QString& addUrl, const QString& more) {
    const QString root = Url(Role::SiteRoot, {});
    const QString id = QString::number(person.id);
    return Fill(uR"(<ul class="links actions"><li><a href="{root}/my/mail/new?t={id}">Send Message</a></li>
<li><a href="{add}">Add to Friends</a></li><li><a href="{root}/{id}/friends">View All Friends</a></li>
<li><a href="{root}/{id}/comments">View Comments</a></li>{!more}</ul>)",
                {{u"root", root}, {u"id", id}, {u"add", addUrl}, {u"more", more}});
}

QString AddCommentLink(const Person& person) {
    return Fill(uR"(<li><a href="{root}/{id}/comments">Add Comment</a></li>)",
                {{u"root", Url(Role::SiteRoot, {})}, {u"id", QString::number(person.id)}});
}

// The old pages for the same things; whoever looks for somebody's number takes it from the links above.
QString OlderLinks(const Person& person) {
    return Fill(
        uR"(<li><a href="{mail}">Send Message</a> (old mail)</li><li><a href="{form}">Add Comment</a></li>)",
        {{u"mail", Url(Role::Messaging, u"/index.cfm?fuseaction=mail.message&friendID=%1"_s.arg(person.id))},
         {u"form", Url(Role::Comment,
                       u"/index.cfm?fuseaction=user.viewProfile_commentForm&friendID=%1"_s.arg(person.id))}});
}

QString FriendSpace(const World& world, const Person& person, const QString& mark) {
    return Fill(uR"(<div class="box {mark}"><h2>{name}'s Friend Space</h2><div class="in">
<p>{name} has <b>{count}</b> friends.</p><div class="faces">{!faces}</div></div></div>)",
                {{u"mark", mark},
                 {u"name", FirstName(person)},
                 {u"count", QString::number(world.friends.Count(person.id))},
                 {u"faces", FaceRow(world, person)}});
}

QString ClassicFacts(const Person& person) {
    if (person.kind == Person::Kind::Person)
        return Fill(uR"(<div class="profileInfo"><span class="gender">{gender}</span><br>
<span class="age">{age}</span> years old<br>{town}, {region}<br>{country}<br></div>)",
                    {{u"gender", person.male ? u"Male"_s : u"Female"_s},
                     {u"age", QString::number(person.age)},
                     {u"town", person.town},
                     {u"region", person.region},
                     {u"country", person.country}});
    const QString place =
        Fill(u"{town}, {region}<br>{country}<br>",
             {{u"town", person.town}, {u"region", person.region}, {u"country", person.country}});
    if (person.kind == Person::Kind::Band)
        return Fill(
            uR"(<div id="UserBasicInformation">{genre}<br>all ages<br>{!place}Profile Views: {views}</div>)",
            {{u"genre", person.genre},
             {u"place", place},
             {u"views", QString::number(100 + person.look % 90000)}});
    return Fill(
        uR"(<div class="profileDemographics" id="demographics">{kind}<br>{!place}</div>)",
        {{u"kind", person.kind == Person::Kind::Film ? u"Film"_s : u"Comedian"_s}, {u"place", place}});
}

Response Classic(Visit& visit, const Person& person) {
    const bool band = person.kind == Person::Kind::Band;
    const QString add =
        Url(Role::Friends, u"/index.cfm?fuseaction=invite.addfriend_verify&friendID=%1"_s.arg(person.id));
    const QString main = Fill(uR"(<div class="cols classic"><div class="col">
<h1>{name}</h1>{!badge}
<div class="badgeRow"><img class="portrait" src="{picture}" width="150" height="150" alt="">
<div><p class="quote">&ldquo;{headline}&rdquo;</p>{!facts}{!login}</div></div>
<p>Mood: {mood}</p><p>View My: Pictures | Videos</p>
<div class="box"><h2>Contacting {name}</h2><div class="in">{!actions}{!band}</div></div>
</div><div class="col wideCol">
<div class="box"><h2>About {name}</h2><div class="in"><p>{interests}</p></div></div>
{!friends}
</div></div>)",
                              {{u"name", person.name},
                               {u"badge", Badge(person)},
                               {u"picture", PictureUrl(person)},
                               {u"headline", person.headline},
                               {u"facts", ClassicFacts(person)},
                               {u"login", LoginLine(visit.world, person)},
                               {u"mood", person.mood},
                               {u"actions", ActionLinks(person, add, OlderLinks(person))},
                               {u"band", band ? BandLinks(false) : QString()},
                               {u"interests", person.interests},
                               {u"friends", FriendSpace(visit.world, person, u"friendSpace"_s)}});
    return Framed(visit, {.title = person.name, .main = main, .tab = {}, .shownId = person.id});
}

QString NewerFacts(const Person& person) {
    if (person.kind == Person::Kind::Person)
        return Fill(
            uR"(<p><span class="age">{age}</span> years old</p><p>{gender}</p>)",
            {{u"age", QString::number(person.age)}, {u"gender", person.male ? u"Male"_s : u"Female"_s}});
    return Fill(u"<p>{genre}</p>",
                {{u"genre", person.kind == Person::Kind::Band ? person.genre : QString()}});
}

QJsonObject NewerScript(const Person& person) {
    if (person.kind != Person::Kind::Person)
        return {};
    return {{u"gender"_s, person.male ? u"Male"_s : u"Female"_s},
            {u"age"_s, u"Age: %1, %2"_s.arg(QString::number(person.age), person.town)}};
}

Response Newer(Visit& visit, const Person& person) {
    const QString add = Url(Role::SiteRoot, u"/my/friends/addtofriends/%1"_s.arg(person.id));
    const QString main = Fill(uR"(<div class="cols"><div class="col userBadgeSideBar">
<div class="box"><h2>{name}</h2><div class="in own">
<img class="portrait" src="{picture}" width="150" height="150" alt="">{!badge}
{!facts}<p>{town}, {region}</p><p>{country}</p>{!login}{!actions}</div></div>
</div><div class="col wideCol">
<div class="box"><div class="in"><p class="quote">&ldquo;{headline}&rdquo;</p><p>Mood: {mood}</p></div></div>
{!band}<div class="box"><h2>About {name}</h2><div class="in"><p>{interests}</p></div></div>
{!friends}
</div></div>)",
                              {{u"name", person.name},
                               {u"picture", PictureUrl(person)},
                               {u"badge", Badge(person)},
                               {u"facts", NewerFacts(person)},
                               {u"town", person.town},
                               {u"region", person.region},
                               {u"country", person.country},
                               {u"login", LoginLine(visit.world, person)},
                               {u"actions", ActionLinks(person, add, AddCommentLink(person))},
                               {u"headline", person.headline},
                               {u"mood", person.mood},
                               {u"band", person.kind == Person::Kind::Band ? BandLinks(true) : QString()},
                               {u"interests", person.interests},
                               {u"friends", FriendSpace(visit.world, person, u"friendBox"_s)}});
    return Framed(visit, {.title = person.name,
                          .main = main,
                          .tab = visit.account && visit.account->id == person.id ? u"Profile"_s : QString(),
                          .shownId = person.id,
                          .facts = NewerScript(person)});
}

using Layout = Response (*)(Visit&, const Person&);

// Whoever takes no requests shows strangers no profile either. The number stands there all the same.
Response Private(Visit& visit, const Person& person, Layout layout) {
    const QString words = layout == Classic
                              ? u"This profile is set to private. This user must add you as a friend first."_s
                              : u"Sorry, the profile of %1 is only viewable by friends."_s.arg(person.name);
    const QString main = Fill(uR"(<div class="box notice"><h2>{name}</h2><div class="in">
<img class="portrait" src="{picture}" width="150" height="150" alt=""><p>{words}</p></div></div>)",
                              {{u"name", person.name}, {u"picture", PictureUrl(person)}, {u"words", words}});
    return Framed(visit, {.title = person.name, .main = main, .tab = {}, .shownId = person.id});
}

Response Show(Visit& visit, const Person* person, Layout layout) {
    if (!person)
        return NotFound(visit);
    const bool isOwn = visit.account && visit.account->id == person->id;
    const bool isPrivate = visit.world.requests.NatureOf(person->id) == Outcome::Private;
    return isPrivate && !isOwn ? Private(visit, *person, layout) : layout(visit, *person);
}

} // namespace

Response ProfilePage(Visit& visit) {
    return Show(visit, visit.world.people.Find(visit.captures.value(0).toLongLong()), Newer);
}

Response VanityProfile(Visit& visit) {
    return Show(visit, visit.world.people.FindVanity(visit.captures.value(0)), Newer);
}

Response ClassicProfile(Visit& visit) {
    return Show(visit, visit.world.people.Find(visit.captures.value(0).toLongLong()), Classic);
}

Response OldProfileAddress(Visit& visit) {
    return Show(visit, visit.world.people.Find(visit.address.query.value(u"friendid"_s).toLongLong()),
                Classic);
}

} // namespace qlm::practice
