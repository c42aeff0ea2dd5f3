// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
#include "campaigns/ContentChoice.h"
#include "content/ContentLists.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class ContentChoiceTest : public SimulatedProgram {
protected:
    void Write(ContentKind kind, const QStringList& lines) {
        app->files.WriteLines(app->Get<ContentLists>().PathOf(kind), lines);
    }
    void SetRandom(ContentKind kind) {
        static const QString keys[] = {u"optMessagesListRandomize"_s, u"optCommentsListRandomize"_s,
                                       u"optBulletinsListRandomize"_s, u"optStatusesListRandomize"_s};
        world.settings.SaveSetting(u"Field Entries"_s, keys[static_cast<int>(kind)], u"True"_s);
    }
    // Statuses of one letter each; a capital is selected.
    QString Statuses(const QString& letters, int picks) {
        QStringList lines;
        for (const QChar letter : letters)
            lines.append(letter + (letter.isUpper() ? u"&Selected=1"_s : u"&Selected=0"_s));
        Write(ContentKind::Status, lines);
        QString picked;
        for (int i = 0; i < picks; ++i)
            picked += PickContentLine(*app, StatusUpdates).left(1);
        return picked;
    }
    QString Messages(const QString& letters, int picks) {
        QStringList lines;
        for (const QChar letter : letters)
            lines.append(letter + u"&Message=text"_s +
                         (letter.isUpper() ? u"&Selected=1"_s : u"&Selected=0"_s));
        Write(ContentKind::Message, lines);
        QString picked;
        for (int i = 0; i < picks; ++i)
            picked += PickContentLine(*app, qlm::Messages).left(1);
        return picked;
    }
    void Choose(QLatin1StringView option) { app->controls.SetTicked(option, true); }
    void Type(QLatin1StringView field, const QString& text) { app->controls.SetText(field, text); }
};

TEST_F(ContentChoiceTest, OtherListsGoThroughTheirEntriesOneByOne) {
    EXPECT_EQ(Statuses(u"ABC"_s, 7), u"ABCABCA"_s);
    EXPECT_EQ(app->state.intStatusListIndex, 1);
}

TEST_F(ContentChoiceTest, MessagesStepByTwo) {
    EXPECT_EQ(Messages(u"ABCDE"_s, 9), u"BDACEACEA"_s);
}

TEST_F(ContentChoiceTest, PastTheEndTheWalkGoesOnFromADeselectedFirstLine) {
    EXPECT_EQ(Messages(u"aBCDE"_s, 5), u"BDCEC"_s);
}

TEST_F(ContentChoiceTest, ALoneMessageIsSentEachTime) {
    EXPECT_EQ(Messages(u"A"_s, 3), u"AAA"_s);
    EXPECT_EQ(app->state.intMessageListIndex, 1);
}

TEST_F(ContentChoiceTest, EntriesThatAreNotSelectedArePassedOver) {
    EXPECT_EQ(Statuses(u"aBcD"_s, 4), u"BDBD"_s);
}

TEST_F(ContentChoiceTest, AnIndexOfItsOwnForEachListGoesOnBehindAStop) {
    EXPECT_EQ(Statuses(u"ABC"_s, 1), u"A"_s);
    Write(ContentKind::Bulletin, {u"s&Bulletin=one&Selected=1"_s, u"s&Bulletin=two&Selected=1"_s});
    EXPECT_TRUE(PickContentLine(*app, Bulletins).contains(u"one"_s));
    EXPECT_EQ(Statuses(u"ABC"_s, 1), u"B"_s);
    EXPECT_EQ(app->state.intBulletinListIndex, 1);
    EXPECT_EQ(app->state.intCommentListIndex, 0);
}

TEST_F(ContentChoiceTest, ALineWithoutAFlagIsSelected) {
    Write(ContentKind::Status, {u"A"_s, u"B&Selected=0"_s});
    EXPECT_EQ(PickContentLine(*app, StatusUpdates), u"A&Selected=1"_s);
}

// The walk in steps of two from the first line never meets the second again.
TEST_F(ContentChoiceTest, AWalkThatWouldNeverEndTakesTheFirstSelectedEntry) {
    EXPECT_EQ(Messages(u"aBc"_s, 3), u"BBB"_s);
}

