// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>

namespace qlm::practice {

class People;
struct Person;

/// Who stands on whose friends list. Nothing is stored but counts set by hand: any place of any list can be
/// worked out by itself, and a list never shows the same person twice.
class FriendLists {
public:
    explicit FriendLists(quint64 seed) : m_seed(seed) {}

    static constexpr int mostFriends = 4900;

    /// Length of a list, founder included; 120 to 899 unless set.
    int Count(qint64 owner) const;
    void SetCount(qint64 owner, int count);

    /// `count` entries from place `first` on, counted from 0; fewer at the end of the list. The founder is
    /// everybody's first friend.
    QList<const Person*> Slice(const People& people, qint64 owner, int first, int count) const;

private:
    quint64 m_seed;
    QHash<qint64, int> m_counts;
};

} // namespace qlm::practice
