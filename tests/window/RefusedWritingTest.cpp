// SPDX-License-Identifier: MIT
// Messages and comments that the site doesn't take, on the real engine.
#include "Writing.h"

namespace qlm {

// No button of these pages wakes up by the wall's clock.
class RefusedWriting : public WritingTest {
protected:
    static void SetUpTestSuite() { program = std::make_unique<GatheringProgram>(2 * ClockRate); }
    void TearDown() override { program->site.Tell(u"mail 900001 on"_s); }
};

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

} // namespace qlm
