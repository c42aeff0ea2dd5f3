// SPDX-License-Identifier: MIT
#include "IncomingPages.h"

#include "../Entries.h"
#include "../FormChoice.h"
#include "../Frame.h"
#include "../Html.h"
#include "../RequestListDesigns.h"
#include "IncomingAnswers.h"
#include "RequestLists.h"

namespace qlm::practice {

namespace {

// The list of one account on one of its pages.
class RequestListVisit {
public:
    RequestListVisit(Visit& visit, const RequestListDesign& design, const QString& address)
        : m_visit(visit), m_design(design), m_address(address) {}

    Response Respond();

private:
    Response AnswerInPlace();
    Response List(const QStringList& said);
    QString Body(const QList<qint64>& waiting);
    QString Entry(qint64 id);
    QString Who(const Person* person);
    QString NewerEntry(qint64 id, const Person* person);
    QString OlderEntry(qint64 id, const Person* person);
    QString Head(const RequestPage& page) const;
    QString Foot() const;
    QString Button(const QString& caption, const QString& act, qint64 id) const;
    QString Span(const QString& caption, const QString& act, qint64 id) const;
    QString ActsFor(const QString& act, qint64 id) const;
    QString Nothing() const;

    Visit& m_visit;
    const RequestListDesign& m_design;
    QString m_address;
};

Response RequestListVisit::Respond() {
    if (!m_visit.IsPost())
        return List({});
    if (m_visit.form.contains(u"inplace"_s))
        return AnswerInPlace();
    const bool isAccepted = m_visit.form.value(u"act"_s) != u"deny";
    QStringList said;
    for (const QString& id : ValuesOf(m_visit.request.body, u"request"_s)) {
        const auto answer = AnswerRequest(m_visit, id.toLongLong(), isAccepted);
        said += answer.value_or(u"One of them doesn't answer."_s);
    }
    return List(said);
}

Response RequestListVisit::AnswerInPlace() {
    const qint64 id = m_visit.form.value(u"request"_s).toLongLong();
    const auto said = AnswerRequest(m_visit, id, m_visit.form.value(u"act"_s) != u"deny");
    Response response;
    if (!said)
        response.fault = Response::Fault::Hang;
    else if (m_visit.world.incoming.answers.Of(id).word == "slow"_L1)
        response.fault = Response::Fault::Slow;
    response.delayMs = response.fault == Response::Fault::Slow ? slowMs : 0;
    response.body =
        Fill(u"<html><body><p id=\"said\">{said}</p></body></html>", {{u"said", said.value_or(QString())}})
            .toUtf8();
    return response;
}

Response RequestListVisit::List(const QStringList& said) {
    QString notes;
    for (const QString& line : said)
        notes += Fill(u"<p class=\"warn\">{line}</p>", {{u"line", line}});
    const QList<qint64> waiting = m_visit.world.incoming.Of(m_visit.account->id);
    const QString main =
        Fill(uR"(<div class="box list"><h2>Friend Requests</h2><div class="in" id="notes">{!notes}</div>
{!body}</div>{!scripts})",
             {{u"notes", notes},
              {u"body", waiting.isEmpty() ? Nothing() : Body(waiting)},
              {u"scripts", RequestScripts()}});
    return Framed(m_visit, {.title = u"Friend Requests"_s, .main = main, .tab = {}});
}

QString RequestListVisit::Nothing() const {
    return m_design.older && !m_design.isSecond
               ? u"<p class=\"empty\">You have no requests.</p>"_s
               : u"<p class=\"empty\">There are 0 requests in this folder.</p>"_s;
}

QString RequestListVisit::Body(const QList<qint64>& waiting) {
    RequestPage page = PageOf(m_visit, waiting, Incoming::perPage);
    page.address = m_address + u"&page="_s;
    QString entries;
    for (const qint64 id : page.ids)
        entries += Entry(id);
    const auto how = !m_design.older || m_design.isSecond ? LastLink::PostBack : LastLink::GoToPage;
    return Fill(
        uR"(<form method="post" action="{action}" id="requests" data-pages="{pages}" data-last="{last}">
<input type="hidden" id="multiAct" name="act" value="">{!head}<div class="grid">{!entries}</div>{!foot}</form>
<form method="post" action="{action}" id="answerForm"><input type="hidden" name="request" id="answerNumber" value="">
<input type="hidden" id="answerAct" name="act" value=""><input type="hidden" name="inPlace" value="1"></form>
{!pager})",
        {{u"action", m_address},
         {u"pages", page.address},
         {u"last", QString::number(page.pages)},
         {u"head", Head(page)},
         {u"entries", entries},
         {u"foot", Foot()},
         {u"pager", RequestPager(page, m_design.hasLastLink ? how : LastLink::None)}});
}

QString RequestListVisit::Head(const RequestPage& page) const {
    const QString caption = m_design.isSecond ? u"Check/Uncheck All"_s
                            : m_design.older  ? u"All"_s
                                              : u"Select all"_s;
    return Fill(uR"-(<div class="listHead"><p class="slice">{slice}</p><p class="check">
<input type="checkbox" id="{id}" onclick="tickAll(this)" data-on-click="{clicks}"><label for="{id}">{caption}</label></p></div>)-",
                {{u"slice", page.Slice()},
                 {u"id", m_design.older ? u"chktop"_s : u"selectAll"_s},
                 {u"clicks", ClicksOnAll(page)},
                 {u"caption", caption}});
}

QString RequestListVisit::Who(const Person* person) {
    if (!person)
        return u"<div class=\"person\"><span>This profile no longer exists</span></div>"_s;
    m_visit.Show(*person, m_design.older || m_design.hasNumbers);
    return m_design.older ? NumberedEntry(*person) : NamedEntry(*person);
}

