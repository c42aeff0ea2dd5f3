// SPDX-License-Identifier: MIT
#include "RequestPages.h"

#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "../Refusals.h"
#include "CaptchaPages.h"
#include "NoticePages.h"

#include <algorithm>
#include <stdexcept>

namespace qlm::practice {

namespace {

// One request page visit: who asks whom, in which design.
class RequestVisit {
public:
    RequestVisit(Visit& visit, qint64 target, Design design)
        : m_visit(visit),
          m_requests(visit.world.requests),
          m_asker(visit.account->id),
          m_target(target),
          m_design(design),
          m_person(visit.world.people.Find(target)) {}

    Response Answer();

private:
    Response Say(const QString& word, const QString& title, const QString& text);
    void Write(const QString& word);
    std::optional<Response> Refusal();
    std::optional<Response> Captcha();
    Response Refuse(Outcome outcome);
    Response Divert(Outcome outcome);
    Response Form();
    Response Send(bool throughError);
    bool Odd() const { return m_target % 2 != 0; }
    QDate Today() const { return m_visit.world.now().date(); }

    Visit& m_visit;
    FriendRequests& m_requests;
    qint64 m_asker;
    qint64 m_target;
    Design m_design;
    const Person* m_person;
};

void RequestVisit::Write(const QString& word) {
    m_visit.world.journal.Write(u"request %1 %2 %3"_s.arg(m_asker).arg(m_target).arg(word));
}

Response RequestVisit::Say(const QString& word, const QString& title, const QString& text) {
    Write(word);
    return Notice(m_visit, title, text);
}

Response RequestVisit::Answer() {
    if (auto refusal = Refusal())
        return *refusal;
    if (auto captcha = Captcha())
        return *captcha;
    const Outcome nature = m_requests.NatureOf(m_target);
    if (nature == Outcome::HomeRedirect || nature == Outcome::InboxRedirect)
        return Divert(nature);
    if (nature != Outcome::Sent && nature != Outcome::Captcha && nature != Outcome::ErrorRedirect)
        return Refuse(nature);
    if (m_design == Design::Older && !m_visit.IsPost())
        return Form();
    return Send(nature == Outcome::ErrorRedirect);
}

// What comes before any question of the target's nature.
std::optional<Response> RequestVisit::Refusal() {
    if (!m_person)
        return Say(u"invalid"_s, u"Add to Friends"_s, u"Invalid friend ID."_s);
    if (m_target == m_asker)
        return Say(u"self"_s, u"Add to Friends"_s, u"Sorry, you cannot add yourself as a friend."_s);
    if (m_visit.world.incoming.AreFriends(m_asker, m_target))
        return Refuse(Outcome::Already);
    if (m_requests.WasAsked(m_asker, m_target)) {
        m_visit.world.journal.Write(u"asked-again %1 %2"_s.arg(m_asker).arg(m_target));
        return Say(u"pending"_s, u"Add to Friends"_s,
                   u"You already have a pending friend request for this person."_s);
    }
    if (m_requests.LimitReached(m_asker, Today()))
        return Refuse(Outcome::Limit);
    if (const int number = m_requests.RefusalOf(m_target); number != 0)
        return Say(u"refused-%1"_s.arg(number), u"Add to Friends"_s, RefusalText(number, m_person->name));
    return std::nullopt;
}

std::optional<Response> RequestVisit::Captcha() {
    const QString intro = u"%1 would like to know that you are a person."_s.arg(m_person->name);
    const auto answer = SentAnswer(m_visit);
    if (m_visit.IsPost() && answer && m_requests.CaptchaShown(m_asker, m_target)) {
        if (m_requests.AnswerCaptcha(m_asker, m_target, *answer))
            return std::nullopt;
        Write(u"captcha-wrong"_s);
        return CaptchaPage(m_visit, m_target, m_design, intro, true);
    }
    if (m_requests.NatureOf(m_target) != Outcome::Captcha && !m_visit.captchaForced)
        return std::nullopt;
    Write(OutcomeName(Outcome::Captcha));
    return CaptchaPage(m_visit, m_target, m_design, intro, false);
}

// Where the site has two wordings for a refusal, the target's number decides which one it uses.
Response RequestVisit::Refuse(Outcome outcome) {
    const QString word = OutcomeName(outcome);
    const QString title = u"Add to Friends"_s;
    const QString name = m_person->name;
    switch (outcome) {
    case Outcome::Already:
        return Say(word, title,
                   Odd() ? u"This person is already your friend."_s : name + u" is already your friend."_s);
    case Outcome::Pending:
        return Say(word, title,
                   Odd() ? u"You already have a pending friend request for this person."_s
                         : u"You already have a pending friend request for %1."_s.arg(name));
    case Outcome::Private:
        return Say(word, title, name + u" only accepts add requests from people they know."_s);
    case Outcome::Band:
        return Say(word, title, name + u" doesn't accept friend requests from bands."_s);
    case Outcome::Disabled:
        return Say(word, title, u"This user's profile has been temporarily disabled."_s);
    case Outcome::Limit:
        Write(word);
        return DailyLimitPage(m_visit, true);
    case Outcome::ServerError:
        if (Odd()) {
            Write(word);
            return ServerErrorPage(m_visit);
        }
        return Say(word, title, u"An application error occurred on the server."_s);
    case Outcome::Sent:
    case Outcome::Captcha:
    case Outcome::ErrorRedirect:
    case Outcome::HomeRedirect:
    case Outcome::InboxRedirect:
        break;
    }
    throw std::logic_error("not a refusal");
}

// The site loses its way and shows another page of the asker's own; nobody is asked.
Response RequestVisit::Divert(Outcome outcome) {
    Write(OutcomeName(outcome));
    return Redirect(outcome == Outcome::HomeRedirect
                        ? Url(Role::Home, u"/index.cfm?fuseaction=home"_s)
                        : Url(Role::Messaging, u"/index.cfm?fuseaction=mail.inbox"_s));
}

Response RequestVisit::Form() {
    const QString box = Fill(uR"(<div class="box notice"><h2>Add to Friends</h2><div class="in">
<div class="badgeRow"><img class="portrait" src="{picture}" width="120" height="120" alt=""><div>
<p>Do you want to add <b>{name}</b> as a friend?</p><p>{first} has to say yes before you two are friends.</p>
<form method="post" action="{action}" id="addFriendForm">
<p class="go"><input type="submit" class="button" id="addFrdBtn" name="addFrdBtn" value="Add to Friends">
</p></form>
</div></div></div></div>)",
                             {{u"picture", PictureUrl(*m_person)},
                              {u"name", m_person->name},
                              {u"first", FirstName(*m_person)},
                              {u"action", u"http://"_s + m_visit.FullAddress()}});
    return Framed(m_visit, {.title = u"Add to Friends"_s, .main = box, .tab = {}});
}

Response RequestVisit::Send(bool throughError) {
    Write(throughError ? OutcomeName(Outcome::ErrorRedirect) : OutcomeName(Outcome::Sent));
    m_requests.MarkAsked(m_asker, m_target, Today());
    if (m_visit.world.accounts.IsMember(m_target))
        m_visit.world.incoming.Add(m_target, m_asker);
    m_visit.world.journal.Write(u"asked %1 %2"_s.arg(m_asker).arg(m_target));
    if (throughError)
        return Redirect(Url(Role::SiteRoot, u"/error.aspx"_s));
    return Notice(m_visit, u"Request Sent!"_s,
                  u"Your friend request to %1 has been sent. Now it is up to them."_s.arg(m_person->name));
}

} // namespace

Response AddToFriends(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return RequestVisit(visit, visit.captures.value(0).toLongLong(), Design::Newer).Answer();
}

Response AddFriendVerify(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return RequestVisit(visit, visit.address.query.value(u"friendid"_s).toLongLong(), Design::Older).Answer();
}

} // namespace qlm::practice
