// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/BulletinDots.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class BulletinDotsTest : public SimulatedProgram {
protected:
    BulletinDotsTest() { Type(u"news"_s); }
    void Type(const QString& text) { app->controls.SetText("txtBulMessage"_L1, text); }
    QString Stored(const QString& key) { return world.settings.GetSetting(u"Bulletins"_s, key, u"none"_s); }
};

TEST_F(BulletinDotsTest, ADotMoreEachTime) {
    EXPECT_EQ(GetBulletinDots(*app), QString());
    EXPECT_EQ(GetBulletinDots(*app), u".\r\n"_s);
    EXPECT_EQ(GetBulletinDots(*app), u"..\r\n"_s);
    EXPECT_EQ(Stored(u"DotCount"_s), u"3"_s);
    EXPECT_EQ(Stored(u"First Post Message"_s), u"news"_s);
}

TEST_F(BulletinDotsTest, AnotherMessageBeginsAnew) {
    GetBulletinDots(*app);
    GetBulletinDots(*app);
    Type(u"other news"_s);
    EXPECT_EQ(GetBulletinDots(*app), QString());
    EXPECT_EQ(GetBulletinDots(*app), u".\r\n"_s);
}

TEST_F(BulletinDotsTest, ADayLaterItBeginsAnew) {
    GetBulletinDots(*app);
    const QString first = Stored(u"First Post DateTime"_s);
    platform->Pump().RunFor(24 * 60 * 60 * 1000 - 1000);
    EXPECT_EQ(GetBulletinDots(*app), u".\r\n"_s);
    EXPECT_EQ(Stored(u"First Post DateTime"_s), first);
    platform->Pump().RunFor(1000);
    EXPECT_EQ(GetBulletinDots(*app), QString());
    EXPECT_NE(Stored(u"First Post DateTime"_s), first);
}

TEST_F(BulletinDotsTest, AStoredTimeThatIsNoneBeginsAnew) {
    GetBulletinDots(*app);
    world.settings.SaveSetting(u"Bulletins"_s, u"First Post DateTime"_s, u"soon"_s);
    EXPECT_EQ(GetBulletinDots(*app), QString());
}

} // namespace
} // namespace qlm
