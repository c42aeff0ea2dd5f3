// SPDX-License-Identifier: MIT
#include "Plan.h"
#include "campaigns/Campaigns.h"
#include "practice/CommentDesigns.h"
#include "practice/ComposeDesigns.h"
#include "practice/Refusals.h"

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int FirstTarget = 100101;

struct OutcomeShare {
    const char* word;
    int inThousand;
};

constexpr OutcomeShare RequestOutcomes[] = {
    {"captcha", 40},     {"error-redirect", 30}, {"home", 10},  {"inbox", 10},
    {"server-error", 5}, {"private", 10},        {"limit", 15},
};

constexpr OutcomeShare MessageOutcomes[] = {
    {"captcha", 40}, {"away", 20},       {"cannot", 10},       {"friends-only", 10}, {"only-friends", 10},
    {"error", 10},   {"maintenance", 5}, {"process-error", 5}, {"captcha-home", 5},  {"home", 5},
};

constexpr OutcomeShare CommentOutcomes[] = {
    {"captcha", 40}, {"no-html", 30}, {"approval", 20},      {"friends-only", 10}, {"private", 10},
    {"unable", 10},  {"flooding", 5}, {"approval-alone", 5}, {"home", 5},
};

// Met at the next request of the page and used up. The kinds that live by a page's script are plain pages
// here.
constexpr const char* Faults[] = {"slow 200", "slow 5000", "slow 45000", "slow 150000", "hang",
                                  "reset",    "nobody",    "error",      "loggedout",   "limit",
                                  "captcha",  "alert",     "unload",     "endless",     "wrong",
                                  "lost",     "lost",      "blank",      "blank"};

template <size_t N> QString Outcome(Dice& dice, const OutcomeShare (&rows)[N]) {
    int drawn = dice.Below(1000);
    for (const OutcomeShare& row : rows)
        if ((drawn -= row.inThousand) < 0)
            return QString::fromLatin1(row.word);
    return {};
}

QString Refusal(Dice& dice) {
    static const QList<practice::Refusal> refusals = practice::Refusals();
    return QString::number(refusals[dice.Below(static_cast<int>(refusals.size()))].number);
}

QString ProfileOf(const QString& id) {
    return u"www.myspace.example.com/"_s + id + u"/classic"_s;
}

} // namespace

Plan::Plan(quint64 seed, int targets, const Campaign& theCampaign) : campaign(&theCampaign) {
    Dice dice(seed * 2 + 1);
    removeAfterSent = dice.Happens(300);
    skipCaptchas = dice.Happens(500);
    filter = dice.Happens(150);
    oldLayout = dice.Happens(campaign == &FriendRequests ? 100 : 400);
    if (dice.Happens(300)) {
        delayFrom = dice.Below(3);
        delayTo = delayFrom + dice.Below(3);
    }
    if (dice.Happens(400)) {
        limit = dice.Between(targets / 10, targets / 2);
        limitPerDay = dice.Happens(400);
    }
    killsInThousandLooks = dice.Below(8);
    skipsInThousandLooks = dice.Below(6);
    stopsInThousandLooks = dice.Below(4);
    refusedDisksInThousandLooks = dice.Happens(200) ? 3 : 0;
    const int faultsInThousand = dice.Below(150);
    const int refusalsInThousand = dice.Below(200);

    const bool areRequests = campaign == &FriendRequests;
    controls = QStringList{u"share sent 100"_s, u"captcha-kind mixed"_s, u"message-share sent 100"_s,
                           u"comment-share posted 100"_s};
    if (!areRequests)
        holdsMarkup = dice.Happens(200);
    for (int i = 0; i < targets; ++i) {
        const QString id = QString::number(FirstTarget + i);
        ids.append(id);
        (this->*(areRequests ? &Plan::PlanRequest : &Plan::PlanWriting))(dice, id, refusalsInThousand,
                                                                         faultsInThousand);
        if (dice.Happens(10))
            ids.append(ids[dice.Below(static_cast<int>(ids.size()))]);
    }
}

