// SPDX-License-Identifier: MIT
#include "Entries.h"

#include "Html.h"
#include "MiniProfile.h"

namespace qlm::practice {

namespace {

QString OldAddress(const Person& person) {
    return Url(Role::Profile, u"/index.cfm?fuseaction=user.viewprofile&friendID=%1"_s.arg(person.id));
}

QString FactsLine(const Person& person) {
    const QString place = person.town + u", "_s + person.region;
    return person.kind == Person::Kind::Person ? u"Age: %1, "_s.arg(person.age) + place : place;
}

// Every entry is made of the same values.
QString Made(QStringView markup, const Person& person, const QString& url) {
    return Fill(markup, {{u"id", QString::number(person.id)},
                         {u"url", url},
                         {u"name", person.name},
                         {u"first", FirstName(person)},
                         {u"picture", PictureUrl(person)},
                         {u"facts", FactsLine(person)},
                         {u"genre", person.genre},
                         {u"headline", person.headline},
                         {u"address", url.mid(7)},
                         {u"root", Url(Role::SiteRoot, {})},
                         {u"messaging", Url(Role::Messaging, {})},
                         {u"search", Url(Role::SearchService, {})},
                         {u"video", Url(Role::Video, {})}});
}

QString Row(QStringView kind, const Person& person, const QString& url, QStringView more = {}) {
    return Made(
        u"<div class=\""_s + kind.toString() +
            uR"("><div class="pic"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<div class="who"><a href="{url}">{name}</a><p>{facts}</p><p class="quote">{headline}</p></div>)"_s +
            more.toString() + u"</div>"_s,
        person, url);
}

} // namespace

QString MediaEntry(const Person& person) {
    return u"<div class=\"media section\">"_s + MiniProfile(person) + u"</div>"_s;
}

QString CardEntry(const Person& person) {
    return Made(
        uR"(<div class="cardRow"><div class="vcard containerlarge" data-of="friendid:{id},card"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""> {name}</a></div>
<p>{facts}</p><p class="act"><a class="gapAddFriend" id="add{id}" href="{root}/my/friends/addtofriends/{id}">Add</a></p></div>)",
        person, ProfileUrl(person));
}

QString ForumEntry(const Person& person) {
    return Made(
        uR"(<div class="post" id="Reply_{id}" ><p><a class="ForumPostUserName" href="{url}">{name}</a> wrote:</p>
<p>{headline}</p><p class="thanks">Thanks go to <a href="{root}/900003">one of the hosts</a></p></div>)",
        person, ProfileUrl(person));
}

QString NoticeEntry(const Person& person) {
    return Made(
        uR"(<div class="miniProfile notice"><div class="pic" data-of="friendid:{id},notice"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<div class="who"><a href="{url}">{name}</a><p>has changed the headline: {headline}</p></div></div>
)",
        person, ProfileUrl(person));
}

QString ChartEntry(const Person& person) {
    return Made(
        uR"(<div class="chartRow"><div class="nickname"><p><a href="{url}"><img class="artistImgFrame" src="{picture}" width="72" height="72" alt=""></a></p></div>
<p class="who"><b>{name}</b> {genre} <a class="chartArtistAddToFriend" id="friendid{id}" href="{root}/my/friends/addtofriends/{id}">Add</a></p></div>
)",
        person, ProfileUrl(person));
}

QString NewFriendEntry(const Person& person) {
    return Made(
        uR"(<div class="person"><div class="pic"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<p><a href="{url}">{name}</a> is now your friend</p></div>)",
        person, ProfileUrl(person));
}

QString NamedEntry(const Person& person) {
    return Row(u"person", person, ProfileUrl(person));
}

QString NumberedEntry(const Person& person) {
    return Row(u"person", person, OldAddress(person));
}

QString MiniNumberedEntry(const Person& person) {
    return Row(u"miniProfile", person, OldAddress(person));
}

QString MailEntry(const Person& person) {
    return Made(
        uR"(<div class="mailRow"><div class="from"><span><a class="msProfileLink" id="friendid{id}" href="{root}/{id}/classic">{name}</a></span></div>
<p>{headline}</p></div>)",
        person, ProfileUrl(person));
}

QString PendingEntry(const Person& person) {
    return Made(uR"(<div class="mailRow">Currently awaiting approval from <span><a href="{url}">{name}</a>
<a href="{messaging}/index.cfm?fuseaction=mail.message&amp;friendID={id}&amp;from=pending">Write</a></span></div>)",
                person, OldAddress(person));
}

QString CommentEntry(const Person& person) {
    return Made(
        uR"(<div class="person"><div class="pic"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<div class="who"><a href="{url}">{name}</a><p>{headline}</p><p class="commentCommands">Answer | Report</p></div></div>)",
        person, OldAddress(person));
}

QString EventEntry(const Person& person) {
    return Made(
        uR"(<div class="person"><div class="pic"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<p><a href="{url}">{first}</a> <span style="font-weight: bold;">{name} {id}</span> is coming</p></div>)",
        person, OldAddress(person));
}