TEST_F(ContentChoiceTest, AListWithNothingSelectedIsAnError) {
    EXPECT_THROW(Statuses(u"abc"_s, 1), std::runtime_error);
    EXPECT_THROW(Statuses({}, 1), std::runtime_error);
}

TEST_F(ContentChoiceTest, AnIndexBeyondSixteenBitsIsAnError) {
    app->state.intStatusListIndex = 32767;
    EXPECT_THROW(Statuses(u"A"_s, 1), std::overflow_error);
}

TEST_F(ContentChoiceTest, ByChanceTheEntriesAreCountedAndDrawn) {
    SetRandom(ContentKind::Status);
    world.random.SetNumbers({0.0, 0.5, 0.75});
    EXPECT_EQ(Statuses(u"ABCD"_s, 3), u"ACD"_s);
}

TEST_F(ContentChoiceTest, OfMessagesAnEntryOneAboveTheDrawnNumberIsTaken) {
    SetRandom(ContentKind::Message);
    world.random.SetNumbers({0.0});
    EXPECT_EQ(Messages(u"ABCD"_s, 1), u"B"_s);
}

TEST_F(ContentChoiceTest, ADrawPastTheEndIsDrawnAgainOnce) {
    SetRandom(ContentKind::Message);
    world.random.SetNumbers({0.999, 0.0});
    EXPECT_EQ(Messages(u"ABC"_s, 1), u"B"_s);
    world.random.SetNumbers({0.999});
    EXPECT_EQ(Messages(u"ABC"_s, 1), u"A"_s);
}

TEST_F(ContentChoiceTest, DrawsThatNeverMeetTheOnlyEntryEndAtIt) {
    SetRandom(ContentKind::Status);
    world.random.SetNumbers({0.0});
    EXPECT_EQ(Statuses(u"aBc"_s, 1), u"B"_s);
}

TEST_F(ContentChoiceTest, AMessageComesFromTheListTheTabOrTheAccepter) {
    Write(ContentKind::Message, {u"x&Message=y&Selected=1"_s, u"S&Message=a%nl%b&Selected=1"_s});
    Type("txtMsgSubject"_L1, u"typed"_s);
    Type("txtMsgMessage"_L1, u"typed text"_s);
    Type("txtAcceptSubject"_L1, u"welcome"_s);
    Type("txtAcceptMessage"_L1, u"welcome text"_s);
    EXPECT_EQ(ChooseText(*app, qlm::Messages).subject, u"typed"_s);
    EXPECT_EQ(ChooseText(*app, qlm::Messages).body, u"typed text"_s);
    EXPECT_EQ(app->state.intMessageListIndex, 0);
    Choose("optSendFromList(0)"_L1);
    const SubjectAndBody picked = ChooseText(*app, qlm::Messages);
    EXPECT_EQ(picked.subject, u"S"_s);
    EXPECT_EQ(picked.body, u"a\r\nb"_s);
    app->state.strAcceptMode = u"MSG"_s;
    EXPECT_EQ(ChooseText(*app, qlm::Messages).subject, u"welcome"_s);
    EXPECT_EQ(ChooseText(*app, qlm::Messages).body, u"welcome text"_s);
    EXPECT_EQ(app->state.intMessageListIndex, 2);
}

TEST_F(ContentChoiceTest, ABulletinComesFromTheListOrTheTab) {
    Write(ContentKind::Bulletin, {u"S&Bulletin=B&Selected=1"_s});
    Type("txtBulSubject"_L1, u"typed &NAME&"_s);
    Type("txtBulMessage"_L1, u"typed text"_s);
    EXPECT_EQ(ChooseText(*app, Bulletins).subject, u"typed &NAME&"_s);
    EXPECT_EQ(ChooseText(*app, Bulletins).body, u"typed text"_s);
    Choose("optSendFromList(2)"_L1);
    EXPECT_EQ(ChooseText(*app, Bulletins).subject, u"S"_s);
    EXPECT_EQ(ChooseText(*app, Bulletins).body, u"B"_s);
}

TEST_F(ContentChoiceTest, AStatusComesFromTheListOrTheTab) {
    Write(ContentKind::Status, {u"picked;%cln%&selected=1"_s});
    Type("txtStatusBody"_L1, u"typed"_s);
    EXPECT_EQ(ChooseText(*app, StatusUpdates).body, u"typed"_s);
    Choose("optSendFromList(3)"_L1);
    EXPECT_EQ(ChooseText(*app, StatusUpdates).body, u"picked;;"_s);
}

