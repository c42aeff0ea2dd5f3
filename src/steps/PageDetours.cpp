// SPDX-License-Identifier: MIT
#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "steps/Activities.h"
#include "steps/RunReport.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Page {
    App& app;
    RunState& state;
    bool captcha;

    bool Is(const char* action) const { return state.CurrentAction == QLatin1StringView(action); }
    bool Requesting(qint16 step) const { return Is("FR") && state.intFRStep == step; }
    bool LoggingIn(qint16 step) const { return Is("LOGIN") && state.intLoginStep == step; }
    bool Shows(const char16_t* text) const {
        return app.Get<PageSigns>().IsTextInPage(QString::fromUtf16(text));
    }
    bool At(const char16_t* address) const {
        return app.Get<PageSigns>().AddressContains(QString::fromUtf16(address));
    }
    bool Complete() const { return app.WebBrowser1().ReadyState() == 4; }
    void Trace(const QString& text) const { app.diagnostics.DebugForAction(text); }
    void Remark(const char* why) const { app.Get<RunReport>().Remark(QString::fromLatin1(why)); }
    QString Body() const { return app.WebBrowser1().Document().BodyText(); }
};

void LoadHomePage(const Page& page) {
    const RunMark mark = page.app.waiting.Mark();
    page.app.ClearPage();
    if (!page.app.waiting.IsCurrent(mark))
        return;
    page.app.WebBrowser1().Navigate(page.app.Expand(u"{HomeHost}/index.cfm?fuseaction=home"_s));
    page.app.waiting.Pump();
}

void RunLoginStep(const Page& page) {
    FindActivity(u"LOGIN"_s)->stepRoutine(page.app);
}

// The step goes to the after-send state with the target given up.
bool GiveUpRequest(const Page& page, const QString& trace, bool skipCurrentID) {
    page.Trace(trace);
    StepDispatcher::GiveUpRequest(page.app, skipCurrentID);
    return false;
}

bool LogInAgain(const Page& page) {
    const RunMark mark = page.app.waiting.Mark();
    page.state.blnLinkFound = true;
    page.Remark("The session was lost; you were signed in again");
    page.app.Get<StepDispatcher>().logInAgain();
    page.app.waiting.WaitFor(u"the page to be complete"_s, [&] {
        return page.app.WebBrowser1().Busy() && page.app.waiting.IsCurrent(mark);
    });
    // A stop meanwhile is the last word; and the page behind the login may have given the target up already.
    if (!page.app.waiting.IsCurrent(mark))
        return false;
    if (const Activity* activity = FindActivity(page.state.CurrentAction);
        activity && activity->onSignedInAgain) {
        activity->onSignedInAgain(page.app);
        return false;
    }
    page.state.blnSkipCurrentID = true;
    page.app.Get<StopResume>().SkipProfile();
    return false;
}

// A stranger's page that looks like the site's own: whoever asks there for a password gets none.
bool LeaveTheTrap(const Page& page) {
    page.Remark("A page that is not the site's asked for your password; nothing was typed into it");
    page.state.blnSkipCurrentID = true;
    page.app.Get<StopResume>().SkipProfile();
    return false;
}

bool ConfirmedWhileWaiting(const Page& page) {
    page.Trace(page.Body() + u"FR LF2"_s);
    NoteConfirmation(page.app);
    page.app.Get<Cover>().Hide();
    page.app.Get<StopResume>().ResumeNext();
    return false;
}

bool RedirectedHome(const Page& page) {
    page.Trace(u"FR LF3"_s);
    page.Remark("The site showed your home page instead of a confirmation");
    page.app.Get<Cover>().Show();
    page.app.Get<StopResume>().ResumeNext();
    return false;
}

bool MessageLandedHome(const Page& page) {
    page.state.intMsgStep = 8;
    page.state.blnSkipCurrentID = true;
    page.app.Get<StopResume>().ResumeNext();
    return false;
}

bool LandedOnProfile(const Page& page) {
    page.Trace(u"FR LF-Homepage2 (chinese?)"_s);
    page.Remark("The site showed a profile instead of a confirmation");
    page.app.Get<StopResume>().ResumeNext();
    return false;
}

bool CommentLandedHome(const Page& page) {
    // This line has always gone to the friend requester's trail.
    page.app.diagnostics.Debug(u"debugfr.txt"_s, u"FR LF-Homepage3"_s);
    page.state.blnSkipCurrentID = true;
    page.app.Get<StopResume>().SkipProfile();
    return false;
}

bool CommentPageUnknown(const Page& page) {
    page.Trace(u"PROBLEM!"_s);
    page.app.Get<StopResume>().ResumeNext();
    return false;
}

