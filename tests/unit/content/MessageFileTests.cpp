// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class MessageFileTest : public SimulatedProgram {
protected:
    void SetMessage(const QString& subject, const QString& body) {
        app->controls.SetText("txtMsgSubject"_L1, subject);
        app->controls.SetText("txtMsgMessage"_L1, body);
    }
    void Save() {
        dialogs.files.push_back(path);
        app->commands.Run(u"piccmdMsgSave_Click"_s);
    }
    void Load() {
        dialogs.files.push_back(path);
        app->commands.Run(u"piccmdMsgLoad_Click"_s);
    }
    QString Subject() { return app->controls.Text("txtMsgSubject"_L1); }
    QString Body() { return app->controls.Text("txtMsgMessage"_L1); }

    const QString path = folder.filePath(u"message.txt"_s);
};

TEST_F(MessageFileTest, IsOneLineOfSubjectAndBody) {
    SetMessage(u"Hi; you"_s, u"one\r\ntwo; three"_s);
    Save();
    EXPECT_EQ(app->files.ReadLines(path), QStringList{u"Hi; youxmsgxone%nl%two; three"_s});
    SetMessage({}, {});
    Load();
    EXPECT_EQ(Subject(), u"Hi; you"_s);
    EXPECT_EQ(Body(), u"one\r\ntwo; three"_s);
}

TEST_F(MessageFileTest, IsNeitherWrittenNorReadWhenNoneIsChosen) {
    SetMessage(u"a"_s, u"b"_s);
    app->commands.Run(u"piccmdMsgSave_Click"_s);
    app->commands.Run(u"piccmdMsgLoad_Click"_s);
    EXPECT_EQ(Subject() + Body(), u"ab"_s);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_FALSE(app->files.FileExists(app->state.ErrorLogPath));
}

TEST_F(MessageFileTest, ChosenAgainReceivesAFurtherLineAndGivesTheFirst) {
    SetMessage(u"a"_s, u"b"_s);
    Save();
    SetMessage(u"c"_s, u"d"_s);
    Save();
    EXPECT_EQ(app->files.ReadLines(path), (QStringList{u"axmsgxb"_s, u"cxmsgxd"_s}));
    Load();
    EXPECT_EQ(Subject(), u"a"_s);
    EXPECT_EQ(Body(), u"b"_s);
}

TEST_F(MessageFileTest, LettersThatItCannotHoldAreToldBeforeTheyAreLost) {
    SetMessage(u"a"_s, u"ж"_s);
    dialogs.answers = {Dialogs::Answer::No};
    Save();
    EXPECT_FALSE(app->files.FileExists(path));
    ASSERT_EQ(dialogs.messages.size(), 1U);
    EXPECT_TRUE(dialogs.messages.front().text.contains(u"ж"_s));
    dialogs.answers = {Dialogs::Answer::Yes};
    Save();
    EXPECT_EQ(app->files.ReadLines(path), QStringList{u"axmsgx?"_s});
}

TEST_F(MessageFileTest, IsCutAtTheFirstMark) {
    app->files.WriteLines(path, {u"axmsgxbxmsgxc"_s});
    Load();
    EXPECT_EQ(Subject(), u"a"_s);
    EXPECT_EQ(Body(), u"bxmsgxc"_s);
}

TEST_F(MessageFileTest, OfAnotherFormatIsRefused) {
    SetMessage(u"kept"_s, u"kept too"_s);
    for (const QStringList& lines : {QStringList{u"Hello"_s, u"axmsgxb"_s}, QStringList()}) {
        dialogs.messages.clear();
        app->files.WriteLines(path, lines);
        Load();
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(
            dialogs.messages.front().text,
            u"You can only load a subject/message that has been saved using Quillmere. The file you have "
            "selected seems to be in a different format."_s);
        EXPECT_EQ(dialogs.messages.front().title, u"Load Message"_s);
        EXPECT_EQ(Subject(), u"kept"_s);
        EXPECT_EQ(Body(), u"kept too"_s);
    }
}

TEST_F(MessageFileTest, NothingHappensWhenNoFileIsChosen) {
    SetMessage(u"kept"_s, u"kept too"_s);
    app->commands.Run(u"piccmdMsgSave_Click"_s);
    app->commands.Run(u"piccmdMsgLoad_Click"_s);
    EXPECT_TRUE(dialogs.Texts().isEmpty());
    EXPECT_EQ(Subject(), u"kept"_s);
}

} // namespace
} // namespace qlm
