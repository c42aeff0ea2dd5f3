// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "campaigns/CommentBox.h"
#include "campaigns/Commenter.h"
#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "campaigns/TargetName.h"
#include "core/App.h"
#include "steps/Steps.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PageSeconds = 25;
constexpr int BoxSeconds = 60;
constexpr int TypingSeconds = 10;
constexpr int SettledPageSeconds = 1;
const QString Prompt = u"post a comment..."_s;
const QString Caller = u"SubmitComment"_s;

struct Refusal {
    const char16_t* says;
    const char16_t* why; // for the report
};

const std::vector<Refusal>& Refusals() {
    static const std::vector<Refusal> rows{
        {u"we are unable to add your comment at this time", u"The site could not add the comment"},
        {u"You can't enter a blank comment", u"The site takes no blank comment"},
    };
    return rows;
}

// Why nothing was posted; empty when the page doesn't refuse it.
QString RefusalOnPage(PageSigns& page) {
    for (const Refusal& refusal : Refusals())
        if (page.IsTextInPage(QString::fromUtf16(refusal.says)))
            return QString::fromUtf16(refusal.why);
    return {};
}

} // namespace

Next Commenter::SubmitBox() {
    PageSigns& page = m_app.Get<PageSigns>();
    m_app.SetStatus(u"Waiting for comment page to finish loading..."_s);
    page.WaitForDocument();
    if (!m_app.waiting.WaitWhile([&page] { return !page.IsTextInPage(Prompt); }, PageSeconds))
        return SkipTarget(u"The page shows no box for a comment"_s);
    const std::optional<QString> text = TextOfTarget();
    if (!text)
        return GiveTargetUp({}, Caller);
    if (!WaitForGrownBox())
        return GiveTargetUp(u"The box for the comment did not open"_s, Caller);
    if (!m_app.Get<SendRuns>().IsOnSite())
        return LeaveStranger();
    m_app.SetStatus(u"Posting comment..."_s);
    if (page.IsTextInPage(u"you must be a friend to post a comment"_s))
        return GiveTargetUp(u"Only friends may comment on this profile"_s, Caller);
    TypeIntoBox(*text);
    if (page.IsTextInPage(u"HTML not allowed"_s)) {
        m_app.SetStatus(u"Posting non-HTML comment..."_s);
        const std::optional<QString>& nonHTML = m_target.comment->nonHTML;
        if (!nonHTML)
            return SkipTarget(u"The profile takes no HTML in comments"_s);
        const Document document = m_app.WebBrowser1().Document();
        WriteIntoBox(FindCommentBox(document),
                     ReplaceTargetName(m_app, *nonHTML, document.BodyHTML(), u"Comment"_s));
    }
    return PressPost();
}

// It grows when it gets the focus.
bool Commenter::WaitForGrownBox() {
    const auto box = [this] { return FindCommentBox(m_app.WebBrowser1().Document()); };
    if (!m_app.waiting.WaitWhile([&box] { return !box(); }, BoxSeconds))
        return false;
    box().Focus();
    return m_app.waiting.WaitWhile([&box] { return !HasGrown(box()); }, BoxSeconds);
}

// The page shows its prompt in the box until it has heard of a text.
void Commenter::TypeIntoBox(const QString& text) {
    m_app.waiting.WaitWhile(
        [&] {
            WriteIntoBox(FindCommentBox(m_app.WebBrowser1().Document()), text);
            return m_app.Get<PageSigns>().IsTextInPage(Prompt);
        },
        TypingSeconds);
    m_app.waiting.WaitSeconds(SettledPageSeconds);
}

Next Commenter::PressPost() {
    const Document document = m_app.WebBrowser1().Document();
    const QString typed = FindCommentBox(document).Value();
    const Element button = FindPostButton(document);
    if (!button)
        return GiveTargetUp(u"The page has no button that posts"_s, Caller);
    if (!m_app.Get<SendRuns>().NoteBeforeSend())
        return Next::Wait;
    const int pressed = button.Node();
    m_target.isPressed = true;
    Diagnostics::IgnoreErrors([&button] { button.Click(); });
    WaitForAnswer();
    PageSigns& page = m_app.Get<PageSigns>();
    if (RefusalOnPage(page).isEmpty() && !IsPosted())
        PressPostAgain(typed, pressed);
    if (const QString why = RefusalOnPage(page); !why.isEmpty())
        return GiveTargetUp(why, Caller);
    return TakePosted();
}

// Of a text with markup the site asks once more. An empty box has been posted.
void Commenter::PressPostAgain(const QString& typed, int pressed) {
    const Document document = m_app.WebBrowser1().Document();
    const Element box = FindCommentBox(document);
    const Element button = FindPostButton(document, pressed);
    if (!HoldsMarkup(box ? box.Value() : typed) || !button)
        return;
    button.Click();
    WaitForAnswer();
}

void Commenter::WaitForAnswer() {
    m_app.waiting.WaitSeconds(SettledPageSeconds);
    if (m_app.Get<PageSigns>().IsCaptchaPage())
        AwaitCaptchaAnswer();
}

Next Commenter::TakePosted() {
    LogPress();
    if (!IsLogged())
        RunningLog(m_app).WithdrawNote();
    CountOnce();
    if (LimitIsMet())
        return Next::Wait;
    m_app.state.intComStep = CommentStep::AfterSend;
    LookAgain();
    return Next::Again;
}

} // namespace qlm
