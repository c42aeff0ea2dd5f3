// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "campaigns/Campaigns.h"
#include "campaigns/CommentForm.h"
#include "campaigns/Commenter.h"
#include "campaigns/SendRuns.h"
#include "campaigns/TargetName.h"
#include "core/App.h"
#include "steps/RunReport.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <QScopedValueRollback>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString FriendsOnly = u"Only friends may comment on this profile"_s;
constexpr int CompletePageSeconds = 25;
constexpr int EditorSeconds = 10;
constexpr int FriendsOnlyClass = 15;
const QString Flooding = u"It seems like you're flooding comments"_s;
const QString Caller = u"SubmitComment"_s;

bool RefusesHTML(App& app) {
    return app.Get<PageSigns>().IsTextInPage(u"this user disables html comments"_s);
}

} // namespace

Next Commenter::SubmitComment() {
    RunState& state = m_app.state;
    const QScopedValueRollback submitting(state.blnSubmittingComment, true);
    // A check in one of the waits must not find the form anew and come here again.
    state.blnLinkFound = true;
    const bool isNewer = IsNewerPage(m_app);
    if (m_target.isPressed)
        return isNewer ? TakePosted() : AwaitConfirmPage();
    return isNewer ? SubmitBox() : SubmitForm();
}

// Nothing where the target is skipped.
std::optional<QString> Commenter::TextOfTarget() {
    RunState& state = m_app.state;
    if (state.blnSkipCurrentID) {
        m_app.Get<RunReport>().Remark(FriendsOnly, FriendsOnlyClass);
        return std::nullopt;
    }
    const bool refusesHTML = RefusesHTML(m_app);
    if (!m_target.comment)
        m_app.Get<SendRuns>().ChooseOrStop([this] { m_target.comment = ChooseComment(m_app); });
    const std::optional<QString> text = refusesHTML ? m_target.comment->nonHTML : m_target.comment->text;
    if (!text) {
        state.blnSkipCurrentID = true;
        m_app.Get<RunReport>().Remark(u"The profile takes no HTML in comments"_s);
        return std::nullopt;
    }
    return ReplaceTargetName(m_app, *text, m_app.WebBrowser1().Document().BodyHTML(), u"Comment"_s);
}

void Commenter::WaitUntilComplete(int limitSeconds) {
    m_app.waiting.WaitWhile([this] { return m_app.WebBrowser1().ReadyState() != 4; }, limitSeconds);
}

// To its after-send step, as the user's Skip does it.
Next Commenter::SkipTarget(const QString& why) {
    m_app.Get<RunReport>().Remark(why);
    m_app.Get<StopResume>().SkipProfile();
    return Next::Wait;
}

Next Commenter::LeaveStranger() {
    return GiveTargetUp(u"A page that is not the site's came; nothing was typed into it"_s, Caller);
}

Next Commenter::SubmitForm() {
    if (const Document page = m_app.WebBrowser1().Document())
        ForeseeCommentField(page);
    if (m_app.Get<PageSigns>().IsTextInPage(Flooding)) {
        m_app.Get<StopResume>().StopAll(StopReason::Flooding);
        m_app.Get<StopResume>().DoFinishedExit();
        return Next::Wait;
    }
    // The page has said already that it takes no comment; its form would be waited for without an end.
    if (m_app.state.blnSkipCurrentID) {
        m_app.Get<RunReport>().Remark(FriendsOnly, FriendsOnlyClass);
        m_app.Get<StopResume>().SkipProfile();
        return Next::Wait;
    }
    WaitForForm();
    if (!m_app.Get<SendRuns>().IsOnSite())
        return LeaveStranger();
    const std::optional<QString> text = TextOfTarget();
    if (!text)
        return GiveTargetUp({}, Caller);
    const Document page = m_app.WebBrowser1().Document();
    const bool hasEditor = HasEditor(page.BodyHTML());
    TypeComment(page, *text);
    // The form is tried again when its editor has come.
    if (hasEditor && !TypeIntoEditor(*text))
        return LookAgain();
    return PressForm();
}

void Commenter::WaitForForm() {
    PageSigns& page = m_app.Get<PageSigns>();
    m_app.SetStatus(u"Waiting for comment page to finish loading..."_s);
    page.WaitForDocument();
    WaitUntilComplete(CompletePageSeconds);
    m_app.state.blnCommentUsedEditor = false;
    const QString profile = m_app.Expand(u"{ProfileHost}/index.cfm?fuseaction=user.viewprofile"_s);
    m_app.waiting.WaitFor(u"the comment form"_s, [&] { return !page.IsTextInPage(profile, true); });
    m_app.waiting.WaitFor(u"the comment form"_s,
                          [this] { return !HasCommentField(m_app.WebBrowser1().Document()); });
}

// False when the editor has not come.
bool Commenter::TypeIntoEditor(const QString& text) {
    TypeSharedField(m_app.WebBrowser1().Document(), text);
    const auto lacksEditor = [this] { return !HasEditorBox(m_app.WebBrowser1().Document()); };
    if (!m_app.waiting.WaitWhile(lacksEditor, EditorSeconds))
        return false;
    if (RefusesHTML(m_app)) {
        TypeSharedField(m_app.WebBrowser1().Document(), text);
        return true;
    }
    m_app.Get<PageSigns>().ClickLink(u"Title"_s, u"View Source"_s);
    TypeSource(m_app.WebBrowser1().Document(), text);
    m_app.state.blnCommentUsedEditor = true;
    return true;
}

// Nothing may come between the press and its line in the log.
Next Commenter::PressForm() {
    const Element button = FindFormButton(m_app.WebBrowser1().Document());
    if (!button)
        return GiveTargetUp(u"The page has no button that posts"_s, Caller);
    if (!m_app.Get<SendRuns>().NoteBeforeSend())
        return Next::Wait;
    m_target.isPressed = true;
    Diagnostics::IgnoreErrors([&button] { button.Click(); });
    LogPress();
    return AwaitConfirmPage();
}

Next Commenter::AwaitConfirmPage() {
    m_app.SetStatus(u"Comment posted, waiting for confirmation page..."_s);
    m_app.state.intComStep = CommentStep::Confirm;
    m_app.state.strLastPageText = u"post a comment about"_s;
    Await(u"Button"_s, u"post a comment"_s);
    return Next::Wait;
}

} // namespace qlm
