// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "content/ContentLists.h"
#include "core/SettingsFields.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

struct KindCase {
    ContentKind kind;
    const char16_t* file;
    const char16_t* rewriteFile;
    const char* flag; // of the global-or-per-account rule
    const char16_t* orderKey;
    QLatin1StringView mainList;
    const char16_t* fillTag;
    const char16_t* saveTag;
};

const KindCase Kinds[] = {
    {ContentKind::Message, u"MessagesList.txt", u"Temp_MessagesList.txt", "blnUseGlobalAutoMessengerSettings",
     u"optMessagesListRandomize", "picMessanger.lstSendList"_L1, u"FillMainMessagesList - frmMAIN",
     u"cmdSave_Click - frmMessage"},
    {ContentKind::Comment, u"CommentsList.txt", u"Temp_CommentsList.txt", "blnUseGlobalAutoCommenterSettings",
     u"optCommentsListRandomize", "picCommentor.lstSendList"_L1, u"FillMainCommentsList - frmMAIN",
     u"cmdSave_Click - frmComment"},
    {ContentKind::Bulletin, u"BulletinsList.txt", u"Temp_BulletinsList.txt", "blnUseGlobalBulletinSettings",
     u"optBulletinsListRandomize", "picBulletin.lstSendList"_L1, u"FillMainBulletinsList - frmMAIN",
     u"cmdSave_Click - frmBulletin"},
    {ContentKind::Status, u"StatusesList.txt", u"Temp_StatusesList.txt", "blnUseGlobalStatusSettings",
     u"optStatusesListRandomize", "picStatusUpdater.lstSendList"_L1, u"FillMainStatusesList - frmMAIN",
     u"cmdSave_Click - frmStatus"},
};

class ContentListsTest : public SimulatedProgram {
protected:
    ContentLists& Lists() { return app->Get<ContentLists>(); }
    void Write(ContentKind kind, const QStringList& lines) {
        app->files.WriteLines(Lists().PathOf(kind), lines);
    }
    QStringList Lines(ContentKind kind) { return app->files.ReadLines(Lists().PathOf(kind)); }
    QStringList ErrorLog() {
        const QString path = app->state.ErrorLogPath;
        return app->files.FileExists(path) ? app->files.ReadLines(path) : QStringList();
    }
    QString RewriteFile(const KindCase& each) {
        return app->ProgramFile(QString::fromUtf16(each.rewriteFile));
    }
    static ContentFields Fields(const QString& subject, const QString& text, bool uses = false,
                                const QString& nonHTML = {}) {
        return {subject, text, uses, nonHTML};
    }
};

TEST_F(ContentListsTest, EachKindHasItsFileInTheScopeOfItsCategory) {
    for (const KindCase& each : Kinds)
        EXPECT_EQ(Lists().PathOf(each.kind), app->ProgramFile(QString::fromUtf16(each.file)));
    app->state.AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().ChangeGlobalFlags({});
    for (const KindCase& each : Kinds)
        EXPECT_EQ(Lists().PathOf(each.kind),
                  app->ProgramFile(u"ACCOUNTS/a@example.com/"_s + QString::fromUtf16(each.file)));
    for (const KindCase& each : Kinds) {
        app->Get<SettingsFields>().ChangeGlobalFlags({QString::fromLatin1(each.flag)});
        EXPECT_EQ(Lists().PathOf(each.kind), app->ProgramFile(QString::fromUtf16(each.file)));
    }
}

TEST_F(ContentListsTest, AMissingFileIsCreatedAndReadsAsAnEmptyList) {
    for (const KindCase& each : Kinds) {
        const QString path = Lists().PathOf(each.kind);
        EXPECT_FALSE(Lists().ListHasEntries(each.kind));
        EXPECT_TRUE(app->files.FileExists(path));
        app->files.DeleteFile(path);
        EXPECT_EQ(Lists().CountListEntries(each.kind), 0);
        EXPECT_TRUE(app->files.FileExists(path));
        app->files.DeleteFile(path);
        EXPECT_EQ(Lists().GetNext(each.kind, 1), QString());
        EXPECT_TRUE(app->files.FileExists(path));
    }
}

