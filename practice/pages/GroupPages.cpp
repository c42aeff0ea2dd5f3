// SPDX-License-Identifier: MIT
#include "GroupPages.h"

#include "../Frame.h"
#include "../Html.h"
#include "FriendBlocks.h"
#include "InviteVisit.h"
#include "RequestLists.h"

namespace qlm::practice {

namespace {

constexpr int friendsAPage = 10;
// What readers of the newer page know its parts by.
constexpr QStringView display = u"ctl00_ctl00_ctl00_cpMain_cpMain_cpMain_inviteFriendsDisplay_gridFriends";
constexpr QStringView pager = u"ctl00$ctl00$ctl00$cpMain$cpMain$cpMain$inviteFriendsDisplay$pagerTop";

qint64 NumberOf(const Visit& visit) {
    return visit.address.query.value(u"groupid"_s).toLongLong();
}

QString AddressOf(const QString& action, qint64 group) {
    return Url(Role::Groups, u"/index.cfm?fuseaction=groups.%1&groupID=%2"_s.arg(action).arg(group));
}

QString TitleOf(const QString& name) {
    return name + u" - MySpace Groups"_s;
}

// Ten friends a page. Who was ticked on the pages before goes along in a hidden field.
class GridVisit : InviteVisit {
public:
    GridVisit(Visit& visit, qint64 group) : InviteVisit(visit, Gathering::Group, group) {}
    Response Respond();

private:
    Response List(const QList<qint64>& chosen, const QString& said, bool wasWrong);
    Response Done(const QList<qint64>& ids);
    QString Entry(int place, const Person& person, bool isTicked) const;
    QString Pager(int page, int pages) const;
    QString PageLink(int page, const QString& caption) const;
    QString StandIns(int pages) const;
};

Response GridVisit::Respond() {
    const QString field = u"captchaResponseTextBox"_s;
    const QList<qint64> chosen = Ticked();
    if (!m_visit.form.contains(u"invite"_s))
        return List(chosen, {}, false);
    if (chosen.isEmpty())
        return List(chosen, u"Please select at least one friend."_s, false);
    if (chosen.size() > Invitations::atOnce)
        return List({}, u"You can only send 25 invites at a time."_s, false);
    if (!IsWordRight(field))
        return List(chosen, {}, true);
    return Done(chosen);
}

Response GridVisit::Done(const QList<qint64>& ids) {
    Invite(ids);
    const QString main =
        Fill(uR"(<div class="box"><h2>Invited MySpace member(s)</h2><div class="in"><ul>{!names}</ul>
<p><a href="{group}">Back to the group</a></p></div></div>)",
             {{u"names", Names(ids)}, {u"group", AddressOf(u"grouphome"_s, m_number)}});
    return Framed(m_visit, {.title = TitleOf(Name()), .main = main, .tab = {}});
}

QString GridVisit::Entry(int place, const Person& person, bool isTicked) const {
    return Fill(
        uR"(<tr><td><input type="checkbox" id="{grid}_ctl{place}_checkBoxFriend" name="friend" value="{id}"{!ticked}></td>
<td><img src="{picture}" width="40" height="40" alt=""></td><td>{name}</td></tr>)",
        {{u"grid", display.toString()},
         {u"place", QString::number(place + 2).rightJustified(2, u'0')},
         {u"id", QString::number(person.id)},
         {u"ticked", isTicked ? u" checked"_s : QString()},
         {u"picture", Url(Role::SiteRoot, u"/pictures/%1.svg"_s.arg(person.id))},
         {u"name", person.name}});
}

QString GridVisit::PageLink(int page, const QString& caption) const {
    return Fill(
        uR"-(<a href="javascript:__doPostBack('{pager}','{page}')" data-on-click="set #page value {page}; submit #inviteForm">{caption}</a>)-",
        {{u"pager", pager.toString()}, {u"page", QString::number(page)}, {u"caption", caption}});
}

