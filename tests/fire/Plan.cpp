// SPDX-License-Identifier: MIT
#include "Plan.h"
#include "practice/Refusals.h"

namespace qlm::fire {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int FirstTarget = 100101;

struct OutcomeShare {
    const char* word;
    int inThousand;
};

constexpr OutcomeShare Outcomes[] = {
    {"captcha", 40},     {"error-redirect", 30}, {"home", 10},  {"inbox", 10},
    {"server-error", 5}, {"private", 10},        {"limit", 15},
};

// Met at the next request of the page and used up. The kinds that live by a page's script are plain pages
// here.
constexpr const char* Faults[] = {"slow 200", "slow 5000", "slow 45000", "slow 150000", "hang",
                                  "reset",    "nobody",    "error",      "loggedout",   "limit",
                                  "captcha",  "alert",     "unload",     "endless",     "wrong",
                                  "lost",     "lost",      "blank",      "blank"};

QString Outcome(Dice& dice) {
    int drawn = dice.Below(1000);
    for (const OutcomeShare& row : Outcomes)
        if ((drawn -= row.inThousand) < 0)
            return QString::fromLatin1(row.word);
    return {};
}

} // namespace

Plan::Plan(quint64 seed, int targets) {
    Dice dice(seed * 2 + 1);
    removeAfterSent = dice.Happens(300);
    skipCaptchas = dice.Happens(500);
    filter = dice.Happens(150);
    oldLayout = dice.Happens(100);
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

    const QList<practice::Refusal> refusals = practice::Refusals();
    controls = QStringList{u"share sent 100"_s, u"captcha-kind mixed"_s};
    for (int i = 0; i < targets; ++i) {
        const QString id = QString::number(FirstTarget + i);
        ids.append(id);
        if (const QString outcome = Outcome(dice); !outcome.isEmpty()) {
            controls.append(u"outcome "_s + id + u' ' + outcome);
            if (outcome == u"error-redirect"_s)
                redirects.insert(id);
        } else if (dice.Happens(refusalsInThousand)) {
            const int number = refusals[dice.Below(static_cast<int>(refusals.size()))].number;
            controls.append(u"refuse "_s + id + u' ' + QString::number(number));
        }
        if (dice.Happens(faultsInThousand)) {
            const QString kind = QString::fromLatin1(dice.Pick(Faults));
            const QString page =
                filter && dice.Happens(500)
                    ? u"www.myspace.example.com/"_s + id + u"/classic$"_s
                    : (oldLayout && !filter ? u"friends.myspace.example.com/index.cfm?fuseaction="
                                              "invite.addfriend_verify&friendid="_s
                                            : u"www.myspace.example.com/my/friends/addtofriends/"_s) +
                          id + u'$';
            controls.append(u"fault "_s + page + u' ' + kind + u" times "_s +
                            QString::number(dice.Between(1, 2)));
            if (kind == u"lost"_s || kind == u"blank"_s)
                losesAnswer.insert(id);
        }
        if (dice.Happens(10))
            ids.append(ids[dice.Below(static_cast<int>(ids.size()))]);
    }
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
    add(delayTo > 0, u"delay %1 to %2 s"_s.arg(delayFrom).arg(delayTo));
    add(limit > 0, u"limit %1 %2"_s.arg(limit).arg(limitPerDay ? u"per day"_s : u"this session"_s));
    return words.join(u", "_s);
}

} // namespace qlm::fire
