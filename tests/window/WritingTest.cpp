// SPDX-License-Identifier: MIT
// Messages and comments through every design of the site's forms, on the real engine, compared with what has
// arrived.
#include "GatheringProgram.h"
#include "PrintText.h"
#include "Waiting.h"
#include "gather/GatheredList.h"
#include "practice/CommentDesigns.h"
#include "practice/ComposeDesigns.h"
#include "practice/FormChoice.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

// A button that wakes up takes its time by the wall's clock, and the program waits by its own.
constexpr int ClockRate = 2;
constexpr int LimitMs = 60 * 1000;
const QString Subject = u"Hello from the road"_s;
const QString Text = u"We play on Friday, come along."_s;

class Writing : public testing::Test {
protected:
    static void SetUpTestSuite() { program = std::make_unique<GatheringProgram>(ClockRate); }
    static void TearDownTestSuite() { program.reset(); }

    static App& TheApp() { return program->Program(); }

    void Do(const std::function<void()>& act) {
        bool isDone = false;
        program->Act([&] {
            act();
            isDone = true;
        });
        WaitUntil([&] { return isDone; });
    }

    // What the journal says of one target of a run.
    QStringList Send(const char* word, const QString& command, qint64 target, bool newLayout) {
        program->site.TakeJournal();
        Do([&] {
            App& app = TheApp();
            app.state.blnNewLayout = newLayout;
            app.commands.Run(u"piccmdClearList_Click"_s);
            app.Get<GatheredList>().Add(QString::number(target), u"test"_s);
            app.controls.SetText("txtMsgSubject"_L1, Subject);
            app.controls.SetText("txtMsgMessage"_L1, Text);
            app.controls.SetText("txtComment"_L1, Text);
            app.commands.Run(command);
        });
        isInTime = WaitUntil([] { return TheApp().state.CurrentAction.isEmpty(); }, LimitMs);
        if (!isInTime)
            Do([] { TheApp().commands.Run(u"picStop_Click"_s); });
        QStringList lines;
        for (const QString& line : program->site.TakeJournal())
            if (line.startsWith(QString::fromLatin1(word)))
                lines += line;
        return lines;
    }

    bool isInTime = false;
    static std::unique_ptr<GatheringProgram> program;
};

std::unique_ptr<GatheringProgram> Writing::program;

TEST_F(Writing, AMessageArrivesThroughEachEverydayForm) {
    for (const practice::ComposeDesign& design : practice::ComposeDesigns()) {
        if (design.hard)
            continue;
        const qint64 target = practice::FirstWithForm(practice::ComposeDesigns(), design);
        const QStringList arrived = Send("messaged ", u"picCmdMsgSend_Click"_s, target, !design.older);
        EXPECT_TRUE(isInTime) << design.name.toString().toStdString();
        EXPECT_EQ(arrived, QStringList{u"messaged 900001 %1 \"%2\" \"%3\""_s.arg(target).arg(Subject, Text)})
            << design.name.toString().toStdString();
    }
}

TEST_F(Writing, ACommentArrivesThroughEachEverydayForm) {
    for (const practice::CommentDesign& design : practice::CommentDesigns()) {
        if (design.hard)
            continue;
        const qint64 target = practice::FirstWithForm(practice::CommentDesigns(), design);
        const QStringList arrived = Send("commented ", u"picCmdComSend_Click"_s, target, !design.older);
        EXPECT_TRUE(isInTime) << design.name.toString().toStdString();
        EXPECT_EQ(arrived, QStringList{u"commented 900001 %1 \"%2\""_s.arg(target).arg(Text)})
            << design.name.toString().toStdString();
    }
}

} // namespace
} // namespace qlm
