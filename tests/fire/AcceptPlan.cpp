// SPDX-License-Identifier: MIT
#include "AcceptPlan.h"

#include "campaigns/Campaigns.h"
#include "practice/Incoming.h"

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 AccountID = 900001;
constexpr const char* Oddities[] = {"slow", "slow", "error", "stays", "never"};
constexpr const char* MessageOutcomes[] = {"away",  "cannot",        "only-friends",
                                           "error", "process-error", "home"};
constexpr const char* CommentOutcomes[] = {"friends-only", "private", "unable",
                                           "approval",     "no-html", "home"};
// Met at the next request of the page and used up.
constexpr const char* PageFaults[] = {"slow 200", "slow 5000", "slow 45000", "slow 150000", "hang", "reset",
                                      "nobody",   "error",     "loggedout",  "wrong",       "lost", "blank"};
const QString OldPages = u".myspace.example.com/index.cfm?fuseaction="_s;
const QString NewPages = u"www.myspace.example.com/"_s;

} // namespace

AcceptPlan::AcceptPlan(quint64 seed, int targets) {
    Dice dice(seed * 2 + 1);
    const int kind = dice.Below(10);
    followUp = kind == 0 ? nullptr : kind < 6 ? &Messages : &Comments;
    oldLayout = dice.Happens(300);
    fromOldest = dice.Happens(300);
    isLogged = dice.Happens(400);
    listFaultsInThousandLooks = dice.Below(15);
    killsInThousandLooks = dice.Below(6);
    skipsInThousandLooks = dice.Below(6);
    stopsInThousandLooks = dice.Below(4);
    startsInThousandLooks = dice.Below(3);
    lostAnswersInThousand = dice.Below(60);
    refusedDisksInThousandLooks = dice.Happens(200) ? 3 : 0;
    const int oddities = dice.Below(100);
    const int faults = dice.Below(120);
    controls =
        QStringList{u"incoming %1 %2"_s.arg(AccountID).arg(targets), u"accept-share accepted 100"_s,
                    u"message-share sent 100"_s, u"comment-share posted 100"_s, u"message-limit off"_s};
    practice::Incoming incoming(seed);
    incoming.SetCount(AccountID, targets);
    for (const qint64 id : incoming.Of(AccountID)) {
        ids.append(QString::number(id));
        PlanRequest(dice, ids.constLast(), oddities);
        PlanFollowUp(dice, ids.constLast(), faults);
    }
    const QString list = oldLayout ? u"messaging"_s + OldPages + u"mail.friendrequestsv3"_s
                                   : NewPages + u"my/requests/friendrequest"_s;
    for (const char* fault : PageFaults)
        listFaults.append(u"fault "_s + list + u' ' + QString::fromLatin1(fault) + u" times 1"_s);
}

void AcceptPlan::PlanRequest(Dice& dice, const QString& id, int oddities) {
    if (dice.Happens(15)) {
        gone.insert(id);
        controls.append(u"vanish "_s + id);
        return;
    }
    if (!dice.Happens(oddities))
        return;
    const QString outcome = QString::fromLatin1(dice.Pick(Oddities));
    controls.append(u"accept-outcome "_s + id + u' ' + outcome);
    if (outcome == u"stays"_s || outcome == u"never"_s)
        stuck.insert(id);
}

void AcceptPlan::PlanFollowUp(Dice& dice, const QString& id, int faults) {
    if (!followUp || gone.contains(id))
        return;
    const bool areMessages = followUp == &Messages;
    if (dice.Happens(50))
        controls.append(
            (areMessages ? u"message-outcome "_s : u"comment-outcome "_s) + id + u' ' +
            QString::fromLatin1(areMessages ? dice.Pick(MessageOutcomes) : dice.Pick(CommentOutcomes)));
    if (dice.Happens(faults))
        controls.append(u"fault "_s + PageOf(id) + u"$ "_s + QString::fromLatin1(dice.Pick(PageFaults)) +
                        u" times "_s + QString::number(dice.Between(1, 2)));
}

QString AcceptPlan::PageOf(const QString& id) const {
    if (followUp == &Messages)
        return oldLayout ? u"messaging"_s + OldPages + u"mail.message&friendid="_s + id
                         : NewPages + u"my/mail/new?t="_s + id;
    return oldLayout ? u"comment"_s + OldPages + u"user.viewprofile_commentform&friendid="_s + id
                     : NewPages + id + u"/comments"_s;
}

QString AcceptPlan::Describe() const {
    QStringList words{QString::number(ids.size()) + u" requests"_s};
    words.append(followUp ? QString::fromLatin1(followUp->what) : u"nothing after it"_s);
    if (oldLayout)
        words.append(u"old layout"_s);
    if (fromOldest)
        words.append(u"oldest first"_s);
    if (isLogged)
        words.append(u"logged"_s);
    return words.join(u", "_s);
}

} // namespace qlm::fire
