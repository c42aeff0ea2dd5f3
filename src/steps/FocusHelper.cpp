// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/BrowserHost.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString CommentForm = u"{CommentHost}/index.cfm?fuseaction=user.viewProfile_commentForm"_s;
const QString MainWindow = u"frmMain"_s;
constexpr int HelperIntervalMs = 1000;
} // namespace

// The comment form takes the input focus; users who work in another window get it back.
void BrowserHost::NoteFocusWindow(const QString& url) {
    if (!m_app.Get<PageSigns>().AddressContains(CommentForm, Qt::CaseSensitive) || !Has(url, u"comment"_s) ||
        m_app.WebBrowser1().Document().IsNull())
        return;
    m_app.state.strFocusWindow = m_app.platform.Desktop().ForegroundWindow();
    if (m_app.state.strFocusWindow == MainWindow)
        return;
    m_app.timers->tmrHelper.SetInterval(HelperIntervalMs);
    m_app.timers->tmrHelper.Restart();
}

void BrowserHost::tmrHelper_Timer() {
    RunState& state = m_app.state;
    if (state.CurrentAction != ActivityWord::Comments ||
        !m_app.Get<PageSigns>().AddressContains(CommentForm)) {
        m_app.timers->tmrHelper.SetEnabled(false);
        return;
    }
    if (state.strFocusWindow == MainWindow)
        return;
    Desktop& desktop = m_app.platform.Desktop();
    const QString foreground = desktop.ForegroundWindow();
    // The user has gone on to another window.
    if (foreground != MainWindow)
        state.strFocusWindow = foreground;
    desktop.SetForegroundWindow(state.strFocusWindow);
}

} // namespace qlm
