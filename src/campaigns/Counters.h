// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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

    // Counts one friend request. False when the limit has stopped the run instead; that request is not
    // counted. The limit is tested before the count, so a limit of N sends N + 1.
    bool AddFriendCount();
    // Count one message or comment of a run of their own; one that belongs to a friend request or an accept
    // run counts nothing. Their limit is tested behind the count, by StopAtLimit.
    void AddMessageCount();
    void AddCommentCount();
    // One send of that campaign ("BUL", "STATUSUPDATES").
    void Count(const QString& campaign);
    // True when the campaign's limit has been reached and its run is over.
    bool StopAtLimit(const QString& campaign);
    // True when the last count could not be saved and the campaign has a limit for the day: its run is over.
    bool StopUncounted(const QString& campaign);

    // The label of what this run has sent, at its start and behind a send.
    void ShowSentAtStart(const Campaign& campaign);

private:
    void Clear();
    void Read();
    void CountOne(const Campaign& campaign);
    bool IsPerDay(const Campaign& campaign) const;
    bool LimitReached(const Campaign& campaign) const;

    App& m_app;
    bool m_isStored = true;
};

} // namespace qlm
