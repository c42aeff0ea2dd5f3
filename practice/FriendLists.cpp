// SPDX-License-Identifier: MIT
#include "FriendLists.h"

#include "Chance.h"
#include "People.h"

#include <algorithm>

namespace qlm::practice {

static_assert(People::crowdSize <= Shuffle::largest);

int FriendLists::Count(qint64 owner) const {
    const int natural = 120 + static_cast<int>(Mix(m_seed, static_cast<quint64>(owner), 3) % 780);
    return m_counts.value(owner, natural);
}

void FriendLists::SetCount(qint64 owner, int count) {
    m_counts.insert(owner, std::clamp(count, 0, mostFriends));
}

QList<const Person*> FriendLists::Slice(const People& people, qint64 owner, int first, int count) const {
    const Shuffle crowd(Mix(m_seed, static_cast<quint64>(owner), 4), People::crowdSize);
    const int end = std::min(first + count, Count(owner));
    // The walk leaves the owner out, so behind the owner's own place every entry moves up by one.
    int ownPlace = 0;
    while (ownPlace < People::crowdSize && People::firstId + crowd.At(ownPlace) != owner)
        ++ownPlace;
    const int led = owner == People::founderId ? 0 : 1;

    QList<const Person*> slice;
    for (int entry = std::max(first, 0); entry < end; ++entry) {
        if (entry < led) {
            slice.append(&people.Founder());
            continue;
        }
        const int step = entry - led;
        const int place = step < ownPlace ? step : step + 1;
        slice.append(&people.Crowd()[crowd.At(place)]);
    }
    return slice;
}

} // namespace qlm::practice
