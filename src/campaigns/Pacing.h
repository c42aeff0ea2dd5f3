// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/TimeDelayDialog.h"

#include <QString>
#include <QtGlobal>

namespace qlm {

class App;

// The pause between two sends, and the page that covers the browser meanwhile.
class Pacing {
public:
    explicit Pacing(App& app);

    // Blocks its step, the message loop turning, for a random time within the bounds, or until Skip.
    void DoDelay();
    void UpdateTimeDelayLabel();
    // Reads TimeDelayFrom and TimeDelayTo; what cannot be read counts as 0.
    void ReadBounds();

private:
    void WaitCovered();
    void CountDown(qint64 lengthSeconds);

    App& m_app;
    TimeDelayDialog m_dialog;
};

// A random whole number from lower; by rounding it can reach upper + 1.
qint32 RandomBetween(App& app, qint32 upper, qint32 lower);
// So many small letters and digits.
QString RandomLowerAlnum(App& app, qint32 length);

} // namespace qlm
