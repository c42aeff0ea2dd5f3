// SPDX-License-Identifier: MIT
#include "CommentForms.h"

#include "../FormChoice.h"
#include "../Frame.h"
#include "../Html.h"
#include "CommentVisit.h"
#include "NoticePages.h"

namespace qlm::practice {

namespace {

using After = CommentDesign::After;
using Way = Answer::Way;

const QString plainBox = u"commentText"_s;

class CommentFormVisit : CommentVisit {
public:
    CommentFormVisit(Visit& visit, qint64 target) : CommentVisit(visit, target, Design::Older) {}

    Response Respond();

private:
    std::optional<Response> Refusal();
    Response Form(const CommentDesign& design, const QString& warning);
    QString Fields(const CommentDesign& design) const;
    QString SentText() const;
    Response Take(const QString& text);
    Response Confirmed();
    Response Confirmation(int round, bool isWrong = false);
    QString ConfirmButton() const;
    Response End(const QString& text) { return Notice(m_visit, m_title, Arrive(text)); }
};

Response CommentFormVisit::Respond() {
    if (auto refusal = Refusal())
        return *refusal;
    if (m_visit.IsPost() && m_visit.form.contains(u"round"_s))
        return Confirmed();
    const QString box = m_design.box.toString().toLower();
    if (!m_visit.IsPost() || !m_visit.form.contains(box))
        return Form(m_design, {});
    const QString text = SentText();
    if (!text.trimmed().isEmpty())
        return Take(text);
    Write(u"blank"_s);
    return Form(m_design, u"You can't enter a blank comment."_s);
}

std::optional<Response> CommentFormVisit::Refusal() {
    if (!m_person)
        return Say(u"invalid"_s, u"Invalid friend ID."_s);
    if (auto refusal = NumberedRefusal())
        return refusal;
    if (LimitReached())
        return Say(u"limit"_s, u"It seems like you're flooding comments. Please wait until tomorrow."_s);
    if (m_answer.way == Way::RefusedBefore)
        return RefuseBy(m_answer);
    return std::nullopt;
}

// An editor's page keeps a plain box below for people who take no markup, and a field that is filled in late.
QString CommentFormVisit::Fields(const CommentDesign& design) const {
    QString fields = EditorMarkup(design.editor, design.box.toString(), Breaks::Br);
    if (design.editor == Editor::Source)
        fields +=
            Fill(uR"(<textarea id="{n}" name="{n}" rows="9" cols="60"{!hidden}></textarea>)",
                 {{u"n", plainBox}, {u"hidden", TakesNoHtml() ? QString() : u" style=\"display: none\""_s}});
    const QString mark =
        Fill(uR"(<input type="hidden" id="{n}" name="{n}" value="">)", {{u"n", design.mark.toString()}});
    if (!design.lateMark)
        return fields + (design.mark.isEmpty() ? QString() : mark);
    return fields + Fill(uR"(<span id="late" data-on-load="after 2s append #late {mark}"
 data-field="{mark}"></span>)",
                         {{u"mark", mark}});
}

Response CommentFormVisit::Form(const CommentDesign& design, const QString& warning) {
    const QString id = QString::number(m_target);
    const QString buttons =
        design.buttons.isEmpty()
            ? u"<input type=\"submit\" class=\"button\" name=\"postComment\" value=\"Post A Comment\">"_s
            : Fill(design.buttons, {{u"image", Url(Role::SiteRoot, u"/style/post.svg"_s)}});
    const QString main = Fill(
        uR"-(<div class="box notice compose"><h2>Post A Comment About {name}</h2>
<div class="in">{!warning}{!html}<form method="post" action="{action}" id="commentForm" data-focus="{box}">
{!fields}<p class="go">{!buttons}</p></form>
<ul class="links"><li><a href="{profile}">Back to the profile</a></li></ul></div></div>{!scripts})-",
        {{u"name", m_person->name},
         {u"warning",
          warning.isEmpty() ? QString() : Fill(u"<p class=\"warn\">{warning}</p>", {{u"warning", warning}})},
         {u"html", TakesNoHtml() ? u"<p>This user disables HTML comments.</p>"_s : QString()},
         {u"action", u"http://"_s + m_visit.FullAddress()},
         {u"box", design.box.toString()},
         {u"fields", Fields(design)},
         {u"buttons", buttons},
         {u"profile", Url(Role::Profile, u"/index.cfm?fuseaction=user.viewprofile&friendID="_s + id)},
         {u"scripts", FormScripts()}});
    return Framed(m_visit, {.title = m_title, .main = main, .tab = {}, .shownId = m_target});
}

