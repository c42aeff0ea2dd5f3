// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/TimeDelayDialog.h"

#include <QtGlobal>

namespace qlm {

class App;

// The pause between two sends, and the page that covers the browser meanwhile.
class Pacing {
public:
    explicit Pacing(App& app);

    // Blocks its caller, the message loop turning, for a random time within the bounds. Skip and every stop
    // end it; the caller then has to look whether its run is still there.
    void DoDelay();
    void UpdateTimeDelayLabel();
    // Reads TimeDelayFrom and TimeDelayTo; what cannot be read counts as 0.
    void ReadBounds();
    // webHide shows timedelay.htm and comes to the front; or goes to the back.
    void ShowCover();
    void HideCover();
    // The same, and webHide becomes empty.
    void ClearCover();
    // webHide fetches something: until it is taken back it covers nothing and shows no other page.
    void LendCover();
    void TakeCoverBack();

private:
    void WaitCovered();
    void CountDown(qint64 lengthSeconds);

    App& m_app;
    TimeDelayDialog m_dialog;
    bool m_isCounting = false;
    int m_loans = 0;
};

// A random whole number from lower; by rounding it can reach upper + 1.
qint32 RandomBetween(App& app, qint32 upper, qint32 lower);

} // namespace qlm