// An entry has its word at the second character or after, in any letter case.
TEST_F(ContentListsTest, EntriesAreKnownByTheWordOfTheirKind) {
    struct Case {
        ContentKind kind;
        const char16_t* entry;
        const char16_t* none;
    };
    for (const Case& each : {Case{ContentKind::Message, u"S&MESSAGE=B", u"&Message=B&Selected=1"},
                             Case{ContentKind::Comment, u"C&UseNonHtml=0", u"&usenonhtml=0&Selected=1"},
                             Case{ContentKind::Bulletin, u"S&BULLETIN=B", u"&Bulletin=B&Selected=1"},
                             Case{ContentKind::Status, u"T&SELECTED=0", u"&Selected=1"}}) {
        Write(each.kind, {QString::fromUtf16(each.none)});
        EXPECT_FALSE(Lists().ListHasEntries(each.kind));
        EXPECT_EQ(Lists().CountListEntries(each.kind), 0);
        Write(each.kind, {QString::fromUtf16(each.entry), QString::fromUtf16(each.none), u"text alone"_s,
                          QString::fromUtf16(each.entry)});
        EXPECT_TRUE(Lists().ListHasEntries(each.kind));
        EXPECT_EQ(Lists().CountListEntries(each.kind), 2);
    }
}

TEST_F(ContentListsTest, OfMessagesOnlyTheFirstLineIsLookedAt) {
    Write(ContentKind::Message, {u"&Message=B&Selected=1"_s, u"S&Message=B&Selected=1"_s});
    EXPECT_FALSE(Lists().ListHasEntries(ContentKind::Message));
    EXPECT_EQ(Lists().CountListEntries(ContentKind::Message), 1);
    Write(ContentKind::Message, {u"S&Message=B"_s, u"rubbish"_s});
    EXPECT_TRUE(Lists().ListHasEntries(ContentKind::Message));
    for (const ContentKind kind : {ContentKind::Comment, ContentKind::Bulletin, ContentKind::Status}) {
        Write(kind, {u"rubbish"_s, u"x&usenonhtml=0&bulletin=y&Selected=1"_s});
        EXPECT_TRUE(Lists().ListHasEntries(kind));
    }
}

TEST_F(ContentListsTest, OfMessagesANeedleIsIgnored) {
    Write(ContentKind::Message, {u"S&Message=B&Selected=0"_s});
    EXPECT_TRUE(Lists().ListHasEntries(ContentKind::Message, u"&Selected=1"_s));
    Write(ContentKind::Bulletin, {u"S&Bulletin=B&Selected=0"_s});
    EXPECT_FALSE(Lists().ListHasEntries(ContentKind::Bulletin, u"&Selected=1"_s));
    EXPECT_TRUE(Lists().ListHasEntries(ContentKind::Bulletin, u"&Selected=0"_s));
}

TEST_F(ContentListsTest, ANeedleCountsTheLinesThatHoldIt) {
    Write(ContentKind::Message, {u"A&Message=B&Selected=1"_s,
                                 u"A&Message=B&selected=1"_s,
                                 u"A&Message=B&Selected=0"_s,
                                 u"A&Message=B"_s,
                                 {}});
    EXPECT_EQ(Lists().CountListEntries(ContentKind::Message), 4);
    EXPECT_EQ(Lists().CountListEntries(ContentKind::Message, u"&Selected=1"_s), 2);
    EXPECT_EQ(Lists().CountListEntries(ContentKind::Message, u"&Selected=0"_s), 1);
}

TEST_F(ContentListsTest, LinesAreCountedFromOneAndTheirEscapesUndone) {
    for (const KindCase& each : Kinds) {
        Write(each.kind, {u"a%nl%b%cln%c"_s, {}, u"third"_s});
        EXPECT_EQ(Lists().GetNext(each.kind, 1), u"a\r\nb;c"_s);
        EXPECT_EQ(Lists().GetNext(each.kind, 2), QString());
        EXPECT_EQ(Lists().GetNext(each.kind, 3), u"third"_s);
        EXPECT_EQ(Lists().GetNext(each.kind, 0), QString());
        EXPECT_EQ(Lists().GetNext(each.kind, -1), QString());
        EXPECT_EQ(Lists().GetNext(each.kind, 4), QString());
    }
}