bool ReloadForum(const Page& page) {
    const QString address = page.app.Get<PageSigns>().LocationURL();
    const RunMark mark = page.app.waiting.Mark();
    page.app.ClearPage();
    if (page.app.waiting.IsCurrent(mark))
        page.app.WebBrowser1().Navigate(address);
    return false;
}

bool RefuseLanguage(const Page& page) {
    // The tick goes on behind the box and would bring the same one up again.
    page.app.Get<StopResume>().PauseLinkCheck();
    ShowLanguageMessage(page.app);
    page.app.Get<StopResume>().StopAll(u"LF1"_s);
    page.app.Get<StopResume>().DoFinishedExit();
    return false;
}

bool BackThroughTheSite(const Page& page) {
    page.state.blnLoginCacheRetry = true;
    page.Trace(u"LF - 'return to myspace'..."_s);
    page.app.Get<SettingsFields>().SaveListsAndSettings();
    page.state.intLoginStep = 1;
    RunLoginStep(page);
    return false;
}

bool AlreadyLoggedIn(const Page& page) {
    page.Trace(u"LF - MS Homepage..."_s);
    LoadHomePage(page);
    return false;
}

bool CachedPage(const Page& page) {
    auto word = [](bool seen) { return seen ? u"True"_s : u"False"_s; };
    page.Trace(u"LF - Cache... try again - "_s + word(page.Shows(u"Show My:")) + u", "_s +
               word(page.Shows(u"View My:")));
    page.state.intLoginStep = page.state.blnLoginCacheRetry ? 4 : 1;
    RunLoginStep(page);
    return false;
}

bool PassBirthdayNotice(const Page& page) {
    page.app.WebBrowser1().Navigate(page.app.Expand(u"{LoginHost}/index.cfm?fuseaction=login"_s));
    page.state.blnLinkFound = true;
    return false;
}

bool StopAtLimit(const Page& page) {
    page.state.blnDailyLimitHit = false;
    page.state.blnLinkFound = true;
    page.app.Get<StopResume>().StopAll(u"LF2"_s);
    if (!page.app.Get<StopResume>().HandOverInChain())
        page.app.Get<StopResume>().DoFinishedExit();
    return false;
}

bool ExplainCertificate(const Page& page) {
    const QString value = page.app.platform.Settings().GetSetting(
        u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings"_s, u"CertificateRevocation"_s,
        u"x"_s);
    page.Trace(u"Security Certificate Error - "_s + value);
    const RunMark mark = page.app.waiting.Mark();
    page.app.Get<StopResume>().PauseLinkCheck();
    page.app.ShowMessage(u"A current bug in Internet Explorer or MySpace may be causing the error you see on "
                         u"this page. There are two "
                         "ways to solve this problem:\n\n1) Please check your computer's date is "
                         "correct\n\n2) If the date is current "
                         "and the problem persists then you need to change an Internet Explorer setting. "
                         "Launch Internet Explorer then "
                         "go to Tools -> Internet Options. On the 'Advanced' tab near the bottom make sure "
                         "the 'check for server "
                         "certificate revocation*' setting is unchecked.\n\nAfter that close any Internet "
                         "Explorer windows and restart "
                         "Quillmere"_s,
                         u"Login error"_s);
    if (page.app.waiting.IsCurrent(mark))
        page.app.Get<StopResume>().ResumeLinkCheck();
    return false;
}

bool SkipMailSetUp(const Page& page) {
    page.Trace(u"LINKFOUND: CREATE EMAIL PAGE - SKIP!"_s);
    page.app.Get<StopResume>().SkipProfile();
    return false;
}

bool RequestCaptcha(const Page& page) {
    page.state.intFRStep = 8;
    page.state.blnLinkFound = true;
    return true;
}

bool MessageCaptcha(const Page& page) {
    page.state.intMsgStep = 9;
    page.state.blnLinkFound = true;
    return true;
}

struct DetourRow {
    bool (*applies)(const Page&);
    bool (*take)(const Page&); // answers whether the element counts as found
};

