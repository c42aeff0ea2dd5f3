// SPDX-License-Identifier: MIT
#include "FaultPlay.h"

#include "Frame.h"
#include "pages/BulletinForm.h"
#include "pages/CaptchaPages.h"
#include "pages/CommentForms.h"
#include "pages/CommentPages.h"
#include "pages/ComposePages.h"
#include "pages/NoticePages.h"
#include "pages/RequestPages.h"
#include "pages/SignInDetours.h"

namespace qlm::practice {

namespace {

Response Broken(Response::Fault fault) {
    Response response;
    response.fault = fault;
    return response;
}

Response WithScript(Response response, QStringView script) {
    response.body.replace("</body>", "<script>" + script.toUtf8() + "</script>\n</body>");
    return response;
}

Response DropSession(Visit& visit) {
    visit.world.accounts.DropSession(visit.session);
    visit.account = nullptr;
    return RedirectToSignIn();
}

// What was written there waits for the word; the page itself has the image before it, like any other.
bool IsWritten(const Visit& visit, Handler handler) {
    return visit.IsPost() && !SentAnswer(visit) &&
           (handler == ComposeNew || handler == ComposeOld || handler == CommentForm ||
            handler == CommentsPage || handler == BulletinForm);
}

bool IsRequestPage(Handler handler) {
    return handler == AddToFriends || handler == AddFriendVerify;
}

Response ThroughCaptcha(Visit& visit, Handler handler) {
    if (IsRequestPage(handler) || IsWritten(visit, handler)) {
        visit.captchaForced = true;
        return handler(visit);
    }
    auto gate = CaptchaGate(visit);
    return gate ? *gate : handler(visit);
}

} // namespace

Response AnswerThrough(const Fault& fault, Visit& visit, Handler handler) {
    switch (fault.kind) {
    case FaultKind::Slow: {
        Response late = handler(visit);
        late.fault = Response::Fault::Slow;
        late.delayMs = fault.delayMs;
        return late;
    }
    case FaultKind::Hang:
        return Broken(Response::Fault::Hang);
    case FaultKind::Reset:
        return Broken(Response::Fault::Reset);
    case FaultKind::NoBody:
        return Broken(Response::Fault::NoBody);
    case FaultKind::Error:
        return ServerErrorPage(visit);
    case FaultKind::LoggedOut:
        return DropSession(visit);
    case FaultKind::Limit:
        return DailyLimitPage(visit, IsRequestPage(handler));
    case FaultKind::Captcha:
        return ThroughCaptcha(visit, handler);
    case FaultKind::Alert:
        return WithScript(handler(visit), u"alert('The practice site would like your attention.');");
    case FaultKind::Unload:
        return WithScript(handler(visit),
                          u"window.onbeforeunload = function () { return 'Leave the practice site?'; };");
    case FaultKind::Endless:
        return WithScript(handler(visit), u"for (;;) {}");
    case FaultKind::Lost:
        handler(visit);
        return Broken(Response::Fault::Reset);
    case FaultKind::Blank:
        handler(visit);
        return Broken(Response::Fault::NoBody);
    case FaultKind::Wrong:
        return WrongPage(visit);
    case FaultKind::Advert:
    case FaultKind::Moving:
    case FaultKind::Foreign:
    case FaultKind::Return:
    case FaultKind::Welcome:
    case FaultKind::Cached:
    case FaultKind::Birthday:
    case FaultKind::Certificate:
        return SignInDetour(visit, fault.kind, handler);
    }
    return handler(visit);
}

} // namespace qlm::practice
