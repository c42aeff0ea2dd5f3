// SPDX-License-Identifier: MIT
#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/ActivitySet.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "steps/Activities.h"
#include "steps/RunReport.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Signs: what else may make a detour of a page.

bool IsSitesLoginForm(App& app) {
    return app.Get<PageSigns>().IsLoggedOutPage();
}

bool AsksForPassword(App& app) {
    return app.Get<PageSigns>().AsksForPassword();
}

bool IsRequestSent(App& app) {
    return app.Get<PageSigns>().IsRequestSentPage();
}

bool IsHomePage(App& app) {
    return app.Get<PageSigns>().IsHomePageURL();
}

bool IsForeign(App& app) {
    return app.Get<PageSigns>().IsNotEnglishPage();
}

bool IsComplete(App& app) {
    return ShownPage(app).IsComplete();
}

bool IsCompleteUnsent(App& app) {
    return IsComplete(app) && !app.state.blnSubmittingComment;
}

bool IsStillAwaited(App& app) {
    return !app.state.blnLinkFound;
}

bool IsLimitHit(App& app) {
    return app.state.blnDailyLimitHit && !app.state.blnLinkFound;
}

bool AwaitsCaptcha(App& app) {
    return app.state.blnWaitingForCaptcha;
}

bool AwaitsNoCaptcha(App& app) {
    return !app.state.blnWaitingForCaptcha;
}

void Trace(App& app, const QString& text) {
    app.diagnostics.DebugForAction(text);
}

void Remark(App& app, const char* why) {
    app.Get<RunReport>().Remark(QString::fromLatin1(why));
}

void LoadHomePage(App& app) {
    app.ClearPage();
    app.WebBrowser1().Navigate(app.Expand(u"{HomeHost}/index.cfm?fuseaction=home"_s));
    app.waiting.Pump();
}

void RunLoginStep(App& app) {
    FindActivity(ActivityWord::Login)->stepRoutine(app);
}

void SkipTarget(App& app) {
    app.state.blnSkipCurrentID = true;
    app.Get<StopResume>().SkipProfile();
}

void LogInAgain(App& app) {
    app.state.blnLinkFound = true;
    Remark(app, "The session was lost; you were signed in again");
    app.Get<StepDispatcher>().logInAgain();
    // A stop meanwhile is the last word; and the page after the login may have given the target up already.
    app.waiting.LeaveIfObsolete();
    app.waiting.WaitFor(u"the page to be complete"_s, [&] { return app.WebBrowser1().Busy(); });
    if (const Activity* activity = RunningActivity(app); activity && activity->onSignedInAgain)
        activity->onSignedInAgain(app);
    else
        SkipTarget(app);
}

// A stranger's page that looks like the site's own: who asks there for a password gets none.
void LeaveTheTrap(App& app) {
    Remark(app, "A page that is not the site's asked for your password; nothing was typed into it");
    SkipTarget(app);
}

void TakeLateConfirmation(App& app) {
    Trace(app, app.WebBrowser1().Document().BodyText() + u"FR LF2"_s);
    NoteConfirmation(app);
    app.Get<Cover>().Hide();
    app.Get<StopResume>().ResumeNext();
}

void GoOnFromHomePage(App& app) {
    Trace(app, u"FR LF3"_s);
    Remark(app, "The site showed your home page instead of a confirmation");
    app.Get<Cover>().Show();
    app.Get<StopResume>().ResumeNext();
}

void GiveUpRequestAtHome(App& app) {
    Remark(app, "The site showed your home page instead of the request page");
    Trace(app, u"FR LF-Homepage3"_s);
    StepDispatcher::GiveUpRequest(app, true);
}

void GiveUpMessage(App& app) {
    app.state.intMsgStep = MessageStep::AfterSend;
    app.state.blnSkipCurrentID = true;
    app.Get<StopResume>().ResumeNext();
}

void PassProfile(App& app) {
    Trace(app, u"FR LF-Homepage2 (chinese?)"_s);
    Remark(app, "The site showed a profile instead of a confirmation");
    app.Get<StopResume>().ResumeNext();
}

// Noted where the friend requester's landings on the home page are, whose pages these are, too.
void GiveUpComment(App& app) {
    app.diagnostics.Debug(TrailOf(ActivityWord::FriendRequests), u"FR LF-Homepage3"_s);
    Remark(app, "The site showed its front page instead of the comment form");
    SkipTarget(app);
}

