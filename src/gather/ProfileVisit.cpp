// SPDX-License-Identifier: MIT
#include "gather/ProfileVisit.h"

#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "core/App.h"
#include "gather/ProfileFilters.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

bool ProfileVisit::Fails(const QString& id) const {
    app.Get<StopResume>().PauseLinkCheck();
    app.ClearPage();
    if (!goes())
        return false;
    app.SetStatus(u"Navigating to ID "_s + id +
                  u"'s profile page to see if it matches your filter settings..."_s);
    app.WebBrowser1().Navigate(app.Expand(u"http://{SiteRootHost}/"_s) + id + u"/classic"_s);
    const bool arrived = Arrives();
    if (!goes())
        return false;
    app.Get<StopResume>().ResumeLinkCheck();
    return !arrived || !app.Get<ProfileFilters>().IsFilteredProfile();
}

// False when an error page or an advertiser's profile has come instead; a comment on a profile may say what
// an error page says. A page that is just being replaced isn't there yet.
bool ProfileVisit::Arrives() const {
    PageSigns& tests = app.Get<PageSigns>();
    bool refused = false;
    auto stillWaiting = [&] {
        if (tests.IsTextInPage(u"friendSpace"_s, true) || tests.IsTextInPage(u"last login"_s) ||
            tests.IsTextInPage(u"view my:"_s))
            return false;
        refused = app.Get<PageClassifier>().ClassifyErrorPage() || tests.IsAdvertiserProfile();
        return !refused;
    };
    app.waiting.WaitWhile(
        [&] {
            bool waiting = true;
            Diagnostics::IgnoreErrors([&] { waiting = stillWaiting(); });
            return goes() && waiting;
        },
        seconds);
    return !refused;
}

} // namespace qlm
