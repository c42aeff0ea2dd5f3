// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QStringList>
#include <random>

namespace qlm {
struct Campaign;
}

namespace qlm::fire {

// All chance of one trial.
class Dice {
public:
    explicit Dice(quint64 seed) : m_engine(seed) {}
    // A number from 0 to below the limit.
    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<quint64>(limit)); }
    int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
    bool Happens(int timesInThousand) { return Below(1000) < timesInThousand; }
    template <typename T, size_t N> const T& Pick(const T (&choices)[N]) {
        return choices[Below(static_cast<int>(N))];
    }

private:
    std::mt19937_64 m_engine;
};

// What a seed decides before anything runs: who is on the list, how the site meets each of them, what the
// user has chosen.
struct Plan {
    Plan(quint64 seed, int targets, const Campaign& campaign);

    const Campaign* campaign;
    QStringList ids;           // in the order of the list; some may stand there twice
    QStringList controls;      // for the practice site
    QSet<QString> losesAnswer; // the site acts on the request and its answer does not arrive
    QSet<QString> redirects;   // the request goes out and the site answers with its error page
    // What becomes of the site's answer to what is sent to that person, once.
    enum class Reply { Reset, NoBody, Hang, Late, VeryLate };
    QHash<QString, Reply> replies;
    bool holdsMarkup = false; // the text
    bool removeAfterSent = false;
    bool skipCaptchas = false;
    bool filter = false;
    bool oldLayout = false;
    int delayFrom = 0;
    int delayTo = 0;
    int limit = 0; // 0 for none
    bool limitPerDay = false;
    int killsInThousandLooks = 0;
    int skipsInThousandLooks = 0;
    int stopsInThousandLooks = 0;
    int refusedDisksInThousandLooks = 0;

    QString Describe() const;

private:
    bool IsOldPage() const { return oldLayout && !filter; }
    // One target each; the chances are in a thousand.
    void PlanRequest(Dice& dice, const QString& id, int refusals, int faults);
    void PlanWriting(Dice& dice, const QString& id, int refusals, int faults);
    void PlanFault(const QString& page, const QString& kind, int times);
    QString PageOf(const QString& id) const;
    QString DrawForm(Dice& dice) const;
};

} // namespace qlm::fire