void GoOnFromUnknownPage(App& app) {
    Trace(app, u"PROBLEM!"_s);
    app.Get<StopResume>().ResumeNext();
}

void GiveUpRequestAtInbox(App& app) {
    Remark(app, "The site showed your inbox instead of a confirmation");
    Trace(app, u"FR LF-Inbox"_s);
    StepDispatcher::GiveUpRequest(app, false);
}

void ReloadForum(App& app) {
    const QString address = app.Get<PageSigns>().LocationURL();
    app.ClearPage();
    app.WebBrowser1().Navigate(address);
}

void RefuseLanguage(App& app) {
    // The tick goes on under the box and would bring the same one up again.
    app.Get<StopResume>().PauseLinkCheck();
    ShowLanguageMessage(app);
    app.Get<StopResume>().StopAll(StopReason::NotEnglish);
    app.Get<StopResume>().DoFinishedExit();
}

void BeginLoginAnew(App& app) {
    app.state.blnLoginCacheRetry = true;
    Trace(app, u"LF - 'return to myspace'..."_s);
    app.Get<SettingsFields>().SaveListsAndSettings();
    app.state.intLoginStep = LoginStep::SignOut;
    RunLoginStep(app);
}

void GoHomeLoggedIn(App& app) {
    Trace(app, u"LF - MS Homepage..."_s);
    LoadHomePage(app);
}

void LeaveCachedPage(App& app) {
    const ShownPage page(app);
    Trace(app, u"LF - Cache... try again - "_s + FromBoolean(page.Shows(u"Show My:")) + u", "_s +
                   FromBoolean(page.Shows(u"View My:")));
    app.state.intLoginStep = app.state.blnLoginCacheRetry ? LoginStep::Finish : LoginStep::SignOut;
    RunLoginStep(app);
}

void PassBirthdayNotice(App& app) {
    app.WebBrowser1().Navigate(app.Expand(u"{LoginHost}/index.cfm?fuseaction=login"_s));
    app.state.blnLinkFound = true;
}

void StopAtLimit(App& app) {
    app.state.blnDailyLimitHit = false;
    app.state.blnLinkFound = true;
    app.Get<StopResume>().StopAll(StopReason::DailyLimit);
    if (!app.Get<StopResume>().HandOverInChain())
        app.Get<StopResume>().DoFinishedExit();
}

void ExplainCertificate(App& app) {
    const QString key = u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings"_s;
    Trace(app, u"Security Certificate Error - "_s +
                   app.platform.Settings().GetSetting(key, u"CertificateRevocation"_s, u"x"_s));
    app.Get<StopResume>().PauseLinkCheck();
    app.ShowMessage(
        u"A current bug in Internet Explorer or MySpace may be causing the error you see on this page. "
        "There are two ways to solve this problem:\n\n"
        "1) Please check your computer's date is correct\n\n"
        "2) If the date is current and the problem persists then you need to change "
        "an Internet Explorer setting. Launch Internet Explorer then go to Tools -> Internet Options. "
        "On the 'Advanced' tab near the bottom make sure "
        "the 'check for server certificate revocation*' setting is unchecked.\n\n"
        "After that close any Internet Explorer windows and restart Quillmere"_s,
        u"Login error"_s);
    app.waiting.LeaveIfObsolete();
    app.Get<StopResume>().ResumeLinkCheck();
}

void SkipMailSetUp(App& app) {
    Trace(app, u"LINKFOUND: CREATE EMAIL PAGE - SKIP!"_s);
    Remark(app, "The site wants you to set up your mail first");
    app.Get<StopResume>().SkipProfile();
}

void TakeRequestCaptcha(App& app) {
    app.state.intFRStep = FriendStep::Submit;
    app.state.blnLinkFound = true;
}

void TakeMessageCaptcha(App& app) {
    app.state.intMsgStep = MessageStep::Captcha;
    app.state.blnLinkFound = true;
}

void TakeCommentCaptcha(App& app) {
    app.state.intComStep = CommentStep::Confirm;
    app.state.intConfirmPolls = 0;
    app.state.blnLinkFound = true;
}

enum class Answer { NotFound, Found };
enum class Captcha { OrNot, Asked };

struct DetourRow {
    ActivitySet activities;
    std::vector<qint16> steps; // none: all steps
    PageKinds kinds;           // the page is one of these; none: any page
    bool (*sign)(App&);        // and this holds; nullptr: nothing more is asked
    void (*act)(App&);
    Answer answer = Answer::NotFound; // does the awaited element count as found?
    Captcha captcha = Captcha::OrNot; // Asked: on a page with a CAPTCHA alone
};