void Plan::PlanRequest(Dice& dice, const QString& id, int refusals, int faults) {
    if (const QString outcome = Outcome(dice, RequestOutcomes); !outcome.isEmpty()) {
        controls.append(u"outcome "_s + id + u' ' + outcome);
        if (outcome == u"error-redirect"_s)
            redirects.insert(id);
    } else if (dice.Happens(refusals)) {
        controls.append(u"refuse "_s + id + u' ' + Refusal(dice));
    }
    if (!dice.Happens(faults))
        return;
    const QString kind = QString::fromLatin1(dice.Pick(Faults));
    const bool isProfile = filter && dice.Happens(500);
    PlanFault(isProfile ? ProfileOf(id) : PageOf(id), kind, dice.Between(1, 2));
    if (kind == u"lost"_s || kind == u"blank"_s)
        losesAnswer.insert(id);
}

void Plan::PlanWriting(Dice& dice, const QString& id, int refusals, int faults) {
    const bool areMessages = campaign == &Messages;
    const QString word = areMessages ? u"message"_s : u"comment"_s;
    const QString outcome = areMessages ? Outcome(dice, MessageOutcomes) : Outcome(dice, CommentOutcomes);
    if (!outcome.isEmpty())
        controls.append(word + u"-outcome "_s + id + u' ' + outcome);
    else if (dice.Happens(refusals))
        controls.append(word + u"-refuse "_s + id + u' ' + Refusal(dice));
    if (dice.Happens(50))
        controls.append((areMessages ? u"compose "_s : u"comment-form "_s) + id + u' ' + DrawForm(dice));
    if (dice.Happens(faults)) {
        const bool isProfile = filter && dice.Happens(300);
        const QString kind = QString::fromLatin1(dice.Pick(Faults));
        PlanFault(isProfile ? ProfileOf(id) : PageOf(id), kind, dice.Between(1, 2));
    }
    if (dice.Happens(faults))
        replies.insert(id, Reply(dice.Below(5)));
}

void Plan::PlanFault(const QString& page, const QString& kind, int times) {
    controls.append(u"fault "_s + page + u"$ "_s + kind + u" times "_s + QString::number(times));
}

QString Plan::PageOf(const QString& id) const {
    const QString old = u".myspace.example.com/index.cfm?fuseaction="_s;
    const QString now = u"www.myspace.example.com/"_s;
    if (campaign == &Messages)
        return IsOldPage() ? u"messaging"_s + old + u"mail.message&friendid="_s + id
                           : now + u"my/mail/new?t="_s + id;
    if (campaign == &Comments)
        return IsOldPage() ? u"comment"_s + old + u"user.viewprofile_commentform&friendid="_s + id
                           : now + id + u"/comments"_s;
    return IsOldPage() ? u"friends"_s + old + u"invite.addfriend_verify&friendid="_s + id
                       : now + u"my/friends/addtofriends/"_s + id;
}

// Any of the layout's, the hard ones too.
QString Plan::DrawForm(Dice& dice) const {
    QStringList names;
    const auto take = [&](const auto& rows) {
        for (const auto& row : rows)
            if (row.older == IsOldPage())
                names.append(row.name.toString());
    };
    if (campaign == &Messages)
        take(practice::ComposeDesigns());
    else
        take(practice::CommentDesigns());
    return names[dice.Below(static_cast<int>(names.size()))];
}

QString Plan::Describe() const {
    QStringList words{QString::number(ids.size()) + u" entries"_s};
    auto add = [&words](bool is, const QString& word) {
        if (is)
            words.append(word);
    };
    add(removeAfterSent, u"removed after sent"_s);
    add(skipCaptchas, u"CAPTCHAs put off"_s);
    add(filter, u"filter"_s);
    add(oldLayout, u"old layout"_s);
    add(holdsMarkup, u"markup"_s);
    add(delayTo > 0, u"delay %1 to %2 s"_s.arg(delayFrom).arg(delayTo));
    add(limit > 0, u"limit %1 %2"_s.arg(limit).arg(limitPerDay ? u"per day"_s : u"this session"_s));
    return words.join(u", "_s);
}

} // namespace qlm::fire
