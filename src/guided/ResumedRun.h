// SPDX-License-Identifier: MIT
#pragma once

#include "guided/WindowDriver.h"

namespace qlm {

// Takes up the work where an earlier run of the program has left it: signs in with the account that was used
// last, sends to everybody on the list that was saved, and closes the window. Fails when the run could not be
// started.
class ResumedRun : public WindowDriver {
public:
    explicit ResumedRun(App& app);

private:
    void PlanLogin();
    void PlanSending();
    bool IsThrough() const;

    qsizetype m_messagesBefore = 0;
};

} // namespace qlm
