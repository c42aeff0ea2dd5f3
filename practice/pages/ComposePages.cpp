// SPDX-License-Identifier: MIT
#include "ComposePages.h"

#include "../ComposeDesigns.h"
#include "../FormChoice.h"
#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "CaptchaPages.h"
#include "NoticePages.h"
#include "WritingVisit.h"

namespace qlm::practice {

namespace {

using Draft = ComposeDesign::Draft;
using Reply = ComposeDesign::Reply;
using Way = Answer::Way;

// Who writes to whom, in which design.
class ComposeVisit : WritingVisit {
public:
    ComposeVisit(Visit& visit, qint64 target, Design layout)
        : WritingVisit(visit, visit.world.messages, u"message"_s, u"Send a Message"_s, target),
          m_layout(layout),
          m_design(ChosenForm(ComposeDesigns(), target, layout == Design::Older, m_writing.FormOf(target))) {}

    Response Respond();

private:
    std::optional<Response> Refusal();
    Response Form(const QString& warning, const Text& text);
    QString Recipient() const;
    QString Buttons() const;
    bool IsSent() const;
    Text Sent() const;
    Response Take(const Text& text);
    Response Arrive(const Text& text);
    Response Captcha(bool isWrong);

    Design m_layout;
    const ComposeDesign& m_design;
};

Response ComposeVisit::Respond() {
    if (auto refusal = Refusal())
        return *refusal;
    const auto held = m_writing.Held(m_sender, m_target);
    if (const Typed word = TypedWord(); word == Typed::Wrong)
        return Captcha(true);
    else if (word == Typed::Right)
        return m_answer.way == Way::CaptchaHome ? Home() : Arrive(*held);
    if (!IsSent())
        return Form({}, {});
    const Text text = Sent();
    if (m_visit.form.contains(u"savedraft"_s))
        return Say(u"draft"_s, u"Your draft has been saved."_s);
    if (m_visit.form.contains(u"preview"_s))
        return Form(u"This is how it reads: "_s + text.body, text);
    if (!text.body.trimmed().isEmpty())
        return Take(text);
    Write(u"empty"_s);
    return Form(u"Please enter a message."_s, text);
}

// What comes before any form.
std::optional<Response> ComposeVisit::Refusal() {
    if (m_visit.world.accounts.HasNoMail(m_sender)) {
        Write(u"no-mail"_s);
        return Redirect(Url(Role::Messaging, u"/index.cfm?fuseaction=mailsetup.createaccount"_s));
    }
    if (!m_person)
        return Say(u"invalid"_s, u"Invalid user. There is nobody to send a message to."_s);
    if (m_target == m_sender)
        return Say(u"self"_s, u"Sorry, you can't send a message to yourself."_s);
    if (auto refusal = NumberedRefusal())
        return refusal;
    if (LimitReached()) {
        Write(u"limit"_s);
        return DailyLimitPage(m_visit, false);
    }
    if (m_answer.way == Way::RefusedBefore)
        return RefuseBy(m_answer);
    return std::nullopt;
}

// Readers of the page find the name in the box "toBox": in the old layout as text, in the new one beside a
// picture.
QString ComposeVisit::Recipient() const {
    if (m_layout == Design::Older)
        return Fill(uR"(<p id="toBox"><label>To:</label> <span class="rcptText">{name}</span></p>)",
                    {{u"name", m_person->name}});
    return Fill(
        uR"(<div id="toBox" class="badgeRow"><img src="{picture}" alt="{name}" width="48" height="48"><p>To {name}</p></div>)",
        {{u"picture", PictureUrl(*m_person)}, {u"name", m_person->name}});
}

// A late draft button must not stand in the page's markup before its time, not even in a script.
QString ComposeVisit::Buttons() const {
    const QString send =
        m_design.buttons.isEmpty()
            ? u"<input type=\"submit\" class=\"button\" name=\"sendButton\" value=\"Send\">"_s
            : m_design.buttons.toString();
    switch (m_design.draft) {
    case Draft::There:
        return send +
               u" <input type=\"submit\" class=\"button plain\" name=\"saveDraft\" value=\"Save Draft\">"_s;
    case Draft::Late:
        return send +
               uR"-( <span id="draft" data-on-load="after 2s append #draft &lt;input type=submit class=button name=saveDraft
 value=&quot;Save&amp;#32;Draft&quot;&gt;"></span>
<script>setTimeout(function () {
  document.getElementById("draft").innerHTML =
    '<input type="submit" class="button plain" name="saveDraft" value="Save' + ' Draft">';
}, 2000);</script>)-"_s;
    case Draft::Never:
        break;
    }
    return send;
}

// The page asks whoever leaves it in the middle of a text.
constexpr QStringView guard = u"<script>window.onload = function () { readComposeMessagePage(); };</script>";

Response ComposeVisit::Form(const QString& warning, const Text& text) {
    const QString subject = m_design.subject.toString();
    const QString main = Fill(
        uR"-(<div class="box notice compose"><h2>Send a Message</h2><div class="in">{!warning}
<form method="post" action="{action}" id="composeForm">{!to}
<p><label for="{subject}">Subject:</label> <input type="text" id="{subject}" name="{subject}" value="{typed}"></p>
{!editor}<p class="go">{!buttons}</p></form></div></div>{!scripts}
{!guard})-",
        {{u"warning", warning.isEmpty() ? QString() : u"<p class=\"warn\">"_s + Escape(warning) + u"</p>"_s},
         {u"action", u"http://"_s + m_visit.FullAddress()},
         {u"to", Recipient()},
         {u"subject", subject},
         {u"typed", text.subject},
         {u"editor", EditorMarkup(m_design.editor, m_design.body.toString(), m_design.breaks, text.body)},
         {u"buttons", Buttons()},
         {u"scripts", FormScripts()},
         {u"guard", guard.toString()}});
    return Framed(m_visit, {.title = m_title, .main = main, .tab = {}});
}

