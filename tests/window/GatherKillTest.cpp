// SPDX-License-Identifier: MIT
// A gathering program is killed at many moments, the saving at its end among them. The list's file is written
// when the program closes: it is the old one or the new one, whole, and the next gather starts from it.
#include "Gatherer.h"
#include "GatheringProgram.h"
#include "PrintText.h"
#include "ProgramProcess.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace qlm {
namespace {

// So long after the page of that number; after the last one the program finishes and saves.
struct Moment {
    int page;
    int afterMs;
};

constexpr int Pages = 4;
constexpr Moment Moments[] = {{0, 0},       {1, 60},      {2, 200},     {3, 10},      {Pages, 0},
                              {Pages, 150}, {Pages, 300}, {Pages, 450}, {Pages, 600}, {Pages, 800}};

class GatherKill : public testing::Test {
protected:
    GatherKill() {
        site.Tell(u"journal shown on"_s);
        site.Tell(u"friends 100001 40"_s);
        site.Tell(u"list friends 40 10"_s);
        folders.SaveList(before);
    }

    QByteArray Saved() const { return folders.Read(folders.File(u"Gathered.txt"_s)); }
    QByteArray File(const QStringList& ids) const { return ids.join(u"\r\n"_s).toLatin1() + "\r\n"; }
    // Pages of the list that were delivered since the last time that it was asked.
    int PagesSince() {
        for (const QString& line : site.TakeJournal()) {
            if (!line.startsWith(u"shown "_s))
                continue;
            ++pages;
            shown.byNumber += line.split(u' ').mid(2);
        }
        return pages;
    }

    SiteProcess site;
    UsedProgram folders{site.Port()};
    const QStringList before{u"42"_s, u"43"_s, u"44"_s};
    ShownPeople shown;
    int pages = 0;
};

} // namespace

TEST_F(GatherKill, TheListIsTheOldOrTheNewOneWholeAtEveryMoment) {
    const QStringList arguments{u"--gatherer"_s, folders.Folder()};
    const QString self = QCoreApplication::applicationFilePath();
    {
        ProgramProcess whole(self, arguments);
        ASSERT_TRUE(whole.WaitForEnd()) << whole.Output().toStdString();
        ASSERT_EQ(whole.ExitCode(), 0) << whole.Output().toStdString();
        ASSERT_EQ(PagesSince(), Pages);
    }
    const QByteArray all = File(before + shown.Quick());
    EXPECT_EQ(Saved(), all);

    int oldOnes = 0;
    int newOnes = 0;
    for (const Moment& moment : Moments) {
        SCOPED_TRACE(testing::Message() << "page " << moment.page << ", " << moment.afterMs << " ms");
        folders.SaveList(before);
        site.TakeJournal();
        pages = 0;
        ProgramProcess program(self, arguments);
        ASSERT_TRUE(WaitUntil([&] { return PagesSince() >= moment.page || !program.IsRunning(); }));
        LetPass(moment.afterMs);
        program.Kill();
        const QByteArray saved = Saved();
        EXPECT_TRUE(saved == File(before) || saved == all) << saved.toStdString();
        ++(saved == all ? newOnes : oldOnes);
    }
    EXPECT_GE(oldOnes, 4);
    std::printf("%d old lists, %d new ones\n", oldOnes, newOnes);

    // What a kill left behind is no hindrance to the next gather.
    ProgramProcess again(self, arguments);
    ASSERT_TRUE(again.WaitForEnd()) << again.Output().toStdString();
    EXPECT_EQ(again.ExitCode(), 0) << again.Output().toStdString();
    EXPECT_EQ(Saved(), all);
}

} // namespace qlm
