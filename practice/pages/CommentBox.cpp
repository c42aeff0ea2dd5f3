// SPDX-License-Identifier: MIT
#include "CommentBox.h"

#include "../Html.h"
#include "../MiniProfile.h"
#include "CommentVisit.h"

namespace qlm::practice {

namespace {

using Way = Answer::Way;

const QString forFriends = u"You must be a friend to post a comment."_s;

QString Notice(const QString& text) {
    return u"<p class=\"warn\">"_s + Escape(text) + u"</p>"_s;
}

class CommentBoxVisit : CommentVisit {
public:
    CommentBoxVisit(Visit& visit, qint64 target) : CommentVisit(visit, target, Design::Newer) {}

    CommentBox Respond();

private:
    CommentBox Take(const QString& text);
    CommentBox Box(const QString& notice, const QString& text = {}, bool isHtmlAllowed = false) const;
    CommentBox Refuse(const QString& outcome, const QString& notice);
    CommentBox End(const QString& text) { return Box(Arrive(text)); }
    CommentBox Captcha(bool isWrong);
    QString Entry(const QString& text) const;
    bool IsForFriends() const { return m_answer.word == "friends-only"_L1; }
};

CommentBox CommentBoxVisit::Respond() {
    if (auto refusal = NumberedRefusal())
        return {*refusal, {}};
    if (m_answer.way == Way::RefusedBefore && !IsForFriends())
        return {std::nullopt, Notice(TextOf(m_answer, m_person->name))};
    const auto held = m_writing.Held(m_sender, m_target);
    if (const Typed word = TypedWord(); word == Typed::Wrong)
        return Captcha(true);
    else if (word == Typed::Right)
        return End(held->body);
    if (!m_visit.IsPost() || !m_visit.form.contains(u"newcomment"_s))
        return Box(IsForFriends() ? forFriends : QString());
    const QString text = m_visit.form.value(u"newcomment"_s);
    if (m_visit.form.contains(u"preview"_s))
        return Box(u"This is how it reads: "_s + text, text);
    return Take(text);
}

CommentBox CommentBoxVisit::Refuse(const QString& outcome, const QString& notice) {
    Write(outcome);
    return Box(notice);
}

CommentBox CommentBoxVisit::Take(const QString& text) {
    const QString unable = u"Sorry, we are unable to add your comment at this time."_s;
    if (IsForFriends())
        return Refuse(m_answer.word, forFriends);
    if (LimitReached())
        return Refuse(u"limit"_s, unable);
    if (text.trimmed().isEmpty())
        return Refuse(u"blank"_s, u"You can't enter a blank comment."_s);
    if (m_answer.way == Way::RefusedAfter)
        return Refuse(m_answer.word, TextOf(m_answer, m_person->name));
    if (m_answer.way == Way::Home)
        return {Home(), {}};
    if (HoldsMarkup(text) && !TakesNoHtml() && !m_visit.form.contains(u"html"_s)) {
        Write(u"html"_s);
        return Box(u"Your comment holds HTML. Press once more if that is meant so."_s, text, true);
    }
    if (!AsksForWord())
        return End(text);
    Hold(u"captcha"_s, {{}, text, true});
    return Captcha(false);
}

CommentBox CommentBoxVisit::Captcha(bool isWrong) {
    return {CaptchaPage(m_visit, m_target, Design::Newer, u"Your comment to %1 waits."_s.arg(m_person->name),
                        isWrong),
            {}};
}

// The hint is text of the page and lies on the box while that is empty. With a text the box has grown
// already.
QString CommentBoxVisit::Entry(const QString& text) const {
    const bool isFilled = !text.isEmpty();
    const QString onLoad = u" data-on-load=\"after 300ms set #entry class entry absolute\""_s;
    const QString onInput =
        TakesNoHtml() ? u"hide #hint; set #note innertext HTML not allowed"_s : u"hide #hint"_s;
    return Fill(uR"(<div class="{class}" id="entry" data-grows="{grows}"{!load}>
<span class="hint" id="hint"{!hidden}>Post a comment...</span>
<textarea id="newComment" name="newComment" rows="4" cols="60" placeholder="Post a comment..."
 data-on-click="set #entry class entry absolute" data-on-input="{input}">
{text}</textarea></div><p id="note" data-no-html="{nohtml}"></p>)",
                {{u"class", isFilled ? u"entry absolute"_s : u"entry"_s},
                 {u"grows", m_design.growsAtOnce ? u"1"_s : QString()},
                 {u"load", m_design.growsAtOnce && !isFilled ? onLoad : QString()},
                 {u"hidden", isFilled ? u" style=\"display: none\""_s : QString()},
                 {u"input", onInput},
                 {u"nohtml", TakesNoHtml() ? u"1"_s : QString()},
                 {u"text", text}});
}

CommentBox CommentBoxVisit::Box(const QString& notice, const QString& text, bool isHtmlAllowed) const {
    const QString markup =
        Fill(uR"(<div class="box compose" id="commentBox"><h2>Write to {name}</h2><div class="in">{!notice}
<div class="badgeRow"><img src="{picture}" alt="Photo of {name}" width="48" height="48">
<form method="post" action="{action}" id="newCommentForm">{!entry}{!html}
<p class="go">{!buttons}</p></form></div></div></div>{!scripts})",
             {{u"name", m_person->name},
              {u"notice", notice.isEmpty() ? QString() : Notice(notice)},
              {u"picture", PictureUrl(*m_person)},
              {u"action", u"http://"_s + m_visit.FullAddress()},
              {u"entry", Entry(text)},
              {u"html", isHtmlAllowed ? u"<input type=\"hidden\" name=\"html\" value=\"ok\">"_s : QString()},
              {u"buttons", m_design.buttons.isEmpty()
                               ? u"<button class=\"button\" name=\"postComment\">Post</button>"_s
                               : m_design.buttons.toString()},
              {u"scripts", FormScripts()}});
    return {std::nullopt, markup};
}

} // namespace

CommentBox BoxForComment(Visit& visit, const Person& owner) {
    if (!visit.account)
        return {};
    return CommentBoxVisit(visit, owner.id).Respond();
}

} // namespace qlm::practice
