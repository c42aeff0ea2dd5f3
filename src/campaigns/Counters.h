// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// What was sent, in this run and today. The daily counters belong to the account and stand in the settings
// store.
class Counters {
public:
    explicit Counters(App& app) : m_app(app) {}

    // When an account is restored: reads its counters, or clears them when the product server's day is a
    // later one.
    void Restore();
    // Counts one friend request. False when the limit has stopped the run instead; that request is not
    // counted. The limit is tested before the count, so a limit of N sends N + 1.
    bool AddFriendCount();

private:
    void Clear();
    void Read();
    bool FriendLimitReached() const;
    void StopAtLimit();

    App& m_app;
};

} // namespace qlm
