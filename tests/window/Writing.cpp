// SPDX-License-Identifier: MIT
#include "Writing.h"

#include "campaigns/SentLog.h"
#include "gather/GatheredList.h"
#include "steps/RunReport.h"

#include <QFile>
#include <utility>

namespace qlm {

WritingTest::WritingTest() {
    for (const QString& line : {u"message-share sent 100"_s, u"comment-share posted 100"_s})
        program->site.Tell(line);
    QObject::connect(&m_looks, &QTimer::timeout, &m_looks, [this] { SkipIfStuck(); });
}

void WritingTest::Do(const std::function<void()>& act) {
    bool isDone = false;
    program->Act([&] {
        act();
        isDone = true;
    });
    if (!WaitUntil([&] { return isDone; }))
        throw std::runtime_error("the program does nothing any more");
}

void WritingTest::SkipWhereStuck(bool isWanted) {
    m_status.clear();
    m_sinceStatus.start();
    if (isWanted)
        m_looks.start(50);
    else
        m_looks.stop();
}

// Within the program's own waits nothing but a timer's turn comes.
void WritingTest::SkipIfStuck() {
    constexpr int SeveralLooksMs = 4000; // of three seconds each of the program's clock
    const QString status = IsIdle() ? QString() : TheApp().Status();
    if (std::exchange(m_status, status) != status || status.isEmpty())
        m_sinceStatus.restart();
    if (m_sinceStatus.elapsed() < SeveralLooksMs)
        return;
    m_sinceStatus.restart();
    program->Act([] {
        if (TheApp().WebBrowser1().LocationURL().startsWith(u"http"_s) &&
            TheApp().WebBrowser1().ReadyState() == 4)
            TheApp().commands.Run(u"picSkip_Click"_s);
    });
}

void WritingTest::Begin(const Campaign& campaign, const QList<qint64>& targets, bool newLayout) {
    program->site.TakeJournal();
    m_loggedBefore = Log(campaign).size();
    Do([&] {
        App& app = TheApp();
        app.state.blnNewLayout = newLayout;
        app.commands.Run(u"piccmdClearList_Click"_s);
        for (const qint64 target : targets)
            app.Get<GatheredList>().Add(QString::number(target), u"test"_s);
        app.controls.SetText("txtMsgSubject"_L1, subject);
        app.controls.SetText("txtMsgMessage"_L1, text);
        app.controls.SetText("txtComment"_L1, text);
        app.commands.Run(QString::fromLatin1(campaign.send) + u"_Click"_s);
    });
}

QStringList WritingTest::Finish() {
    isInTime = WaitUntil([] { return IsIdle(); }, LimitMs);
    if (!isInTime)
        Do([] { TheApp().commands.Run(u"picStop_Click"_s); });
    journal = program->site.TakeJournal();
    QStringList arrived;
    for (const QString& line : journal)
        if (line.startsWith(u"messaged "_s) || line.startsWith(u"commented "_s))
            arrived += line;
    return arrived;
}

QStringList WritingTest::Send(const Campaign& campaign, const QList<qint64>& targets, bool newLayout) {
    Begin(campaign, targets, newLayout);
    return Finish();
}

QStringList WritingTest::Report(const Campaign& campaign) {
    QStringList lines;
    const QList<ReportedRun> runs = TheApp().Get<RunReport>().Runs(campaign.report);
    for (const ReportRow& row : runs.isEmpty() ? QList<ReportRow>() : runs.constLast().rows)
        lines += ResultText(row.result) +
                 (row.pageClass == 0 ? QString() : u", class %1"_s.arg(row.pageClass)) +
                 (row.why.isEmpty() ? QString() : u": "_s + row.why);
    return lines;
}

QString WritingTest::Ending(const Campaign& campaign) {
    const QList<ReportedRun> runs = TheApp().Get<RunReport>().Runs(campaign.report);
    return runs.isEmpty() ? QString() : runs.constLast().how;
}

QStringList WritingTest::Log(const Campaign& campaign) {
    QFile file(SentLog(TheApp(), &campaign).Path());
    const QString lines = file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    return lines.split(u"\r\n"_s, Qt::SkipEmptyParts);
}

QStringList WritingTest::Logged(const Campaign& campaign) const {
    return Log(campaign).mid(m_loggedBefore);
}

} // namespace qlm
