// SPDX-License-Identifier: MIT
#include "World.h"

#include "Chance.h"

namespace qlm::practice {

namespace {

Writing NewMessages(quint64 seed) {
    return {MessageAnswers(), Mix(seed, 9)};
}

Writing NewComments(quint64 seed) {
    return {CommentAnswers(), Mix(seed, 10)};
}

} // namespace

World::World(quint64 startSeed, std::function<QDateTime()> clock)
    : firstSeed(startSeed),
      seed(startSeed),
      now(std::move(clock)),
      people(seed),
      friends(seed),
      requests(seed),
      messages(NewMessages(seed)),
      comments(NewComments(seed)) {
    for (const Account& account : accounts.All())
        people.AddMember(account.id);
}

void World::Sow(quint64 newSeed) {
    seed = newSeed;
    people = People(seed);
    friends = FriendLists(seed);
    requests = FriendRequests(seed);
    messages = NewMessages(seed);
    comments = NewComments(seed);
    for (const Account& account : accounts.All())
        people.AddMember(account.id);
}

void World::AddAccount(const QString& mail, const QString& password, qint64 id) {
    accounts.Add(mail, password, id);
    people.AddMember(id);
}

} // namespace qlm::practice
