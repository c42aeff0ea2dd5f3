// SPDX-License-Identifier: MIT
#include "guided/ResumedRun.h"

#include "core/App.h"

#include <QWidget>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int WholeRunSeconds = 15 * 60;
}

ResumedRun::ResumedRun(App& app) : WindowDriver(app) {
    PlanLogin();
    PlanSending();
}

void ResumedRun::PlanLogin() {
    Add({u"The login screen is up; pressing Continue"_s, 60, [this] { return Form("frmInteken") != nullptr; },
         [this] {
             if (!m_app.controls.Ticked("frmInteken.chkTOS"_L1))
                 Press("frmInteken", "chkTOS");
             Press("frmInteken", "cmdContinue");
         }});
    Add({u"Logged in; turning to the Friend Requester"_s, 60,
         [this] { return m_app.Status() == u"Login successful!"_s; },
         [this] { ChooseTab(u"Friend Requester"_s); }});
}

void ResumedRun::PlanSending() {
    Add({u"Sending friend requests"_s, 10, [this] { return Find("frmMain", "piccmdAddFriends") != nullptr; },
         [this] {
             m_messagesBefore = Messages().size();
             Press("frmMain", "piccmdAddFriends");
         }});
    Add({u"The run is over; closing the window"_s, WholeRunSeconds, [this] { return IsThrough(); },
         [this] {
             const QString report = Messages().constLast();
             Say(u"Sent "_s + QString::number(m_app.state.lngSessionFR) + u" friend requests; "_s +
                 m_app.controls.Text("lblFrFailedCount"_L1) + u", "_s +
                 m_app.controls.Text("lblFrSkippedCount"_L1));
             Choose("mnuExit");
             End(report.startsWith(u"Finished sending"_s) ? QString() : report);
         }});
}

// Every run ends with a message, and so does one that may not begin.
bool ResumedRun::IsThrough() const {
    return Messages().size() > m_messagesBefore && m_app.state.CurrentAction.isEmpty();
}

} // namespace qlm
