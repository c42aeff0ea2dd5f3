// SPDX-License-Identifier: MIT
// Messages and comments that the site doesn't take, or not at once, on the real engine.
#include "Writing.h"

#include <span>

namespace qlm {

// No button of these pages wakes up by the wall's clock.
class RefusedWriting : public WritingTest {
protected:
    static void SetUpTestSuite() { program = std::make_unique<GatheringProgram>(2 * ClockRate); }

    RefusedWriting() {
        QObject::connect(&m_looks, &QTimer::timeout, &m_looks, [this] {
            if (!IsIdle())
                program->Act([this] { AnswerCaptcha(); });
        });
    }

    void TearDown() override {
        m_looks.stop();
        Do([] {}); // what is still queued is done before
        program->site.Tell(u"mail 900001 on"_s);
    }

    // The user types these into the pages that ask for a word, one into each, and sends them. Within the
    // program's own waits nothing but a timer's turn comes.
    void AnswerCaptchas(const QStringList& words) {
        m_words = words;
        m_looks.start(100);
    }
    qsizetype WordsLeft() const { return m_words.size(); }

private:
    void AnswerCaptcha() {
        BrowserControl& browser = TheApp().WebBrowser1();
        const Document page = browser.ReadyState() == 4 ? browser.Document() : Document();
        const Element field = page ? page.GetElementById(u"captchaText"_s) : Element();
        if (m_words.isEmpty() || !field || !field.Value().isEmpty() ||
            TheApp().Status() != u"Waiting for user to enter and submit CAPTCHA..."_s)
            return;
        field.SetValue(m_words.takeFirst());
        field.Submit();
    }

