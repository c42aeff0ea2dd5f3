// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/TargetName.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

struct NameCase {
    const char16_t* name;
    const char16_t* cleaned;
};

class CleanNameTest : public testing::TestWithParam<NameCase> {};

TEST_P(CleanNameTest, KeepsAFirstNameOrNothing) {
    EXPECT_EQ(CleanTargetName(QString::fromUtf16(GetParam().name)), QString::fromUtf16(GetParam().cleaned));
}

INSTANTIATE_TEST_SUITE_P(Names, CleanNameTest,
                         testing::Values(NameCase{u"JOHN SMITH", u"John"}, NameCase{u"mary", u"Mary"},
                                         NameCase{u"Mary Jane Lee", u"Mary"},
                                         NameCase{u"One Two Three Four", u""}, NameCase{u"Ren\u00e9", u""},
                                         NameCase{u"Dr. Who", u""}, NameCase{u"O'Neill", u""},
                                         NameCase{u"A & B", u""}, NameCase{u"Tom\tJones", u""},
                                         NameCase{u"DJ-99", u"Dj-99"}, NameCase{u"mary-ann", u"Mary-ann"},
                                         NameCase{u"4ever", u"4ever"}, NameCase{u"", u""}));

class TargetNameTest : public SimulatedProgram {
protected:
    // The name on that page, in the layout.
    QString NameOn(const QString& body, const QString& kind, bool newLayout) {
        app->state.blnNewLayout = newLayout;
        world.web.SetPage(u"http://www.example.com/page"_s, u"<html><body>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(u"http://www.example.com/page"_s);
        platform->Pump().RunFor(1000);
        return GetTargetName(*app, app->WebBrowser1().Document().BodyHTML(), kind);
    }
    static QString Read(App& program, const QString& html, const QString& kind, bool newLayout) {
        program.state.blnNewLayout = newLayout;
        return GetTargetName(program, html, kind);
    }
};

TEST_F(TargetNameTest, OfAMessageInTheOldLayoutStandsBehindItsTextBox) {
    const QString kind = u"Message"_s;
    EXPECT_EQ(Read(*app,
                   u"<a class=\"RcptText\">no</a><div id=\"toBox\"><b>x</b><SPAN class=\"rcpttext\" x>JOHN "
                   "SMITH</SPAN></div>"_s,
                   kind, false),
              u"John"_s);
    EXPECT_EQ(Read(*app, u"<div id=\"TOBOX\"><span class=\"rcptText\">John</span></div>"_s, kind, false),
              QString());
    EXPECT_EQ(Read(*app, u"<div id=\"toBox\"><span>John</span></div>"_s, kind, false), QString());
    EXPECT_EQ(Read(*app, u"<div id=\"toBox\"><span class=\"rcptText\">John"_s, kind, false), QString());
}

TEST_F(TargetNameTest, OfAMessageInTheNewLayoutIsTheFirstPictureOfTheBox) {
    const QString kind = u"Message"_s;
    EXPECT_EQ(NameOn(u"<img alt=\"Other\"><div id=\"toBox\"><p><img alt=\"Ann Lee\"></p><img "
                     "alt=\"Bob\"></div>"_s,
                     kind, true),
              u"Ann"_s);
    EXPECT_EQ(NameOn(u"<img alt=\"Other\"><div id=\"toBox\"></div>"_s, kind, true), QString());
    EXPECT_EQ(NameOn(u"<p>no box</p>"_s, kind, true), QString());
    EXPECT_FALSE(app->files.FileExists(app->state.ErrorLogPath));
}

TEST_F(TargetNameTest, OfACommentInTheOldLayoutStandsBehindTheHeading) {
    const QString kind = u"Comment"_s;
    EXPECT_EQ(Read(*app, u"<h1>Post A Comment About John Smith</h1>"_s, kind, false), u"John"_s);
    EXPECT_EQ(Read(*app, u"<h1>Post A Comment About</h1><p>Post A Comment About Tom</p>"_s, kind, false),
              QString());
    EXPECT_EQ(Read(*app, u"<h1>post a comment about John</h1>"_s, kind, false), QString());
    EXPECT_EQ(Read(*app, u"<h1>Post A Comment About border-right</h1>"_s, kind, false), QString());
    EXPECT_EQ(Read(*app, u"Post A Comment About Tom"_s, kind, false), u"Tom"_s);
}

TEST_F(TargetNameTest, OfACommentInTheNewLayoutIsTheFirstPhoto) {
    const QString kind = u"Comment"_s;
    EXPECT_EQ(
        NameOn(u"<img alt=\"Logo\"><img alt=\" photo OF Ann Lee \"><img alt=\"Photo of Bob\">"_s, kind, true),
        u"Ann"_s);
    EXPECT_EQ(NameOn(u"<img alt=\"Ann\">"_s, kind, true), QString());
}

TEST_F(TargetNameTest, OfARequestInTheOldLayoutStandsInTheTagBehindTheQuestion) {
    const QString kind = u"Friend Request"_s;
    EXPECT_EQ(Read(*app, u"Do You Want To Add <b class=x>Ann Lee</b> as a friend?"_s, kind, false), u"Ann"_s);
    EXPECT_EQ(Read(*app, u"do you want to add Ann"_s, kind, false), QString());
    EXPECT_EQ(Read(*app, u"nothing of the kind <b>Ann</b>"_s, kind, false), QString());
}

TEST_F(TargetNameTest, OfARequestInTheNewLayoutStandsBehindTheWords) {
    const QString kind = u"Friend Request"_s;
    EXPECT_EQ(Read(*app, u"<h2>Send a friend request to ANN</h2>"_s, kind, true), u"Ann"_s);
    EXPECT_EQ(Read(*app, u"<h2>ANN</h2>"_s, kind, true), QString());
}

TEST_F(TargetNameTest, OfARequestIsReadNoFartherThanAHundredThousandCharacters) {
    const QString kind = u"Friend Request"_s;
    const QString words = u"send a friend request to"_s;
    EXPECT_EQ(Read(*app, words + QString(100'000, u'a') + u"bb"_s, kind, true).size(), 100'000);
    EXPECT_EQ(Read(*app, u"do you want to add<b>"_s + QString(100'000, u'a') + u"bb"_s, kind, false).size(),
              100'000);
}

TEST_F(TargetNameTest, OfAnotherKindIsNone) {
    EXPECT_EQ(Read(*app, u"<h2>send a friend request to Ann</h2>"_s, u"Bulletin"_s, true), QString());
}

TEST_F(TargetNameTest, TakesThePlaceOfEveryToken) {
    const QString html = u"<h2>send a friend request to ann</h2>"_s;
    app->state.blnNewLayout = true;
    const QString kind = u"Friend Request"_s;
    EXPECT_EQ(ReplaceTargetName(*app, u"Hi &NAME&, dear &name&!"_s, html, kind), u"Hi Ann, dear Ann!"_s);
    EXPECT_EQ(ReplaceTargetName(*app, u"Hi NAME"_s, html, kind), u"Hi NAME"_s);
    EXPECT_EQ(
        ReplaceTargetName(*app, u"Hi &NAME&!"_s, u"<h2>send a friend request to Ren\u00e9</h2>"_s, kind),
        u"Hi !"_s);
}

} // namespace
} // namespace qlm
