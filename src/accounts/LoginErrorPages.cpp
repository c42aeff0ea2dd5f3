// SPDX-License-Identifier: MIT
#include "accounts/LoginErrorPages.h"

#include "core/App.h"
#include "steps/Activities.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

void LoadSiteAgain(App& app) {
    app.ClearPage();
    app.WebBrowser1().Navigate(app.Expand(u"{SiteRootHost}"_s));
    app.waiting.Pump();
}

} // namespace

void HandleLoginErrorPage(App& app) {
    if (app.state.blnChaining) {
        // An account that meets an error page costs the chain no more than itself.
        TraceErrorPage(app, u"Maint1: "_s);
        app.Get<StopResume>().HandOverInChain();
    } else if (app.state.intLoginStep == LoginStep::SignOut) {
        TraceErrorPage(app, u"Maint2: "_s);
        LoadSiteAgain(app);
    } else {
        TraceErrorPage(app, u"Maint3: "_s);
    }
}

} // namespace qlm