TEST_F(ContentListsTest, TheOrderIsReadFromTheStoreInTheScopeOfTheAccount) {
    for (const KindCase& each : Kinds) {
        EXPECT_FALSE(Lists().Randomizes(each.kind));
        world.settings.SaveSetting(u"Field Entries"_s, QString::fromUtf16(each.orderKey), u"True"_s);
        EXPECT_TRUE(Lists().Randomizes(each.kind));
    }
    app->state.AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().ChangeGlobalFlags({});
    for (const KindCase& each : Kinds) {
        EXPECT_FALSE(Lists().Randomizes(each.kind));
        world.settings.SaveSetting(u"Field Entries\\a@example.com"_s, QString::fromUtf16(each.orderKey),
                                   u"True"_s);
        EXPECT_TRUE(Lists().Randomizes(each.kind));
    }
}

TEST_F(ContentListsTest, ANewEntryIsAppendedSelected) {
    struct Case {
        ContentKind kind;
        const char16_t* line;
    };
    for (const Case& each : {Case{ContentKind::Message, u"S%cln%&Message=T%nl%U&Selected=1"},
                             Case{ContentKind::Comment, u"T%nl%U&usenonhtml=1&nonhtmlcomment=P&Selected=1"},
                             Case{ContentKind::Bulletin, u"S%cln%&Bulletin=T%nl%U&Selected=1"},
                             Case{ContentKind::Status, u"T%nl%U&Selected=1"}}) {
        EXPECT_TRUE(Lists().Of(each.kind).SaveEntry(Fields(u"S;"_s, u"T\r\nU"_s, true, u"P"_s), nullptr));
        EXPECT_TRUE(Lists().Of(each.kind).SaveEntry(Fields(u"S;"_s, u"T\r\nU"_s, true, u"P"_s), nullptr));
        const QString line = QString::fromUtf16(each.line);
        EXPECT_EQ(Lines(each.kind), (QStringList{line, line}));
    }
    for (const KindCase& each : Kinds)
        EXPECT_TRUE(app->files.FileExists(RewriteFile(each)));
}

TEST_F(ContentListsTest, AMessageWithALoneLineFeedBecomesTwoLines) {
    EXPECT_TRUE(Lists().Of(ContentKind::Message).SaveEntry(Fields(u"S"_s, u"a\nb"_s), nullptr));
    EXPECT_EQ(Lines(ContentKind::Message), (QStringList{u"S&Message=a"_s, u"b&Selected=1"_s}));
}

TEST_F(ContentListsTest, EmptyFieldsAreRefusedWithTheirWords) {
    struct Case {
        ContentKind kind;
        ContentFields fields;
        const char16_t* words;
    };
    for (const Case& each :
         {Case{ContentKind::Message, Fields({}, {}), u"Please enter the message subject"},
          Case{ContentKind::Message, Fields(u"S"_s, u" "_s), u"Please enter the message body"},
          Case{ContentKind::Bulletin, Fields(u" "_s, {}), u"Please enter the bulletin subject"},
          Case{ContentKind::Bulletin, Fields(u"S"_s, {}), u"Please enter the bulletin body"},
          Case{ContentKind::Comment, Fields({}, {}, true, u"P"_s), u"Please enter the comment to save"},
          Case{ContentKind::Status, Fields({}, {}), u"Please enter the status update"}}) {
        dialogs.messages.clear();
        EXPECT_FALSE(Lists().Of(each.kind).SaveEntry(each.fields, nullptr));
        EXPECT_EQ(dialogs.Texts(), QStringList{QString::fromUtf16(each.words)});
        EXPECT_FALSE(app->files.FileExists(Lists().PathOf(each.kind)));
    }
}

TEST_F(ContentListsTest, EditingReplacesEveryLineOfThatBodyAndKeepsItsFlag) {
    Write(ContentKind::Message,
          {u"A&Message=x%cln%y&Selected=0"_s, u"B&message=x%cln%y"_s, u"C&Message=x%cln%y!&Selected=1"_s});
    const ContentFields edited = Fields(u"A"_s, u"x;y"_s);
    EXPECT_TRUE(Lists().Of(ContentKind::Message).SaveEntry(Fields(u"N"_s, u"new"_s), &edited));
    EXPECT_EQ(Lines(ContentKind::Message),
              (QStringList{u"N&Message=new&Selected=0"_s, u"N&Message=new&Selected=1"_s,
                           u"C&Message=x%cln%y!&Selected=1"_s}));
    EXPECT_EQ(app->files.ReadLines(RewriteFile(Kinds[0])), Lines(ContentKind::Message));
}

