// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunState.h"

namespace qlm {

class App;
struct Campaign;

// What was sent, in this run and today. The daily counters belong to the account and stand in the settings
// store.
class Counters {
public:
    explicit Counters(App& app) : m_app(app) {}

    // When an account is restored: reads its counters, or clears them when the product server's day is a
    // later one.
    void Restore();

    // Counts one send; one that is part of another activity counts nothing. False when the limit has stopped
    // the run instead: where it comes first, a limit of N sends N + 1, and that one is not counted.
    bool Count(const Campaign& campaign);
    // So many friend requests have been accepted.
    void CountAccepted(qint32 number);
    // So many have been invited; today is one of the two counts.
    void CountInvited(qint32 RunState::*today, qint32 number);
    // Whether one of the two below would end the campaign's run.
    bool IsLimitDue(const Campaign& campaign) const;
    // True when the campaign's limit has been reached and its run is over.
    bool StopAtLimit(const Campaign& campaign);
    // True when the last count could not be saved and the running campaign has a limit for the day: its run
    // is over.
    bool StopUncounted();

    // The label of what this run has sent, at its start and after a send.
    void ShowSentAtStart(const Campaign& campaign);

private:
    void Raise(qint32 RunState::*today, qint32 number);
    void Clear();
    void Read();
    bool IsPerDay(const Campaign& campaign) const;
    bool LimitReached(const Campaign& campaign) const;
    bool LimitIsUncounted(const Campaign& campaign) const;

    App& m_app;
    bool m_isStored = true;
};

} // namespace qlm