// A row of what a profile that refuses HTML gets; null: the target is skipped.
struct CommentCase {
    QLatin1StringView option;
    bool refuses;
    const char16_t* text;
};

class CommentChoiceTest : public ContentChoiceTest, public testing::WithParamInterface<CommentCase> {};

TEST_P(CommentChoiceTest, GoesByTheOptionOnAProfileThatRefusesHtml) {
    const CommentCase& row = GetParam();
    Type("txtComment"_L1, u"comment"_s);
    Type("txtCommentNonHTML"_L1, u"plain"_s);
    Type("txtAcceptComment"_L1, u"welcome"_s);
    Type("txtAcceptCommentNonHTML"_L1, u"plain welcome"_s);
    if (row.option.startsWith("optACC"_L1))
        app->state.strAcceptMode = u"COM"_s;
    Choose(row.option);
    const CommentChoice chosen = ChooseComment(*app);
    const std::optional<QString> text = row.refuses ? chosen.nonHTML : chosen.text;
    EXPECT_EQ(text.has_value(), row.text != nullptr);
    EXPECT_EQ(text.value_or(QString()), row.text ? QString::fromUtf16(row.text) : QString());
}

INSTANTIATE_TEST_SUITE_P(Options, CommentChoiceTest,
                         testing::Values(CommentCase{"optCOMHTMLBLocked(0)"_L1, true, nullptr},
                                         CommentCase{"optCOMHTMLBLocked(1)"_L1, true, u"comment"},
                                         CommentCase{"optCOMHTMLBLocked(2)"_L1, true, u"plain"},
                                         CommentCase{"optCOMHTMLBLocked(0)"_L1, false, u"comment"},
                                         CommentCase{"optCOMHTMLBLocked(2)"_L1, false, u"comment"},
                                         CommentCase{"optACCcomHTMLBLocked(0)"_L1, true, nullptr},
                                         CommentCase{"optACCcomHTMLBLocked(1)"_L1, true, u"plain welcome"},
                                         CommentCase{"optACCcomHTMLBLocked(2)"_L1, true, u"welcome"},
                                         CommentCase{"optACCcomHTMLBLocked(0)"_L1, false, u"welcome"},
                                         CommentCase{"optACCcomHTMLBLocked(1)"_L1, false, u"welcome"}));

TEST_F(ContentChoiceTest, AListedCommentBringsItsAlternative) {
    Choose("optSendFromList(1)"_L1);
    Write(ContentKind::Comment, {u"A&usenonhtml=1&nonhtmlcomment=a%nl%b&Selected=1"_s,
                                 u"B&usenonhtml=0&nonhtmlcomment=b&Selected=1"_s});
    const CommentChoice first = ChooseComment(*app);
    EXPECT_EQ(first.text, u"A"_s);
    EXPECT_EQ(first.nonHTML, u"a\r\nb"_s);
    const CommentChoice second = ChooseComment(*app);
    EXPECT_EQ(second.text, u"B"_s);
    EXPECT_EQ(second.nonHTML, u"B"_s);
}

TEST_F(ContentChoiceTest, AListedCommentIsSkippedByWishEvenWithAnAlternative) {
    Choose("optSendFromList(1)"_L1);
    app->controls.SetTicked("chkCOMListSkipNonHMTL"_L1, true);
    Write(ContentKind::Comment, {u"A&usenonhtml=1&nonhtmlcomment=a&Selected=1"_s});
    const CommentChoice chosen = ChooseComment(*app);
    EXPECT_EQ(chosen.text, u"A"_s);
    EXPECT_EQ(chosen.nonHTML, std::nullopt);
}

TEST_F(ContentChoiceTest, InAcceptModeTheListOfCommentsIsLeftAlone) {
    Choose("optSendFromList(1)"_L1);
    Type("txtAcceptComment"_L1, u"welcome"_s);
    app->state.strAcceptMode = u"COM"_s;
    EXPECT_EQ(ChooseComment(*app).text, u"welcome"_s);
}

TEST(RichEditor, GetsTagsForCarriageReturnsAndKeepsTheLineFeeds) {
    EXPECT_EQ(ForRichEditor(u"a\r\nb\nc"_s), u"a<br>\nb\nc"_s);
}

} // namespace
} // namespace qlm
