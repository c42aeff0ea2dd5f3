// SPDX-License-Identifier: MIT
#pragma once

#include "steps/StepMachine.h"

#include <QSet>
#include <QString>
#include <functional>
#include <optional>

namespace qlm {

// Takes back the friend requests that nobody has answered. The button works on the site's mobile pages, one
// request after the other in one long procedure; the machine does the same job page by page on the desktop
// site, and nothing starts it.
class PendingRequests {
public:
    explicit PendingRequests(App& app);

    // The step routine of the desktop site.
    void IterateDelPenFR();

private:
    void picDeletePendingRequests_Click();
    void Stop();

    void ErrDeletePendingFRMOBILE();
    void DeleteOnMobileSite();
    bool LogInOnMobileSite();
    void OpenSentRequests();
    bool OpenStartPage();
    struct Pending {
        QString id;
        QString address;
    };
    std::optional<Pending> NextPending();
    void Cancel(const Pending& pending);
    bool WaitForEntry();
    bool ClickText(const QString& text);
    void Open(const QString& address);
    void WaitForPage();
    bool IsEmpty();
    bool IsOnSite();

    static const StepMachine<PendingRequests>& Machine();
    void BeginStep();
    Next OpenList();
    Next OpenLastPage();
    Next DeletePendingRequest();
    Next Finish();
    void Await(const QString& text);
    void End();

    App& m_app;
    QSet<QString> m_opened; // in this run
};

} // namespace qlm