TEST_F(ContentListsTest, ABulletinIsFoundByItsBodyWithItsLineFeedsWritten) {
    Write(ContentKind::Bulletin, {u"A&Bulletin=x%nl%y&Selected=0"_s, u"A&Bulletin=x&Selected=1"_s});
    const ContentFields edited = Fields(u"other subject"_s, u"x\ny"_s);
    EXPECT_TRUE(Lists().Of(ContentKind::Bulletin).SaveEntry(Fields(u"N"_s, u"new"_s), &edited));
    EXPECT_EQ(Lines(ContentKind::Bulletin),
              (QStringList{u"N&Bulletin=new&Selected=0"_s, u"A&Bulletin=x&Selected=1"_s}));
}

TEST_F(ContentListsTest, ACommentIsFoundByAllItsFields) {
    Write(ContentKind::Comment,
          {u"x&usenonhtml=1&nonhtmlcomment=p&Selected=0"_s, u"x&usenonhtml=0&nonhtmlcomment=p&Selected=0"_s,
           u"x&usenonhtml=1&nonhtmlcomment=q&Selected=0"_s});
    const ContentFields edited = Fields({}, u"x"_s, true, u"p"_s);
    EXPECT_TRUE(Lists().Of(ContentKind::Comment).SaveEntry(Fields({}, u"new"_s), &edited));
    EXPECT_EQ(Lines(ContentKind::Comment), (QStringList{u"new&usenonhtml=0&nonhtmlcomment=&Selected=0"_s,
                                                        u"x&usenonhtml=0&nonhtmlcomment=p&Selected=0"_s,
                                                        u"x&usenonhtml=1&nonhtmlcomment=q&Selected=0"_s}));
}

TEST_F(ContentListsTest, AStatusIsFoundByItsText) {
    Write(ContentKind::Status, {u"x%nl%y&Selected=0"_s, u"x&Selected=1"_s});
    const ContentFields edited = Fields({}, u"x\r\ny"_s);
    EXPECT_TRUE(Lists().Of(ContentKind::Status).SaveEntry(Fields({}, u"new"_s), &edited));
    EXPECT_EQ(Lines(ContentKind::Status), (QStringList{u"new&Selected=0"_s, u"x&Selected=1"_s}));
}

TEST_F(ContentListsTest, AnEditLeavesLinesWithoutMarkerAsTheyAre) {
    Write(ContentKind::Message, {u"broken"_s, {}, u"A&Message=x&Selected=1"_s});
    const ContentFields edited = Fields(u"A"_s, u"x"_s);
    EXPECT_TRUE(Lists().Of(ContentKind::Message).SaveEntry(Fields(u"N"_s, u"new"_s), &edited));
    EXPECT_EQ(Lines(ContentKind::Message), (QStringList{u"broken"_s, {}, u"N&Message=new&Selected=1"_s}));
}

TEST_F(ContentListsTest, AListThatCannotBeWrittenIsReportedUnderItsEntryScreen) {
    for (const KindCase& each : Kinds)
        app->files.EnsureFile(Lists().PathOf(each.kind));
    world.gate.readOnlyFolders = {world.installationFolder};
    for (const KindCase& each : Kinds) {
        EXPECT_FALSE(Lists().Of(each.kind).SaveEntry(Fields(u"S"_s, u"T"_s), nullptr));
        EXPECT_TRUE(ErrorLog().contains(u"Proc: "_s + QString::fromUtf16(each.saveTag)));
    }
}

TEST_F(ContentListsTest, ACutInARewriteLeavesTheOldListWhole) {
    const QStringList before{u"A&Message=x&Selected=1"_s, u"B&Message=y&Selected=1"_s};
    const ContentFields edited = Fields(u"A"_s, u"x"_s);
    for (int write = 1; write <= 2; ++write) {
        Write(ContentKind::Message, before);
        app->files.EnsureFile(RewriteFile(Kinds[0]));
        world.gate.CrashAtWrite(write);
        EXPECT_THROW(Lists().Of(ContentKind::Message).SaveEntry(Fields(u"N"_s, u"new"_s), &edited),
                     SimPowerCut);
        world.gate.Mend();
        EXPECT_EQ(Lines(ContentKind::Message), before);
    }
}

