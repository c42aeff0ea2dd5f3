// SPDX-License-Identifier: MIT
#include "EventPages.h"

#include "../Frame.h"
#include "../Html.h"
#include "FriendBlocks.h"
#include "InviteVisit.h"

namespace qlm::practice {

namespace {

constexpr int friendsAPage = 12;
const QString wordField = u"captchaResponseTextBox"_s;

qint64 NumberOf(const Visit& visit) {
    return visit.captures.value(0).toLongLong();
}

bool HasBlocks(const Visit& visit) {
    return visit.world.invitations.DesignOf(Gathering::Event, NumberOf(visit)).name == u"frame";
}

QString ViewAddress(qint64 event) {
    return Url(Role::Events, u"/Event/View/%1"_s.arg(event));
}

QString GuestAddress(qint64 event) {
    return Url(Role::Events, u"/Event/AddEdit/%1"_s.arg(event));
}

QString TitleOf(const QString& name) {
    return name + u" | MySpace"_s;
}

// The list of friends, in whichever design. Who was chosen goes along in hidden fields; saving takes two
// buttons.
class GuestVisit : InviteVisit {
public:
    GuestVisit(Visit& visit, qint64 event)
        : InviteVisit(visit, Gathering::Event, event),
          m_design(visit.world.invitations.DesignOf(Gathering::Event, event).name) {}
    Response Respond();

private:
    Response List(bool wasWrong);
    Response Saved(const QList<qint64>& ids);
    QString Entry(const Person& person) const;
    QString Picks(const Person& person, const QString& mark, const QString& chosen) const;
    QString Pager(int page, int pages) const;
    QString Word(bool wasWrong);
    bool HasTypedWord() const { return m_visit.form.value(u"typed"_s) == u"1"; }

