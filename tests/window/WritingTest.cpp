// SPDX-License-Identifier: MIT
// Messages and comments through every design of the site's forms, on the real engine, compared with what has
// arrived.
#include "Writing.h"
#include "practice/CommentDesigns.h"
#include "practice/ComposeDesigns.h"
#include "practice/FormChoice.h"

namespace qlm {
namespace {

std::string NameOf(const auto& design) {
    return design.name.toString().toStdString();
}

// What becomes of a hard design's text. The log's line is written at the press.
struct Outcome {
    QStringView design;
    bool arrives;
    bool isLogged;
    QString report;
};

const Outcome& OutcomeOf(const std::vector<Outcome>& outcomes, QStringView design) {
    for (const Outcome& outcome : outcomes)
        if (outcome.design == design)
            return outcome;
    throw std::logic_error("no outcome for " + design.toString().toStdString());
}

const QString Skipped = u"Failed: You pressed Skip"_s;

const std::vector<Outcome> HardMessages{
    {u"deliver", false, false, Skipped},
    {u"bare-button", false, false, u"Failed: The page has no button that sends"_s},
    {u"draft-late", true, true, u"Sent"_s},
    {u"draft-never", false, false, Skipped},
    {u"silent", true, true, u"Failed: The site did not confirm it"_s},
    {u"source-deliver", false, false, Skipped},
    {u"source-bare", false, false, u"Failed: The page has no button that sends"_s},
    {u"source-draft-late", true, true, u"Sent"_s},
    {u"source-draft-never", false, false, Skipped},
    {u"source-silent", true, true, u"Failed: The site did not confirm it"_s},
};

const std::vector<Outcome> HardComments{
    {u"back", false, true, u"Failed: The site showed the comment form again"_s},
    {u"editor-back", false, true, u"Failed: The site showed the comment form again"_s},
    {u"confirm-asleep", true, true, u"Sent"_s},
    {u"share", false, false, u"Failed: The page has no button that posts"_s},
    {u"box-shy", true, true, u"Sent"_s},
    {u"box-share", false, false, u"Failed: The page has no button that posts"_s},
};

} // namespace

TEST_F(WritingTest, AMessageArrivesThroughEachEverydayForm) {
    for (const practice::ComposeDesign& design : practice::ComposeDesigns()) {
        if (design.hard)
            continue;
        const qint64 target = practice::FirstWithForm(practice::ComposeDesigns(), design);
        const QStringList arrived = Send(Messages, {target}, !design.older);
        EXPECT_TRUE(isInTime) << NameOf(design);
        EXPECT_EQ(arrived, QStringList{Message(target)}) << NameOf(design);
    }
}

TEST_F(WritingTest, ACommentArrivesThroughEachEverydayForm) {
    for (const practice::CommentDesign& design : practice::CommentDesigns()) {
        if (design.hard)
            continue;
        const qint64 target = practice::FirstWithForm(practice::CommentDesigns(), design);
        const QStringList arrived = Send(Comments, {target}, !design.older);
        EXPECT_TRUE(isInTime) << NameOf(design);
        EXPECT_EQ(arrived, QStringList{Comment(target)}) << NameOf(design);
    }
}

// Where the button or the draft that is waited for never comes, the page stands until the user skips it.
TEST_F(WritingTest, AMessageThroughAHardFormArrivesOrIsGivenUp) {
    for (const practice::ComposeDesign& design : practice::ComposeDesigns()) {
        if (!design.hard)
            continue;
        SCOPED_TRACE(NameOf(design));
        const Outcome& outcome = OutcomeOf(HardMessages, design.name);
        const qint64 target = practice::FirstWithForm(practice::ComposeDesigns(), design);
        SkipWhereStuck(outcome.report == Skipped);
        const QStringList arrived = Send(Messages, {target}, !design.older);
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(arrived, outcome.arrives ? QStringList{Message(target)} : QStringList());
        EXPECT_EQ(Report(Messages), QStringList{outcome.report});
        EXPECT_EQ(Logged(Messages), outcome.isLogged ? QStringList{QString::number(target)} : QStringList());
    }
}

TEST_F(WritingTest, ACommentThroughAHardFormArrivesOrIsGivenUp) {
    for (const practice::CommentDesign& design : practice::CommentDesigns()) {
        if (!design.hard)
            continue;
        SCOPED_TRACE(NameOf(design));
        const Outcome& outcome = OutcomeOf(HardComments, design.name);
        const qint64 target = practice::FirstWithForm(practice::CommentDesigns(), design);
        const QStringList arrived = Send(Comments, {target}, !design.older);
        EXPECT_TRUE(isInTime);
        EXPECT_EQ(arrived, outcome.arrives ? QStringList{Comment(target)} : QStringList());
        EXPECT_EQ(Report(Comments), QStringList{outcome.report});
        EXPECT_EQ(Logged(Comments), outcome.isLogged ? QStringList{QString::number(target)} : QStringList());
    }
}

// Each layout says the name in a place of its own.
TEST_F(WritingTest, TheNameIsReadOffEachLayout) {
    const qint64 target = 100103;
    program->site.Tell(u"name %1 ANNA lee"_s.arg(target));
    for (const bool newLayout : {false, true}) {
        SCOPED_TRACE(newLayout);
        subject = u"For &NAME&"_s;
        text = u"Dear &name&, we play on Friday."_s;
        const QStringList message = Send(Messages, {target}, newLayout);
        const QStringList comment = Send(Comments, {target}, newLayout);
        subject = u"For Anna"_s;
        text = u"Dear Anna, we play on Friday."_s;
        EXPECT_EQ(message, QStringList{Message(target)});
        EXPECT_EQ(comment, QStringList{Comment(target)});
    }
}

} // namespace qlm
