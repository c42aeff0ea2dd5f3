// SPDX-License-Identifier: MIT
#include "IncomingAnswers.h"

namespace qlm::practice {

namespace {

using Way = Answer::Way;

// Somebody who is gone can't become anybody's friend.
const Answer& AnswerTo(const Visit& visit, qint64 requester) {
    static const Answer gone{"error"_L1, Way::RefusedAfter, 0,
                             u"An error has occurred while processing your request."};
    return visit.world.people.Find(requester) ? visit.world.incoming.answers.Of(requester) : gone;
}

QString NameOf(const Visit& visit, qint64 requester) {
    const Person* person = visit.world.people.Find(requester);
    return person ? person->name : u"somebody who is gone"_s;
}

void Accept(Visit& visit, qint64 requester) {
    const qint64 account = visit.account->id;
    visit.world.incoming.MakeFriends(account, requester);
    visit.world.requests.Settle(requester, account);
    const bool wantsUpdates =
        ValuesOf(visit.request.body, u"subscribe"_s).contains(QString::number(requester));
    visit.world.journal.Write(u"accepted %1 %2"_s.arg(account).arg(requester) +
                              (wantsUpdates ? u" updates"_s : QString()));
}

} // namespace

bool IsSlow(const Visit& visit, qint64 requester) {
    return AnswerTo(visit, requester).word == "slow"_L1;
}

std::optional<QString> SaidBy(const Visit& visit, qint64 requester, bool isAccepted) {
    const QString name = NameOf(visit, requester);
    if (!isAccepted)
        return u"You have denied a friend request from %1."_s.arg(name);
    const Answer& answer = AnswerTo(visit, requester);
    if (answer.way == Way::Taken)
        return name + u" is now your friend."_s;
    return answer.text ? std::optional(TextOf(answer, name)) : std::nullopt;
}

std::optional<QString> AnswerRequest(Visit& visit, qint64 requester, bool isAccepted) {
    const qint64 account = visit.account->id;
    Incoming& incoming = visit.world.incoming;
    const Answer& answer = AnswerTo(visit, requester);
    const bool isTaken = !isAccepted || answer.way == Way::Taken;
    if (!incoming.Of(account).contains(requester))
        return u"There is no such request."_s;
    if (isTaken || answer.word == "error"_L1)
        incoming.Remove(account, requester);
    if (!isAccepted)
        visit.world.requests.Settle(requester, account);
    if (!isTaken)
        visit.world.journal.Write(u"accept %1 %2 %3"_s.arg(account).arg(requester).arg(answer.word));
    else if (isAccepted)
        Accept(visit, requester);
    else
        visit.world.journal.Write(u"denied %1 %2"_s.arg(account).arg(requester));
    return SaidBy(visit, requester, isAccepted);
}

} // namespace qlm::practice
