// SPDX-License-Identifier: MIT
#include "browser/PageClassifier.h"
#include "browser/PageTests.h"
#include "core/App.h"
#include "core/StopResume.h"
#include "gather/GatheredList.h"
#include "gather/LinkScanner.h"
#include "gather/ProfileFilters.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsForProfile = 20;
}

// Visits the profiles that this pass has added and strikes out those that the filters refuse.
void LinkScanner::FilterNewProfiles(Pass& pass) {
    Trace(u"GPP14 - FILTER WHEN GATHERING"_s);
    qint32 index = pass.lngStartCount;
    while (index < m_app.controls.Items("lstFriendIDs"_L1).size() &&
           m_app.state.CurrentAction == u"SCANNING"_s) {
        m_app.state.strCurrentID = m_app.state.arrFriendIDs.value(index);
        const bool remove = FailsFilter(pass);
        if (!Goes(pass))
            return;
        if (remove)
            m_app.gatheredList->ProcessArrayAndList(u"REMOVE"_s, index, {}, u"GatherPageProfiles - 2"_s);
        else
            ++index;
    }
}

bool LinkScanner::FailsFilter(const Pass& pass) {
    const QString id = m_app.state.strCurrentID;
    m_app.stopResume->PauseLinkCheck();
    m_app.ClearPage();
    if (!Goes(pass))
        return false;
    m_app.SetStatus(u"Navigating to ID "_s + id +
                    u"'s profile page to see if it matches your filter settings..."_s);
    m_app.WebBrowser1().Navigate(m_app.Expand(u"http://{SiteRootHost}/"_s) + id + u"/classic"_s);
    const bool arrived = WaitForProfile(pass);
    if (!Goes(pass))
        return false;
    bool remove = !arrived;
    Diagnostics::IgnoreErrors([&] { remove = m_app.pageClassifier->ClassifyErrorPage() || remove; });
    m_app.stopResume->ResumeLinkCheck();
    return remove || !m_app.profileFilters->IsFilteredProfile();
}

// False when an error page or an advertiser's profile has come instead. One that doesn't come in time is
// judged as it stands, and one that is just being replaced isn't there yet.
bool LinkScanner::WaitForProfile(const Pass& pass) {
    PageTests& tests = *m_app.pageTests;
    bool refused = false;
    auto stillWaiting = [&] {
        if (tests.IsTextInPage(u"friendSpace"_s, true) || tests.IsTextInPage(u"last login"_s) ||
            tests.IsTextInPage(u"view my:"_s))
            return false;
        refused = m_app.pageClassifier->ClassifyErrorPage() || tests.IsAdvertiserProfile();
        return !refused;
    };
    m_app.waiting.WaitWhile(
        [&] {
            bool waiting = true;
            Diagnostics::IgnoreErrors([&] { waiting = stillWaiting(); });
            return Goes(pass) && waiting;
        },
        SecondsForProfile);
    return !refused;
}

} // namespace qlm