const std::vector<DetourRow>& Detours() {
    using namespace ActivityWord;
    using enum In;
    using enum Answer;
    using enum Captcha;
    static const ActivitySet AllButLogin = ActivitySet::AllBut({Login});
    static const ActivitySet Any = ActivitySet::Any();
    static const PageKinds DomainPage{{{AddressEnd, u".com/"}}};
    static const PageKinds RootPage{{{ExactAddress, u"{SiteRootHost}/"}}};
    static const PageKinds FailedForumPage{{{Text, u"Sorry! an unexpected error has occurred"},
                                            {AddressStart, u"{ForumHost}"},
                                            {Address, u"&page"}}};
    static const PageKinds CachedPage{{{Text, u"Show My:"}}, {{Text, u"View My:"}}};
    static const PageKinds MailSetUp{
        {{ExactAddress, u"{MessagingHost}/index.cfm?fuseaction=mailsetup.createaccount"}}};
    static const std::vector<DetourRow> rows{
        {AllButLogin, {}, DomainPage, IsSitesLoginForm, LogInAgain},
        {AllButLogin, {}, DomainPage, AsksForPassword, LeaveTheTrap},
        {FriendRequests, {FriendStep::AfterSend}, {}, IsRequestSent, TakeLateConfirmation},
        {FriendRequests, {FriendStep::AfterSend}, {}, IsHomePage, GoOnFromHomePage},
        {FriendRequests, {FriendStep::DecideFilter, FriendStep::Submit}, {}, IsHomePage, GiveUpRequestAtHome},
        {Messages, {MessageStep::Captcha}, {}, IsHomePage, GiveUpMessage},
        {FriendRequests, {FriendStep::AfterSend}, At(u"fuseaction=user.viewprofile"), nullptr, PassProfile},
        {Comments, {CommentStep::DecideFilter, CommentStep::Submit}, RootPage, nullptr, GiveUpComment},
        {Comments, {CommentStep::Submit}, {}, IsCompleteUnsent, GoOnFromUnknownPage},
        {FriendRequests, {}, At(u"fuseaction=mail.inbox"), nullptr, GiveUpRequestAtInbox},
        {Gathering, {}, FailedForumPage, IsComplete, ReloadForum},
        {Login, {}, Says(u"Skip this Advertisement"), nullptr, LoadHomePage},
        {Login, {}, {}, IsForeign, RefuseLanguage},
        {Login, {LoginStep::Finish}, Says(u"return to myspace"), nullptr, BeginLoginAnew},
        {Login, {LoginStep::Finish}, Says(u"! You are logged in."), nullptr, GoHomeLoggedIn},
        {Login, {LoginStep::SendForm}, CachedPage, nullptr, LeaveCachedPage},
        {Any, {}, Says(u"allow others to see when it's my birthday"), IsStillAwaited, PassBirthdayNotice},
        {Any, {}, {}, IsLimitHit, StopAtLimit},
        {Login, {}, Says(u"we are moving myspace music players and video players"), nullptr, LoadHomePage},
        {Login, {}, Says(u"security certificate"), nullptr, ExplainCertificate},
        {{Accepting, Messages}, {}, MailSetUp, nullptr, SkipMailSetUp},
        {FriendRequests, {}, {}, AwaitsNoCaptcha, TakeRequestCaptcha, Found, Asked},
        {Messages, {}, {}, nullptr, TakeMessageCaptcha, Found, Asked},
        {Comments,
         {CommentStep::AfterSend, CommentStep::Confirm},
         {},
         nullptr,
         TakeCommentCaptcha,
         Found,
         Asked},
        {Messages, {}, Says(u"your message has been sent"), AwaitsCaptcha, TakeMessageCaptcha, Found},
    };
    return rows;
}

bool Applies(const DetourRow& row, App& app, const PageView& page, bool captchaPage) {
    return IsRunning(app, row.activities, row.steps) && (captchaPage || row.captcha == Captcha::OrNot) &&
           page.IsOneOf(row.kinds) && (!row.sign || row.sign(app));
}

} // namespace

Verdict TakeDetour(App& app, bool captchaPage) {
    const ShownPage page(app);
    for (const DetourRow& row : Detours()) {
        if (!Applies(row, app, page, captchaPage))
            continue;
        row.act(app);
        return row.answer == Answer::Found;
    }
    return std::nullopt;
}

} // namespace qlm