QString GridVisit::Pager(int page, int pages) const {
    QString links = page > 1 ? PageLink(page - 1, u"‹ previous"_s) : QString();
    links += Fill(uR"( <span class="currentpage">{page}</span> )", {{u"page", QString::number(page)}});
    links += page < pages ? PageLink(page + 1, u"next ›"_s) : QString();
    return links;
}

// A page that is asked for by a script.
QString GridVisit::StandIns(int pages) const {
    QString acts;
    for (int page = 1; page <= pages; ++page)
        acts += Fill(
            uR"-(<i data-on-script="pagerTop','{page}')" data-do="set #page value {page}; submit #inviteForm"></i>)-",
            {{u"page", QString::number(page)}});
    return acts;
}

Response GridVisit::List(const QList<qint64>& chosen, const QString& said, bool wasWrong) {
    const int count = FriendCount();
    const int pages = std::max(1, (count + friendsAPage - 1) / friendsAPage);
    const int page = std::clamp(m_visit.form.value(u"page"_s, u"1"_s).toInt(), 1, pages);
    const int first = (page - 1) * friendsAPage;
    QString rows;
    QList<qint64> elsewhere = chosen;
    int place = 0;
    for (const Person* person : Friends(first, friendsAPage)) {
        rows += Entry(place++, *person, chosen.contains(person->id));
        elsewhere.removeOne(person->id);
    }
    const QString main =
        Fill(uR"-(<div class="box list"><h2>Find a MySpace User to Invite</h2><div class="in">{!said}
<p class="slice">Listing {from}-{to} of {count}</p><p class="pager">{!pager}</p>
<form method="post" action="{action}" id="inviteForm" name="inviteForm">
<input type="hidden" id="page" name="page" value="{page}"><input type="hidden" name="chosen" value="{chosen}">
<table><tr><th><input type="checkbox" id="{grid}_ctl01_headerCheckbox" onclick="tickAll(this)"></th><th>Friends Picture</th><th>Name</th></tr>
{!rows}</table>{!word}<p class="go"><input type="submit" class="button" id="inviteButton" name="invite" value="Invite"></p></form>
{!acts}</div></div>{!scripts})-",
             {{u"said", said.isEmpty() ? QString() : u"<p class=\"warn\">"_s + Escape(said) + u"</p>"_s},
              {u"from", QString::number(first + 1)},
              {u"to", QString::number(first + place)},
              {u"count", QString::number(count)},
              {u"pager", Pager(page, pages)},
              {u"action", AddressOf(u"groupInvite"_s, m_number)},
              {u"page", QString::number(page)},
              {u"chosen", JoinNumbers(elsewhere)},
              {u"grid", display.toString()},
              {u"rows", rows},
              {u"word", WordField(u"captchaResponseTextBox"_s, wasWrong)},
              {u"acts", StandIns(pages)},
              {u"scripts", InviteScripts()}});
    return Framed(m_visit, {.title = TitleOf(Name()), .main = main, .tab = {}});
}

} // namespace

Response GroupFriendBox(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return FriendBlocks(visit, Gathering::Group, NumberOf(visit)).Frame();
}

Response GroupPage(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const qint64 group = NumberOf(visit);
    const QString name = Invitations::NameOf(Gathering::Group, group);
    const QString main =
        Fill(uR"(<div class="box"><h2>{name}</h2><div class="in"><p>Group Leader: Practice Site</p>
<p>Members: 1</p><p><a href="{invite}"><img src="{root}/images/button_invite_others.gif" width="128" height="28" alt="Invite Others"></a></p></div></div>)",
             {{u"name", name},
              {u"invite", AddressOf(u"groupInvite"_s, group)},
              {u"root", Url(Role::SiteRoot, {})}});
    return Framed(visit, {.title = TitleOf(name), .main = main, .tab = {}});
}

Response GroupInvitePage(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const qint64 group = NumberOf(visit);
    if (visit.world.invitations.DesignOf(Gathering::Group, group).name == u"frame")
        return FriendBlocks(visit, Gathering::Group, group).Respond();
    return GridVisit(visit, group).Respond();
}

} // namespace qlm::practice
