// SPDX-License-Identifier: MIT
#include "Incoming.h"

#include "Chance.h"
#include "People.h"

#include <algorithm>
#include <iterator>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

using Way = Answer::Way;

const char16_t* const failure = u"An error has occurred while processing your request.";

// "error" loses the request, "stays" leaves it where it is, "never" doesn't answer at all.
const Answer answerRows[] = {
    {"accepted"_L1, Way::Taken},
    {"slow"_L1, Way::Taken},
    {"error"_L1, Way::RefusedAfter, 0, failure},
    {"stays"_L1, Way::RefusedAfter, 0, failure},
    {"never"_L1, Way::RefusedAfter},
};

// Of an account that nobody has set.
int CountBySeed(quint64 seed, qint64 account) {
    return 5 + static_cast<int>(Mix(seed, static_cast<quint64>(account), 14) % 40);
}

} // namespace

Incoming::Incoming(quint64 seed) : answers(answerRows, Mix(seed, 13)), m_seed(seed) {}

QList<qint64> Incoming::Drawn(qint64 account, int count) const {
    const Shuffle crowd(Mix(m_seed, static_cast<quint64>(account), 15), People::crowdSize);
    QList<qint64> ids;
    for (int i = 0; i < std::min<int>(count, People::crowdSize); ++i)
        ids.append(People::firstId + crowd.At(i));
    return ids;
}

QList<qint64> Incoming::SomeOthers(qint64 account, int count) const {
    const Shuffle crowd(Mix(m_seed, static_cast<quint64>(account), 15), People::crowdSize);
    QList<qint64> ids;
    for (int i = 0; i < std::min<int>(count, People::crowdSize); ++i)
        ids.append(People::firstId + crowd.At(People::crowdSize - 1 - i));
    return ids;
}

QList<qint64>& Incoming::ListOf(qint64 account) {
    auto list = m_lists.find(account);
    if (list == m_lists.end())
        list = m_lists.insert(account, Drawn(account, CountBySeed(m_seed, account)));
    return *list;
}

QList<qint64> Incoming::Of(qint64 account) const {
    const auto touched = m_lists.constFind(account);
    QList<qint64> ids =
        touched == m_lists.constEnd() ? Drawn(account, CountBySeed(m_seed, account)) : *touched;
    std::ranges::reverse(ids);
    return ids;
}

void Incoming::SetCount(qint64 account, int count) {
    m_lists.insert(account, Drawn(account, count));
}

void Incoming::Add(qint64 account, qint64 requester) {
    QList<qint64>& list = ListOf(account);
    if (!list.contains(requester))
        list.append(requester);
}

bool Incoming::Remove(qint64 account, qint64 requester) {
    return ListOf(account).removeOne(requester);
}

} // namespace qlm::practice
