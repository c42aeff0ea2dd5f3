// SPDX-License-Identifier: MIT
#include "BulletinForm.h"

#include "../FormChoice.h"
#include "../Frame.h"
#include "../Html.h"
#include "CaptchaPages.h"
#include "NoticePages.h"
#include "WritingVisit.h"

namespace qlm::practice {

namespace {

using After = BulletinDesign::After;
using Comments = BulletinDesign::Comments;
using Way = Answer::Way;

class BulletinVisit : WritingVisit {
public:
    explicit BulletinVisit(Visit& visit)
        : WritingVisit(visit, visit.world.bulletins, u"bulletin"_s, u"Post a Bulletin"_s),
          m_design(BulletinDesignOf(visit.world, m_sender)) {}

    Response Respond();

private:
    std::optional<Response> Refusal();
    std::optional<Response> Confirmed();
    Response Form(const QString& warning, const Text& text);
    QString Fields(const Text& text) const;
    Text Sent() const;
    Response Take(const Text& text);
    Response Captcha(bool isWrong);
    Response Confirmation();
    Response Arrive(const Text& text);

    const BulletinDesign& m_design;
};

Response BulletinVisit::Respond() {
    if (auto refusal = Refusal())
        return *refusal;
    if (auto answer = Confirmed())
        return *answer;
    if (!m_visit.IsPost() || !m_visit.form.contains(BodyOf(m_design).toString().toLower()))
        return Form({}, {});
    const Text text = Sent();
    if (m_visit.form.contains(u"discard"_s))
        return Say(u"discarded"_s, u"Your bulletin has been thrown away."_s);
    if (m_visit.form.contains(u"preview"_s))
        return Form(u"This is how it reads: "_s + text.body, text);
    const bool lacksSubject = m_design.hasSubject && text.subject.trimmed().isEmpty();
    if (!lacksSubject && !text.body.trimmed().isEmpty())
        return Take(text);
    Write(u"empty"_s);
    return Form(lacksSubject ? u"Please enter a subject."_s : u"Please enter a bulletin."_s, text);
}

// What comes before any form.
std::optional<Response> BulletinVisit::Refusal() {
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

// A bulletin that waits for a word or for another press.
std::optional<Response> BulletinVisit::Confirmed() {
    const auto held = m_writing.Held(m_sender, m_target);
    if (const Typed word = TypedWord(); word != Typed::Nothing)
        return word == Typed::Wrong ? Captcha(true) : Arrive(*held);
    if (!m_visit.IsPost() || !m_visit.form.contains(u"confirmbulletin"_s))
        return std::nullopt;
    return held && !held->waitsForWord ? Arrive(*held) : Form(u"There is nothing to confirm."_s, {});
}

QString BulletinVisit::Fields(const Text& text) const {
    const QString name = bulletinSubject.toString();
    const QString subject =
        Fill(uR"(<p><label for="{n}">Subject:</label> <input type="text" id="{n}" name="{n}" value="{v}"></p>
)",
             {{u"n", name}, {u"v", text.subject}});
    const QString comments = Fill(
        uR"(<p class="check"><input type="checkbox" id="{n}" name="{n}"{!ticked}><label for="{n}">Friends may
 comment on it</label></p>)",
        {{u"n", bulletinComments.toString()},
         {u"ticked", m_design.comments == Comments::Ticked ? u" checked"_s : QString()}});
    return (m_design.hasSubject ? subject : QString()) +
           EditorMarkup(m_design.editor, BodyOf(m_design).toString(), Breaks::Br, text.body) +
           (m_design.comments == Comments::Missing ? QString() : comments);
}

Response BulletinVisit::Form(const QString& warning, const Text& text) {
    const QString main = Fill(
        uR"(<div class="box notice compose"><h2>Post a Bulletin</h2><div class="in">{!warning}
<p>All your friends will find it on their board for ten days.</p>
<form method="post" action="{action}" id="bulletinForm">
{!fields}<p class="go">{!buttons}</p></form>
<ul class="links"><li><a href="{board}">Bulletin board</a></li><li><a href="{board}/{id}">My posts</a></li></ul>
</div></div>{!scripts})",
        {{u"warning", warning.isEmpty() ? QString() : Fill(u"<p class=\"warn\">{w}</p>", {{u"w", warning}})},
         {u"action", u"http://"_s + m_visit.FullAddress()},
         {u"fields", Fields(text)},
         {u"buttons", m_design.buttons.isEmpty()
                          ? u"<input type=\"submit\" class=\"button\" name=\"postButton\" value=\"Post\">"_s
                          : m_design.buttons.toString()},
         {u"board", Url(Role::SiteRoot, u"/bulletins"_s)},
         {u"id", QString::number(m_sender)},
         {u"scripts", FormScripts()}});
    return Framed(m_visit, {.title = m_title, .main = main, .tab = {}});
}

Text BulletinVisit::Sent() const {
    return {.subject = m_visit.form.value(bulletinSubject.toString().toLower()),
            .body = EditorText(m_design.editor, BodyOf(m_design).toString(), m_visit.form),
            .takesComments = m_visit.form.contains(bulletinComments.toString().toLower())};
}

Response BulletinVisit::Take(const Text& text) {
    if (m_answer.way == Way::RefusedAfter)
        return RefuseBy(m_answer);
    if (m_answer.way == Way::Home)
        return Home();
    Text waiting = text;
    waiting.waitsForWord = AsksForWord();
    if (!waiting.waitsForWord && m_design.after != After::Confirm)
        return Arrive(text);
    Hold(waiting.waitsForWord ? u"captcha"_s : u"confirm"_s, waiting);
    return waiting.waitsForWord ? Captcha(false) : Confirmation();
}

Response BulletinVisit::Captcha(bool isWrong) {
    return CaptchaPage(m_visit, m_target, m_design.older ? Design::Older : Design::Newer,
                       u"Your bulletin waits."_s, isWrong);
}

Response BulletinVisit::Confirmation() {
    const QString main = Fill(uR"(<div class="box notice"><h2>Almost there</h2><div class="in">
<p>Click the button below and your friends can read it.</p><form method="post" action="{action}" id="confirmForm">
<p class="go"><input type="submit" class="button" name="confirmBulletin" value="Post Bulletin"></p></form>
</div></div>)",
                              {{u"action", u"http://"_s + m_visit.FullAddress()}});
    return Framed(m_visit, {.title = m_title, .main = main, .tab = {}});
}

Response BulletinVisit::Arrive(const Text& text) {
    const Post& post = m_visit.world.posts.Add({.kind = Post::Kind::Bulletin,
                                                .author = m_sender,
                                                .subject = text.subject,
                                                .body = text.body,
                                                .when = m_visit.world.now(),
                                                .takesComments = text.takesComments});
    Deliver(u"posted"_s, u"posted-bulletin"_s, {text.subject, text.body},
            u"%1 %2"_s.arg(post.number).arg(post.takesComments ? u"comments"_s : u"no-comments"_s));
    return Notice(m_visit, u"Bulletin"_s,
                  m_design.after == After::Silent ? u"Thank you, that is all."_s
                                                  : u"Your bulletin has been posted!"_s);
}

} // namespace

const BulletinDesign& BulletinDesignOf(const World& world, qint64 account) {
    const BulletinDesign* wanted = FormNamed(BulletinDesigns(), world.bulletins.FormOf(account));
    return wanted ? *wanted : BulletinDesigns().front();
}

Response BulletinForm(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return BulletinVisit(visit).Respond();
}

} // namespace qlm::practice
