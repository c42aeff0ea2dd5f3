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

Writing NewBulletins(quint64 seed) {
    return {BulletinAnswers(), Mix(seed, 11)};
}

Writing NewStatuses(quint64 seed) {
    return {StatusAnswers(), Mix(seed, 12)};
}

} // namespace

World::World(quint64 startSeed, std::function<QDateTime()> clock)
    : firstSeed(startSeed),
      seed(startSeed),
      now(std::move(clock)),
      people(seed),
      friends(seed),
      requests(seed),
      incoming(seed),
      messages(NewMessages(seed)),
      comments(NewComments(seed)),
      bulletins(NewBulletins(seed)),
      statuses(NewStatuses(seed)) {
    for (const Account& account : accounts.All())
        AddMember(account.id);
}

void World::Sow(quint64 newSeed) {
    seed = newSeed;
    people = People(seed);
    friends = FriendLists(seed);
    requests = FriendRequests(seed);
    incoming = Incoming(seed);
    invitations = Invitations();
    messages = NewMessages(seed);
    comments = NewComments(seed);
    bulletins = NewBulletins(seed);
    statuses = NewStatuses(seed);
    posts = Posts();
    for (const Account& account : accounts.All())
        AddMember(account.id);
}

void World::AddAccount(const QString& mail, const QString& password, qint64 id) {
    accounts.Add(mail, password, id);
    AddMember(id);
}

// Everybody has changed something of late.
void World::AddMember(qint64 id) {
    people.AddMember(id);
    posts.Take(id, 1);
    posts.Add({.number = 1,
               .kind = Post::Kind::Change,
               .author = id,
               .subject = {},
               .body = QStringLiteral("changed the headline"),
               .when = {}});
}

} // namespace qlm::practice