QString ImageEntry(const Person& person) {
    return Made(
        uR"(<div class="face"><a href="{search}/index.cfm?fuseaction=sitesearch.viewmorepics&amp;friendID={id}"><img src="{picture}" width="72" height="72" alt=""></a>
<span>{first}</span></div>)",
        person, ProfileUrl(person));
}

QString ArtistEntry(const Person& person) {
    return Made(
        uR"(<div class="person"><div class="pic"><a href="{url}"><img src="{picture}" width="72" height="72" alt=""></a></div>
<div class="who"><a href="{url}">{name}</a><p>{address}</p><p>matches on: {genre}</p></div></div>)",
        person, ProfileUrl(person));
}

QString ChannelEntry(const Person& person) {
    return Made(
        uR"(<div class="face"><a href="{video}/index.cfm?fuseaction=vids.channel&amp;ChannelID={id}"><img src="{picture}" width="72" height="72" alt=""></a>
<span>{first}'s videos</span></div>)",
        person, ProfileUrl(person));
}

QString BareLinkEntry(const Person& person) {
    return Row(u"person", person, ProfileUrl(person),
               uR"-(<p><a name="of{id}"></a><a>no address</a> <a href="">empty</a> <a href="#">top</a>
<a href="mailto:somebody@example.com">mail</a> <a href="javascript:void(0)">nothing</a></p>)-");
}

// The links inside the frames lead to hosts of the site.
QString NestedEntry(const Person& person) {
    const QString inner = u"<p><a href='%1/900004'>within</a></p>"_s.arg(Url(Role::SiteRoot, {}));
    const QString outer = u"<iframe srcdoc=\"%1\"></iframe>%2"_s.arg(Escape(inner), inner);
    const QString frames =
        u"<iframe width=\"160\" height=\"60\" srcdoc=\"%1\"></iframe>"_s.arg(Escape(outer));
    return Row(u"person", person, ProfileUrl(person), frames);
}

QString StrangeNameEntry(const Person& person) {
    static const QStringList names{u"\u05E9\u05DC\u05D5\u05DD \u202E\u05D7\u05D1\u05E8"_s,
                                   u"\u0645\u0631\u062D\u0628\u0627"_s,
                                   u"\U0001F469\u200D\U0001F680 \U0001F3B8\U0001F525"_s,
                                   u"e\u0301\u0323 \u0130\u0131 \uFB03"_s,
                                   u"\u200B\u200F\uFEFF"_s,
                                   u"</a><script>"_s};
    Person strange = person;
    strange.name = names[person.id % names.size()];
    strange.headline = strange.name + u" \u2067"_s + strange.name;
    return NamedEntry(strange);
}

QString Neighbours() {
    static constexpr QStringView links[] = {
        uR"(<p><a href="{root}/900002"><small>host of the week</small></a></p>)",
        uR"(<p><a href="{root}/900003">Back to Profile</a></p>)",
        uR"(<p><a href="{root}/900004">IM</a></p>)",
        uR"(<p><a href="{root}/tam">Tam</a></p>)",
        uR"(<p><a href="{profile}/index.cfm?fuseaction=user.viewprofile&amp;friendID=6221">the founder</a></p>)",
        uR"(<p><a class="Pymk" href="{root}/900005">Somebody you may know</a></p>)",
        uR"(<p><a class="thinlink" href="{root}/900006">Another one</a></p>)",
        uR"(<p><a href="{root}/900007">Go to Jo</a></p>)",
        uR"(<p>More <span>of <a href="{root}/900008">Kim</a></span></p>)",
        uR"(<ul><li><a href="{root}/900009">Lee</a></li></ul>)",
        uR"(<ul><li><span><a href="{root}/900010">Max</a></span></li></ul>)",
        uR"(<div class="footertools"><div><div><p><a href="{root}/900002">Nat</a></p></div></div></div>)",
        uR"(<p class="gblsubMenu"><a href="{root}/900003">Oli</a></p>)",
        uR"(<div class="mediablock"><div><p><a href="{root}/900004">Pat</a></p></div></div>)",
        uR"(<div data-category="Recommended"><p><a href="{root}/900005">Quin</a></p></div>)",
        uR"(<p><a href="{redirect}/go?to={root}/900006">Rae</a></p>)",
        uR"(<p><a href="{root}/music">Music</a></p>)",
        uR"(<p><a href="{root}/pressroom">Press</a></p>)",
        uR"(<p><a href="{root}/sitemap">All lists</a></p>)",
    };
    QString blocks;
    // So deep that none of them is another's ancestor's content.
    for (const QStringView link : links)
        blocks += u"<div class=\"near\"><div><div>"_s +
                  Fill(link, {{u"root", Url(Role::SiteRoot, {})},
                              {u"profile", Url(Role::Profile, {})},
                              {u"redirect", Url(Role::LinkRedirect, {})}}) +
                  u"</div></div></div>"_s;
    return u"<div class=\"box\"><h2>People and pages</h2><div class=\"in aside\">"_s + blocks +
           u"</div></div>"_s;
}

} // namespace qlm::practice