    QTimer m_looks;
    QStringList m_words;
};

namespace {

struct Answered {
    const char16_t* answer;
    bool arrives;
    bool isLogged; // its line is written at the press
    const char16_t* report;
};

constexpr Answered MessageAnswers[] = {
    {u"cannot", false, false, u"Failed, class 4: Messages to this person are not allowed"},
    {u"friends-only", false, false, u"Failed, class 22: Only friends may write to this person"},
    {u"only-friends", false, false, u"Failed, class 22: Only friends may write to this person"},
    {u"maintenance", false, false, u"Failed, class 20: The site's mail is under maintenance"},
    {u"away", false, true, u"Failed, class 23: Has an away message"},
    {u"error", false, true, u"Failed, class 21: The site could not send"},
    {u"process-error", false, true, u"Failed, class 25: The site could not process the request"},
    {u"home", false, true, u"Failed: The site did not confirm it"},
    {u"sent", true, true, u"Sent"},
};

constexpr Answered OlderCommentAnswers[] = {
    {u"friends-only", false, false, u"Failed, class 15: Only friends may comment on this profile"},
    {u"private", false, false, u"Failed, class 16: The profile is private"},
    {u"approval", true, true, u"Sent"},
    {u"approval-alone", true, true, u"Sent"},
    {u"no-html", false, false, u"Failed: The profile takes no HTML in comments"},
    {u"posted", true, true, u"Sent"},
};

constexpr Answered NewerCommentAnswers[] = {
    {u"friends-only", false, false, u"Failed: Only friends may comment on this profile"},
    {u"private", false, false, u"Failed, class 16: The profile is private"},
    {u"unable", false, false, u"Failed: The site could not add the comment"},
    {u"approval", true, true, u"Sent"},
    {u"no-html", true, true, u"Sent"},
    {u"posted", true, true, u"Sent"},
};

} // namespace

// Whoever comes after them all takes everything.
TEST_F(RefusedWriting, EachAnswerToAMessageIsToldAsWhatItIs) {
    qint64 target = 100301;
    for (const bool newLayout : {false, true}) {
        SCOPED_TRACE(newLayout);
        QList<qint64> targets;
        QStringList arrives, report, logged;
        for (const Answered& row : MessageAnswers) {
            const QString id = QString::number(target);
            program->site.Tell(u"compose %1 %2"_s.arg(id, newLayout ? u"source"_s : u"mailbody"_s));
            program->site.Tell(u"message-outcome %1 %2"_s.arg(id, QString::fromUtf16(row.answer)));
            report += QString::fromUtf16(row.report);
            logged += row.isLogged ? QStringList{id} : QStringList();
            arrives += row.arrives ? QStringList{Message(target)} : QStringList();
            targets += target++;
        }
        EXPECT_EQ(Send(Messages, targets, newLayout), arrives);
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(Report(Messages), report);
        EXPECT_EQ(Logged(Messages), logged);
    }
}

TEST_F(RefusedWriting, EachAnswerToACommentIsToldAsWhatItIs) {
    qint64 target = 100401;
    for (const bool newLayout : {false, true}) {
        SCOPED_TRACE(newLayout);
        const std::span<const Answered> rows =
            newLayout ? std::span<const Answered>(NewerCommentAnswers) : OlderCommentAnswers;
        QList<qint64> targets;
        QStringList arrives, report, logged;
        for (const Answered& row : rows) {
            const QString id = QString::number(target);
            program->site.Tell(u"comment-form %1 %2"_s.arg(id, newLayout ? u"box"_s : u"plain"_s));
            program->site.Tell(u"comment-outcome %1 %2"_s.arg(id, QString::fromUtf16(row.answer)));
            report += QString::fromUtf16(row.report);
            logged += row.isLogged ? QStringList{id} : QStringList();
            arrives += row.arrives ? QStringList{Comment(target)} : QStringList();
            targets += target++;
        }
        EXPECT_EQ(Send(Comments, targets, newLayout), arrives);
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(Report(Comments), report);
        EXPECT_EQ(Logged(Comments), logged);
    }
}

// The older page alone says so; whoever comes after it is not written to.
TEST_F(RefusedWriting, AFloodEndsTheRun) {
    program->site.Tell(u"comment-outcome 100502 flooding"_s);
    for (const qint64 target : {100501, 100502})
        program->site.Tell(u"comment-form %1 plain"_s.arg(target));
    EXPECT_EQ(Send(Comments, {100501, 100502, 100503}, false), QStringList{Comment(100501)});
    EXPECT_TRUE(isInTime);
    EXPECT_EQ(Ending(Comments), u"The site says that you are flooding comments"_s);
    EXPECT_EQ(Logged(Comments), QStringList{u"100501"_s});
    EXPECT_TRUE(journal.filter(u"100503"_s).isEmpty()) << journal.join(u'\n').toStdString();
}

TEST_F(RefusedWriting, AnAccountWithoutMailSendsNothing) {
    program->site.Tell(u"mail 900001 off"_s);
    for (const bool newLayout : {false, true}) {
        SCOPED_TRACE(newLayout);
        EXPECT_EQ(Send(Messages, {100601, 100602}, newLayout), QStringList());
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(Report(Messages),
                  QStringList(2, u"Failed: The site wants you to set up your mail first"_s));
        EXPECT_EQ(Logged(Messages), QStringList());
    }
}

TEST_F(RefusedWriting, AMessageArrivesOnceAfterAWrongWordAndTheRightOne) {
    program->site.Tell(u"captcha-word zebra"_s);
    qint64 target = 100701;
    for (const bool newLayout : {false, true}) {
        SCOPED_TRACE(newLayout);
        program->site.Tell(u"compose %1 %2"_s.arg(target).arg(newLayout ? u"source"_s : u"mailbody"_s));
        program->site.Tell(u"message-outcome %1 captcha"_s.arg(target));
        AnswerCaptchas({u"wrong"_s, u"zebra"_s});
        EXPECT_EQ(Send(Messages, {target, target + 1}, newLayout),
                  (QStringList{Message(target), Message(target + 1)}));
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(WordsLeft(), 0);
        EXPECT_EQ(journal.filter(u"captcha-wrong"_s).size(), 1) << journal.join(u'\n').toStdString();
        EXPECT_EQ(Report(Messages), (QStringList{u"Sent"_s, u"Sent"_s}));
        EXPECT_EQ(Logged(Messages), (QStringList{QString::number(target), QString::number(target + 1)}));
        target += 2;
    }
}

TEST_F(RefusedWriting, ACommentArrivesOnceAfterAWrongWordAndTheRightOne) {
    program->site.Tell(u"captcha-word zebra"_s);
    qint64 target = 100801;
    for (const bool newLayout : {false, true}) {
        SCOPED_TRACE(newLayout);
        program->site.Tell(u"comment-form %1 %2"_s.arg(target).arg(newLayout ? u"box"_s : u"plain"_s));
        program->site.Tell(u"comment-outcome %1 captcha"_s.arg(target));
        AnswerCaptchas({u"wrong"_s, u"zebra"_s});
        EXPECT_EQ(Send(Comments, {target, target + 1}, newLayout),
                  (QStringList{Comment(target), Comment(target + 1)}));
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(WordsLeft(), 0);
        EXPECT_EQ(journal.filter(u"captcha-wrong"_s).size(), 1) << journal.join(u'\n').toStdString();
        EXPECT_EQ(Report(Comments), (QStringList{u"Sent"_s, u"Sent"_s}));
        EXPECT_EQ(Logged(Comments), (QStringList{QString::number(target), QString::number(target + 1)}));
        target += 2;
    }
}

} // namespace qlm