bool ComposeVisit::IsSent() const {
    return m_visit.IsPost() && m_visit.form.contains(m_design.subject.toString().toLower());
}

Text ComposeVisit::Sent() const {
    return {m_visit.form.value(m_design.subject.toString().toLower()),
            EditorText(m_design.editor, m_design.body.toString(), m_visit.form)};
}

Response ComposeVisit::Captcha(bool isWrong) {
    return CaptchaPage(m_visit, m_target, m_layout, u"Your message to %1 waits."_s.arg(m_person->name),
                       isWrong);
}

Response ComposeVisit::Take(const Text& text) {
    if (m_answer.way == Way::RefusedAfter)
        return RefuseBy(m_answer);
    if (m_answer.way == Way::Home)
        return Home();
    if (!AsksForWord())
        return Arrive(text);
    Hold(u"captcha"_s, {text.subject, text.body, true});
    return Captcha(false);
}

constexpr QStringView lateReply = uR"-(<div class="box notice"><div class="in"><p id="outcome"
 data-on-load="after 4s set #outcome innertext Your message has been sent.">One moment, please...</p></div></div>
<script>setTimeout(function () {
  document.getElementById("outcome").textContent = "Your message has been sent.";
}, 4000);</script>)-";

// Each layout confirms in its own way.
Response ComposeVisit::Arrive(const Text& text) {
    Deliver(u"sent"_s, u"messaged"_s, {text.subject, text.body});
    const QString done = u"Your message has been sent"_s;
    if (m_design.reply == Reply::Silent)
        return Notice(m_visit, m_title, u"Thank you, that is all."_s);
    if (m_design.reply == Reply::Late)
        return Framed(m_visit, {.title = m_title, .main = lateReply.toString(), .tab = {}});
    if (m_layout == Design::Older)
        return Notice(m_visit, u"Message Sent"_s, done + u"!"_s);
    const QString main =
        Fill(uR"(<div class="box"><div class="in"><p class="status">{done} to {name}.</p>
<ul class="links"><li><a href="{profile}">Back to the profile</a></li></ul></div></div>)",
             {{u"done", done}, {u"name", m_person->name}, {u"profile", ProfileUrl(*m_person)}});
    return Framed(m_visit, {.title = m_title, .main = main, .tab = {}});
}

} // namespace

Response ComposeOld(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return ComposeVisit(visit, visit.address.query.value(u"friendid"_s).toLongLong(), Design::Older)
        .Respond();
}

Response ComposeNew(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return ComposeVisit(visit, visit.address.query.value(u"t"_s).toLongLong(), Design::Newer).Respond();
}

Response CreateMailAccount(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    const QString main = uR"(<div class="box notice"><h2>Set up your mail</h2><div class="in">
<p>Choose a name for your mail before you write to anybody.</p>
<form method="post"><p><label for="mailName">Name:</label> <input type="text" id="mailName" name="mailName"></p>
<p class="go"><input type="submit" class="button" name="createMail" value="Create"></p></form></div></div>)"_s;
    return Framed(visit, {.title = u"Set up your mail"_s, .main = main, .tab = {}});
}

} // namespace qlm::practice