const std::vector<DetourRow>& Detours() {
    static const std::vector<DetourRow> rows{
        // The session has been lost.
        {[](const Page& p) {
             return !p.Is("LOGIN") && p.app.Get<PageSigns>().IsLoggedOutPage() &&
                    p.app.Get<PageSigns>().LocationURL().endsWith(u".com/"_s, Qt::CaseInsensitive);
         },
         LogInAgain},
        {[](const Page& p) {
             return !p.Is("LOGIN") && p.app.Get<PageSigns>().AsksForPassword() &&
                    p.app.Get<PageSigns>().LocationURL().endsWith(u".com/"_s, Qt::CaseInsensitive);
         },
         LeaveTheTrap},
        {[](const Page& p) { return p.Requesting(9) && p.app.Get<PageSigns>().IsRequestSentPage(); },
         ConfirmedWhileWaiting},
        {[](const Page& p) { return p.Requesting(9) && p.app.Get<PageSigns>().IsHomePageURL(); },
         RedirectedHome},
        {[](const Page& p) {
             return (p.Requesting(7) || p.Requesting(8)) && p.app.Get<PageSigns>().IsHomePageURL();
         },
         [](const Page& p) {
             p.Remark("The site showed your home page instead of the request page");
             return GiveUpRequest(p, u"FR LF-Homepage3"_s, true);
         }},
        {[](const Page& p) {
             return p.Is("MSG") && p.state.intMsgStep == 9 && p.app.Get<PageSigns>().IsHomePageURL();
         },
         MessageLandedHome},
        {[](const Page& p) { return p.Requesting(9) && p.At(u"fuseaction=user.viewprofile"); },
         LandedOnProfile},
        {[](const Page& p) {
             return p.Is("COM") && (p.state.intComStep == 6 || p.state.intComStep == 7) &&
                    p.app.Get<PageSigns>().AddressEquals(u"{SiteRootHost}/"_s);
         },
         CommentLandedHome},
        {[](const Page& p) {
             return p.Is("COM") && p.state.intComStep == 7 && p.Complete() && !p.state.blnSubmittingComment;
         },
         CommentPageUnknown},
        {[](const Page& p) { return p.Is("FR") && p.At(u"fuseaction=mail.inbox"); },
         [](const Page& p) {
             p.Remark("The site showed your inbox instead of a confirmation");
             return GiveUpRequest(p, u"FR LF-Inbox"_s, false);
         }},
        {[](const Page& p) {
             return p.Is("SCANNING") && p.Shows(u"Sorry! an unexpected error has occurred") && p.Complete() &&
                    p.app.Get<PageSigns>().AddressBeginsWith(u"{ForumHost}"_s) && p.At(u"&page");
         },
         ReloadForum},
        {[](const Page& p) { return p.Is("LOGIN") && p.Shows(u"Skip this Advertisement"); },
         [](const Page& p) {
             LoadHomePage(p);
             return false;
         }},
        {[](const Page& p) { return p.Is("LOGIN") && p.app.Get<PageSigns>().IsNotEnglishPage(); },
         RefuseLanguage},
        {[](const Page& p) { return p.LoggingIn(4) && p.Shows(u"return to myspace"); }, BackThroughTheSite},
        {[](const Page& p) { return p.LoggingIn(4) && p.Shows(u"! You are logged in."); }, AlreadyLoggedIn},
        {[](const Page& p) { return p.LoggingIn(3) && (p.Shows(u"Show My:") || p.Shows(u"View My:")); },
         CachedPage},
        {[](const Page& p) {
             return !p.state.blnLinkFound && p.Shows(u"allow others to see when it's my birthday");
         },
         PassBirthdayNotice},
        {[](const Page& p) { return p.state.blnDailyLimitHit && !p.state.blnLinkFound; }, StopAtLimit},
        {[](const Page& p) {
             return p.Is("LOGIN") && p.Shows(u"we are moving myspace music players and video players");
         },
         [](const Page& p) {
             LoadHomePage(p);
             return false;
         }},
        {[](const Page& p) { return p.Is("LOGIN") && p.Shows(u"security certificate"); }, ExplainCertificate},
        {[](const Page& p) {
             return (p.Is("ACC") || p.Is("MSG")) &&
                    p.app.Get<PageSigns>().AddressEquals(
                        u"{MessagingHost}/index.cfm?fuseaction=mailsetup.createaccount"_s);
         },
         SkipMailSetUp},
        {[](const Page& p) { return p.Is("FR") && p.captcha && !p.state.blnWaitingForCaptcha; },
         RequestCaptcha},
        {[](const Page& p) {
             return p.Is("MSG") &&
                    (p.captcha || (p.state.blnWaitingForCaptcha && p.Shows(u"your message has been sent")));
         },
         MessageCaptcha},
    };
    return rows;
}

} // namespace

Verdict TakeDetour(App& app, bool captchaPage) {
    const Page page{app, app.state, captchaPage};
    for (const DetourRow& row : Detours())
        if (row.applies(page))
            return row.take(page);
    return std::nullopt;
}

} // namespace qlm
