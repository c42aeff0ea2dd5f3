// SPDX-License-Identifier: MIT
#pragma once

#include "GatheringProgram.h"
#include "PrintText.h"
#include "Waiting.h"
#include "campaigns/Campaigns.h"

#include <QElapsedTimer>
#include <QTimer>
#include <gtest/gtest.h>

namespace qlm {

// A program that sends messages and comments to people of the practice site, several tests long, and what
// became of them. Everybody takes what they get, unless a test says otherwise.
class WritingTest : public testing::Test {
protected:
    // A button that wakes up takes its time by the wall's clock, and the program waits by its own.
    static constexpr int ClockRate = 2;
    static constexpr int LimitMs = 120 * 1000;

    static void SetUpTestSuite() { program = std::make_unique<GatheringProgram>(ClockRate); }
    static void TearDownTestSuite() { program.reset(); }
    WritingTest();

    static App& TheApp() { return program->Program(); }
    static void Do(const std::function<void()>& act);
    static bool IsIdle() { return TheApp().state.CurrentAction.isEmpty(); }
    // The user presses Skip in the next runs where the program has waited at a complete page for several of
    // its looks.
    void SkipWhereStuck(bool isWanted);

    // Presses Send and waits until the run is over; then what has arrived of it, as the journal says it. The
    // texts are these.
    QStringList Send(const Campaign& campaign, const QList<qint64>& targets, bool newLayout);

    // The line of a text that arrives as it was typed.
    QString Message(qint64 target) const {
        return u"messaged 900001 %1 \"%2\" \"%3\""_s.arg(target).arg(subject, text);
    }
    QString Comment(qint64 target) const { return u"commented 900001 %1 \"%2\""_s.arg(target).arg(text); }

    // What the last run's report says of each target: "Failed, class 4: why".
    static QStringList Report(const Campaign& campaign);
    // How it says that the run ended.
    static QString Ending(const Campaign& campaign);
    // Who stands in the log since the run began.
    QStringList Logged(const Campaign& campaign) const;

    QString subject = u"Hello from the road"_s;
    QString text = u"We play on Friday, come along."_s;
    QStringList journal; // of the finished run
    bool isInTime = false;
    inline static std::unique_ptr<GatheringProgram> program;

private:
    static QStringList Log(const Campaign& campaign);
    void Begin(const Campaign& campaign, const QList<qint64>& targets, bool newLayout);
    QStringList Finish();
    void SkipIfStuck();

    QTimer m_looks;
    QString m_status;
    QElapsedTimer m_sinceStatus;
    qsizetype m_loggedBefore = 0;
};

} // namespace qlm