QString RequestListVisit::Entry(qint64 id) {
    const Person* person = m_visit.world.people.Find(id);
    return m_design.older ? OlderEntry(id, person) : NewerEntry(id, person);
}

// Without scripts the answer is sent beside the page, and what the site will say is put there.
QString RequestListVisit::ActsFor(const QString& act, qint64 id) const {
    const QString send =
        u"set #answerNumber value %1; set #answerAct value %2; send #answerForm"_s.arg(id).arg(act);
    const auto said = SaidBy(m_visit, id, act == u"accept");
    const QString after = IsSlow(m_visit, id) ? u"%1ms"_s.arg(slowMs) : u"300ms"_s;
    return said ? send + u"; after %1 set #acts%2 innertext %3"_s.arg(after).arg(id).arg(*said) : send;
}

QString RequestListVisit::Button(const QString& caption, const QString& act, qint64 id) const {
    return Fill(uR"-(<button type="button" class="{class}" onclick="answerRequest(this, {id}, '{act}')"
 data-on-click="{acts}">{caption}</button>)-",
                {{u"class", act == u"accept" ? u"button"_s : u"button plain"_s},
                 {u"id", QString::number(id)},
                 {u"act", act},
                 {u"acts", ActsFor(act, id)},
                 {u"caption", caption}});
}

QString RequestListVisit::Span(const QString& caption, const QString& act, qint64 id) const {
    return Fill(
        uR"-(<span class="link" onclick="answerRequest(this, {id}, '{act}')" data-on-click="{acts}">{caption}</span>)-",
        {{u"id", QString::number(id)}, {u"act", act}, {u"acts", ActsFor(act, id)}, {u"caption", caption}});
}

// Readers of the page take the number from between the commas.
QString RequestListVisit::NewerEntry(qint64 id, const Person* person) {
    const QString number = QString::number(id);
    const QString mode = m_design.hasNumbers ? u"FriendRequest,%1,1"_s.arg(id) : u"FriendRequest"_s;
    const QString buttons = Button(u"Accept"_s, u"accept"_s, id) + u' ' + Button(u"Deny"_s, u"deny"_s, id);
    return Fill(
        uR"(<div class="request"><input type="checkbox" id="request{id}" name="request" value="{id}" mode="{mode}">
{!who}<p class="acts" id="acts{id}">{!buttons}</p></div>)",
        {{u"id", number},
         {u"mode", mode},
         {u"who", Who(person)},
         {u"buttons", m_design.hasButtons ? buttons : QString()}});
}

QString RequestListVisit::OlderEntry(qint64 id, const Person* person) {
    const QString approve = person ? Span(u"Approve"_s, u"accept"_s, id) + u" | "_s : QString();
    const QString updates = Fill(
        uR"(<p class="check"><input type="checkbox" id="subscribe{id}" name="subscribe" value="{id}"{!ticked}><label for="subscribe{id}">Updates</label></p>)",
        {{u"id", QString::number(id)}, {u"ticked", id % 2 == 0 ? u" checked"_s : QString()}});
    return Fill(uR"(<div class="request"><input type="checkbox" id="request{id}" name="request" value="{id}">
{!who}<p class="acts" id="acts{id}">{!approve}{!deny}</p>{!updates}</div>)",
                {{u"id", QString::number(id)},
                 {u"who", Who(person)},
                 {u"approve", approve},
                 {u"deny", Span(u"Deny"_s, u"deny"_s, id)},
                 {u"updates", person ? updates : QString()}});
}

// Those of the older pages act on whoever is ticked.
QString RequestListVisit::Foot() const {
    if (!m_design.older)
        return {};
    const QString button =
        uR"-(<input type="button" class="button" name="ctl00$cpMain$approvesButton" value="Approve"
 onclick="requestlist.ProcessMultiAction('approve')" data-on-click="set #multiAct value approve; submit #requests">)-"_s;
    return Fill(uR"-(<p class="more"><span id="{id}">{!button}</span>
<input type="button" class="button plain" name="ctl00$cpMain$deniesButton" value="Deny"
 onclick="requestlist.ProcessMultiAction('deny')" data-on-click="set #multiAct value deny; submit #requests"></p>
<i data-on-script="requestlist.ProcessMultiAction('approve')" data-do="set #multiAct value approve; submit #requests"></i>)-",
                {{u"id", m_design.isSecond ? u"approveAll"_s : u"spanapprovebottom"_s},
                 {u"button", m_design.hasButtons ? button : QString()}});
}

const RequestListDesign& DesignOf(const Visit& visit, bool older) {
    const auto designs = RequestListDesigns();
    const RequestListDesign* wanted = FormNamed(designs, visit.world.incoming.FormOf(visit.account->id));
    if (wanted && wanted->older == older)
        return *wanted;
    return *std::ranges::find(designs, older, &RequestListDesign::older);
}

QString OlderAddress(const QString& action) {
    return Url(Role::Messaging, u"/index.cfm?fuseaction=%1&viewall=1"_s.arg(action));
}

} // namespace

Response IncomingNew(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return RequestListVisit(visit, DesignOf(visit, false),
                            Url(Role::SiteRoot, u"/my/requests/friendrequest?viewall=1"_s))
        .Respond();
}

Response IncomingOld(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const RequestListDesign& design = DesignOf(visit, true);
    if (design.isSecond)
        return Redirect(OlderAddress(u"mail.friendRequests"_s));
    return RequestListVisit(visit, design, OlderAddress(u"mail.friendRequestsV3"_s)).Respond();
}

Response IncomingSecond(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return RequestListVisit(visit, *FormNamed(RequestListDesigns(), u"older-second"_s),
                            OlderAddress(u"mail.friendRequests"_s))
        .Respond();
}

} // namespace qlm::practice