TEST_F(ContentListsTest, TheTabShowsTheSelectedEntries) {
    Write(ContentKind::Message, {u"one%cln%%nl%&Message=x&Selected=1"_s, u""_s, u"  "_s, u"two&message=x"_s,
                                 u"three&Message=x&Selected=0"_s});
    Write(ContentKind::Bulletin, {u"one%cln%&Bulletin=x&Selected=1"_s, u"three&Bulletin=x&Selected=0"_s, {}});
    Write(ContentKind::Comment, {u"one%cln%a%nl%b&usenonhtml=0&nonhtmlcomment=&Selected=1"_s,
                                 u"two&UseNonHTML=1&nonhtmlcomment=x&Selected=0"_s});
    Write(ContentKind::Status, {u"one%nl%b%cln%&Selected=1"_s, u"two&selected=0"_s, u"%nl%c&Selected=1"_s});
    app->Get<ContentLists>().FillMainLists();
    EXPECT_EQ(app->controls.Items(Kinds[0].mainList), (QStringList{u"one;%nl%"_s, u"two"_s}));
    EXPECT_EQ(app->controls.Items(Kinds[1].mainList), QStringList{u"one;a"_s});
    EXPECT_EQ(app->controls.Items(Kinds[2].mainList), QStringList{u"one;"_s});
    EXPECT_EQ(app->controls.Items(Kinds[3].mainList), (QStringList{u"one"_s, QString()}));
}

TEST_F(ContentListsTest, AnEmptyListSaysSo) {
    for (const KindCase& each : Kinds) {
        Lists().FillMainList(each.kind);
        EXPECT_EQ(app->controls.Items(each.mainList), QStringList{u"Your list is empty..."_s});
    }
    Write(ContentKind::Status, {u"a&Selected=0"_s});
    Lists().FillMainList(ContentKind::Status);
    EXPECT_EQ(app->controls.Items("picStatusUpdater.lstSendList"_L1),
              QStringList{u"Your list is empty..."_s});
}

TEST_F(ContentListsTest, ALineWithoutMarkerEndsTheFillingAndIsReported) {
    for (const KindCase& each : Kinds) {
        Write(each.kind, {u"a&Message=&usenonhtml&Bulletin=&Selected=1"_s, u"broken"_s,
                          u"b&Message=&usenonhtml&Bulletin=&Selected=1"_s});
        Lists().FillMainList(each.kind);
        EXPECT_EQ(app->controls.Items(each.mainList).size(), 1);
        EXPECT_TRUE(ErrorLog().contains(u"Proc: "_s + QString::fromUtf16(each.fillTag)));
    }
}

TEST_F(ContentListsTest, RestoringAnAccountShowsItsLists) {
    Write(ContentKind::Message, {u"shared&Message=x&Selected=1"_s});
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    EXPECT_EQ(app->controls.Items("picMessanger.lstSendList"_L1), QStringList{u"shared"_s});
    app->state.AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().ChangeGlobalFlags({});
    EXPECT_EQ(app->controls.Items("picMessanger.lstSendList"_L1), QStringList{u"Your list is empty..."_s});
}

TEST_F(ContentListsTest, ARowGivesBackItsWholeStatus) {
    Write(ContentKind::Status,
          {u"one%nl%two%cln%three&selected=0"_s, u"plain&Selected=1"_s, u"%nl%x&Selected=1"_s});
    EXPECT_EQ(Lists().Of(ContentKind::Status).GetCompleteStatusFromList(u"one"_s), u"one\r\ntwo;three"_s);
    EXPECT_EQ(Lists().Of(ContentKind::Status).GetCompleteStatusFromList(u"plain"_s), u"plain"_s);
    EXPECT_EQ(Lists().Of(ContentKind::Status).GetCompleteStatusFromList(u"%nl%x"_s), u"\r\nx"_s);
    EXPECT_EQ(Lists().Of(ContentKind::Status).GetCompleteStatusFromList(u"two"_s), QString());
}

TEST_F(ContentListsTest, FilesAreOfTheCodePage) {
    EXPECT_TRUE(Lists().Of(ContentKind::Status).SaveEntry(Fields({}, u"caf\u00e9 \u20ac"_s), nullptr));
    EXPECT_EQ(app->files.ReadBytes(Lists().PathOf(ContentKind::Status)),
              QByteArray("caf\xE9 \x80&Selected=1\r\n"));
    EXPECT_EQ(Lists().GetNext(ContentKind::Status, 1), u"caf\u00e9 \u20ac&Selected=1"_s);
}

} // namespace
} // namespace qlm
