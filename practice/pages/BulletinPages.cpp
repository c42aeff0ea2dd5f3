// SPDX-License-Identifier: MIT
#include "BulletinPages.h"

#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "BulletinForm.h"
#include "NoticePages.h"

#include <iterator>

namespace qlm::practice {

namespace {

using Choice = BulletinDesign::Choice;

constexpr QStringView invented[] = {u"Couch to give away", u"Who comes to the lake on Sunday?",
                                    u"New songs, same old drummer", u"I lost my keys again",
                                    u"Looking for a room in spring"};

QString Links(const Visit& visit) {
    return Fill(
        uR"(<ul class="links"><li><a href="{board}/new">Post a bulletin</a></li><li>
<a href="{board}">Bulletin board</a></li><li><a href="{board}/{id}">My posts</a></li></ul>)",
        {{u"board", Url(Role::SiteRoot, u"/bulletins"_s)}, {u"id", QString::number(visit.account->id)}});
}

// The row's number counts from 1, as on all lists of the older pages.
QString Row(const BulletinDesign& design, const Post& post, int place) {
    const QString box =
        Fill(u"<input type=\"checkbox\" name=\"messageID\" value=\"{n}\" title=\"Choose this post\">",
             {{u"n", QString::number(post.number)}});
    const QString id =
        u"ctl00_ctl00_cpMain_BulletinList_bulletins_Repeater_ctl%1"_s.arg(place, 2, 10, QChar(u'0'));
    return Fill(
        uR"(<div class="mailRow bulletin"{!id}>{!box}<p class="from">{when}</p><div><p><b>{subject}</b></p>
<p>{body}</p></div></div>)",
        {{u"id", design.older ? u" id=\"%1\""_s.arg(id) : QString()},
         {u"box", design.choice == Choice::None ? QString() : box},
         {u"when", post.when.toString(u"yyyy-MM-dd hh:mm"_s)},
         {u"subject", post.subject},
         {u"body", post.body}});
}

QString List(const BulletinDesign& design, const QList<Post>& posts) {
    QString rows;
    for (qsizetype i = 0; i < posts.size(); ++i)
        rows += Row(design, posts[i], int(i) + 1);
    return rows +
           u"<p class=\"more\"><button class=\"button plain\" name=\"mark\" value=\"Read\">Mark as read"
           "</button> <button class=\"button\" name=\"act\" value=\"Delete\">Delete</button></p>"_s;
}

// Where it comes late it must not stand in the page's markup before its time, not even in a script.
QString LateList(const QString& address) {
    return Fill(uR"(<div id="lateList" data-from="{url}?full=1" data-on-load="after 2s goto {url}?full=1">One
 moment, please...</div>)",
                {{u"url", address}});
}

QString Nothing(const BulletinDesign& design) {
    return design.older ? u"<p class=\"empty\">You did not send any bulletins yet.</p>"_s
                        : u"<p class=\"empty\">You have no bulletins posted at this time.</p>"_s;
}

QString Body(const Visit& visit, const BulletinDesign& design, const QList<Post>& posts) {
    if (posts.isEmpty())
        return Nothing(design);
    const QString address = u"http://"_s + visit.FullAddress().section(u'?', 0, 0);
    if (design.choice == Choice::Late && !visit.address.query.contains(u"full"_s))
        return LateList(address);
    return Fill(uR"(<form method="post" action="{action}" id="posts">{!rows}</form>)",
                {{u"action", address}, {u"rows", List(design, posts)}});
}

void Delete(Visit& visit) {
    const qint64 author = visit.account->id;
    for (const QString& number : ValuesOf(visit.request.body, u"messageid"_s)) {
        const auto gone = visit.world.posts.Take(author, number.toInt());
        if (gone)
            visit.world.journal.Write(u"deleted-bulletin %1 %2 "_s.arg(author).arg(gone->number) +
                                      Quoted(gone->subject));
    }
}

QString FriendsPosts(const World& world, qint64 owner) {
    QString rows;
    const auto friends = world.friends.Slice(world.people, owner, 1, int(std::size(invented)));
    for (qsizetype i = 0; i < friends.size(); ++i)
        rows += Fill(
            uR"(<div class="update"><div class="pic"><img src="{picture}" width="36" height="36" alt=""></div>
<p><a href="{url}">{name}</a> {subject}</p></div>)",
            {{u"picture", PictureUrl(*friends[i])},
             {u"url", ProfileUrl(*friends[i])},
             {u"name", friends[i]->name},
             {u"subject", invented[i].toString()}});
    return rows;
}

Response BoxPage(const Visit& visit, const QString& title, const QString& body) {
    const QString main =
        Fill(uR"(<div class="box list"><h2>{title}</h2><div class="listHead">{!links}</div>
<div class="in">{!body}</div></div>{!scripts})",
             {{u"title", title}, {u"links", Links(visit)}, {u"body", body}, {u"scripts", FormScripts()}});
    return Framed(visit, {.title = title, .main = main, .tab = {}});
}

} // namespace

Response BulletinBoard(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return BoxPage(visit, u"Bulletin Board"_s, FriendsPosts(visit.world, visit.account->id));
}

Response PostedBulletins(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const qint64 author = visit.account->id;
    if (visit.captures.value(0).toLongLong() != author)
        return Notice(visit, u"Bulletins"_s, u"These are somebody else's."_s);
    const BulletinDesign& design = BulletinDesignOf(visit.world, author);
    if (visit.IsPost() && visit.form.value(u"act"_s) == u"Delete") {
        Delete(visit);
        return Redirect(u"http://"_s + visit.FullAddress().section(u'?', 0, 0));
    }
    return BoxPage(visit, u"Bulletins"_s,
                   Body(visit, design, visit.world.posts.Of(author, Post::Kind::Bulletin)));
}

} // namespace qlm::practice