QString CommentFormVisit::SentText() const {
    if (m_design.editor != Editor::Plain && TakesNoHtml())
        return m_visit.form.value(plainBox.toLower());
    return EditorText(m_design.editor, m_design.box.toString(), m_visit.form);
}

Response CommentFormVisit::Take(const QString& text) {
    if (m_answer.way == Way::RefusedAfter)
        return RefuseBy(m_answer);
    if (m_answer.way == Way::Home)
        return Home();
    if (m_design.after == After::Back) {
        Write(u"back"_s);
        const bool isPlain = m_design.editor == Editor::Plain;
        return Form(*FormNamed(CommentDesigns(), isPlain ? u"editor"_s : u"write"_s),
                    u"Something went wrong, please try again."_s);
    }
    if (m_design.after == After::Posted && !AsksForWord())
        return End(text);
    Hold(AsksForWord() ? u"captcha"_s : u"confirm"_s, {{}, text, AsksForWord()});
    return Confirmation(1);
}

Response CommentFormVisit::Confirmed() {
    const auto held = m_writing.Held(m_sender, m_target);
    if (!held)
        return Form(m_design, u"There is nothing to confirm."_s);
    const Typed word = TypedWord();
    if (held->waitsForWord && word != Typed::Right)
        return Confirmation(1, word == Typed::Wrong);
    if (m_design.after == After::ConfirmTwice && m_visit.form.value(u"round"_s) == u"1") {
        Hold(u"confirm"_s, {{}, held->body});
        return Confirmation(2);
    }
    return End(held->body);
}

// Without scripts the sleeping button is put in place of itself.
QString CommentFormVisit::ConfirmButton() const {
    const QString input =
        u"<input type=\"submit\" class=\"button\" id=\"confirmButton\" name=\"confirmComment\" "
        u"value=\"Post A Comment\"%1>"_s;
    if (m_design.after == After::ConfirmButton)
        return u"<button class=\"button\" name=\"confirmComment\">Post A Comment</button>"_s;
    if (m_design.after != After::ConfirmAsleep)
        return input.arg(QString());
    return Fill(
        uR"(<span id="asleep" data-on-load="after 6s remove #confirmButton; after 6s append #asleep {awake}">
{!input}</span>)",
        {{u"awake", input.arg(QString())}, {u"input", input.arg(u" disabled"_s)}});
}

Response CommentFormVisit::Confirmation(int round, bool isWrong) {
    const Text held = *m_writing.Held(m_sender, m_target);
    const QString main = Fill(
        uR"(<div class="box notice"><h2>Confirm your comment</h2><div class="in">
<p>This is what {name} will get:</p><p class="quote">{text}</p>
<p>Click the button below to confirm.</p>
<form method="post" action="{action}" id="confirmForm"><input type="hidden" name="round" value="{round}">{!word}
<p class="go">{!button}</p></form></div></div>{!scripts})",
        {{u"name", m_person->name},
         {u"text", held.body},
         {u"action",
          Url(Role::Comment, u"/index.cfm?fuseaction=user.confirmComment&friendID=%1"_s.arg(m_target))},
         {u"round", QString::number(round)},
         {u"word", held.waitsForWord ? CaptchaFields(m_visit, m_target, Design::Older, isWrong) : QString()},
         {u"button", ConfirmButton()},
         {u"scripts", FormScripts()}});
    return Framed(m_visit, {.title = m_title, .main = main, .tab = {}});
}

} // namespace

Response CommentForm(Visit& visit) {
    if (!visit.account)
        return RedirectToSignIn();
    return CommentFormVisit(visit, visit.address.query.value(u"friendid"_s).toLongLong()).Respond();
}

} // namespace qlm::practice