    QStringView m_design;
};

Response GuestVisit::Respond() {
    const bool typesNow = m_visit.form.contains(u"type"_s) && !HasTypedWord();
    if (typesNow && !IsWordRight(wordField))
        return List(true);
    if (typesNow)
        m_visit.form.insert(u"typed"_s, u"1"_s);
    const bool maySave = HasTypedWord() || !m_visit.world.invitations.AsksForWord();
    if (m_visit.form.contains(u"confirm"_s)) {
        Invite(Ticked());
        return Redirect(ViewAddress(m_number));
    }
    if (m_visit.form.contains(u"save"_s) && maySave)
        return Saved(Ticked());
    return List(false);
}

Response GuestVisit::Saved(const QList<qint64>& ids) {
    const QString main =
        Fill(uR"(<div class="box"><h2>Guest list</h2><div class="in"><ul>{!names}</ul>
<form method="post" action="{action}"><input type="hidden" name="chosen" value="{chosen}">
<input type="submit" class="button" id="saveButton4" name="confirm" value="Send invitations"></form></div></div>)",
             {{u"names", Names(ids)}, {u"action", GuestAddress(m_number)}, {u"chosen", JoinNumbers(ids)}});
    return Framed(m_visit, {.title = TitleOf(u"Editing "_s + Name()), .main = main, .tab = {}});
}

// What a click on somebody does, with scripts and without.
QString GuestVisit::Picks(const Person& person, const QString& mark, const QString& chosen) const {
    return Fill(
        uR"-(onclick="pick({id}, '{mark}', '{chosen}')" data-on-click="set #{mark} class {chosen}; append #picks <input type=hidden name=friend value={id}>")-",
        {{u"id", QString::number(person.id)}, {u"mark", mark}, {u"chosen", chosen}});
}

QString GuestVisit::Entry(const Person& person) const {
    const QString id = QString::number(person.id);
    if (m_design == u"tabs")
        return Fill(
            uR"(<p class="check"><input type="checkbox" id="cbInviteMetro_{id}" name="friend" value="{id}"><label for="cbInviteMetro_{id}">{name}</label></p>)",
            {{u"id", id}, {u"name", person.name}});
    if (m_design == u"pager")
        return Fill(uR"(<p><span id="userAdd{id}" class="userAdd" {!picks}>{name}</span></p>)",
                    {{u"id", id},
                     {u"name", person.name},
                     {u"picks", Picks(person, u"userAdd"_s + id, u"SELECTED"_s)}});
    return Fill(
        uR"(<div id="divInviteFriendCheck_{id}" {!picks}><span id="mark{id}" class="unchecked"></span>{name}</div>)",
        {{u"id", id}, {u"name", person.name}, {u"picks", Picks(person, u"mark"_s + id, u"ticked"_s)}});
}

QString GuestVisit::Pager(int page, int pages) const {
    QString acts;
    for (int other = 1; other <= pages; ++other)
        acts += Fill(
            uR"-(<i data-on-script="getNewPagingData({page})" data-do="set #page value {page}; submit #inviteForm"></i>)-",
            {{u"page", QString::number(other)}});
    if (m_design == u"pager")
        return acts;
    return page >= pages
               ? QString()
               : Fill(
                     uR"-(<a class="myspace-paginate" href="javascript:__doPostBack('guests','{page}')" data-on-click="set #page value {page}; submit #inviteForm">next</a>)-",
                     {{u"page", QString::number(page + 1)}});
}

QString GuestVisit::Word(bool wasWrong) {
    if (HasTypedWord())
        return u"<input type=\"hidden\" name=\"typed\" value=\"1\">"_s;
    const QString field = WordField(wordField, wasWrong);
    return field.isEmpty()
               ? field
               : field + u"<input type=\"submit\" class=\"button plain\" id=\"wordButton\" name=\"type\" "
                         "value=\"Continue\">"_s;
}

Response GuestVisit::List(bool wasWrong) {
    const int count = FriendCount();
    const int perPage = m_design == u"tabs" ? count : friendsAPage;
    const int pages = std::max(1, (count + perPage - 1) / perPage);
    const int page = std::clamp(m_visit.form.value(u"page"_s, u"1"_s).toInt(), 1, pages);
    const int first = (page - 1) * perPage;
    QString entries;
    int shown = 0;
    const QList<qint64> chosen = Ticked();
    for (const Person* person : Friends(first, perPage)) {
        ++shown;
        if (!chosen.contains(person->id))
            entries += Entry(*person);
    }
    const QString main = Fill(
        uR"-(<div class="box list"><h2>Friends list</h2><div class="in"><p>Select your friends. {!all}</p>
<p class="slice">Results: listing {from}-{to} of {count}</p><p>{!pager}</p>
<form method="post" action="{action}" id="inviteForm"><input type="hidden" id="page" name="page" value="{page}">
<input type="hidden" name="chosen" value="{chosen}"><div id="picks"></div>{!entries}{!word}
<p class="go"><input type="submit" class="button" id="saveButton3" name="save" value="Save"></p></form></div></div>{!scripts})-",
        {{u"all", m_design == u"pager" ? u"<span id=\"SelectAllLink\">All of them</span>"_s : QString()},
         {u"from", QString::number(first + 1)},
         {u"to", QString::number(first + shown)},
         {u"count", QString::number(count)},
         {u"pager", Pager(page, pages)},
         {u"action", GuestAddress(m_number)},
         {u"page", QString::number(page)},
         {u"chosen", JoinNumbers(chosen)},
         {u"entries", entries},
         {u"word", Word(wasWrong)},
         {u"scripts", InviteScripts()}});
    return Framed(m_visit, {.title = TitleOf(u"Editing "_s + Name()), .main = main, .tab = {}});
}

} // namespace

Response EventPage(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const qint64 event = NumberOf(visit);
    if (visit.address.segments.value(1) == u"Report" && HasBlocks(visit))
        return FriendBlocks(visit, Gathering::Event, event).Respond();
    const QString name = Invitations::NameOf(Gathering::Event, event);
    const QString main = Fill(uR"(<div class="box"><h2>{name}</h2><div class="in"><p>MySpace Events</p>
<div id="post_rsvp_div"><p>You are the host.</p></div><p><a href="{invite}">Invite more people</a> | Cancel event</p></div></div>)",
                              {{u"name", name}, {u"invite", GuestAddress(event)}});
    return Framed(visit, {.title = TitleOf(name), .main = main, .tab = {}});
}

Response EventGuestPage(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    if (HasBlocks(visit))
        return FriendBlocks(visit, Gathering::Event, NumberOf(visit)).Respond();
    return GuestVisit(visit, NumberOf(visit)).Respond();
}

Response EventFriendBox(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return FriendBlocks(visit, Gathering::Event, NumberOf(visit)).Frame();
}

} // namespace qlm::practice
