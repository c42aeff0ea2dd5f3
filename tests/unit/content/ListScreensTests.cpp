// SPDX-License-Identifier: MIT
// The four list screens and their entry screens, without their windows.
#include "SimulatedProgram.h"
#include "campaigns/Campaigns.h"
#include "campaigns/ContentChoice.h"
#include "content/ContentLists.h"
#include "content/ListScreens.h"
#include "core/SettingsFields.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using Answer = Dialogs::Answer;

struct Case {
    ContentKind kind;
    QString item;  // "Bulletin"
    QString items; // "Bulletins"
    QString tag;   // of its errors
    QString orderOfTab;
};

const Case Cases[] = {
    {ContentKind::Message, u"Message"_s, u"Messages"_s, u"frmmessagelist"_s, u"picMessanger"_s},
    {ContentKind::Comment, u"Comment"_s, u"Comments"_s, u"frmcommentlist"_s, u"picCommentor"_s},
    {ContentKind::Bulletin, u"Bulletin"_s, u"Bulletins"_s, u"frmbulletinlist"_s, u"picBulletin"_s},
    {ContentKind::Status, u"Status"_s, u"Statuses"_s, u"frmstatuslist"_s, u"picStatusUpdater"_s},
};
constexpr Case const& BulletinCase = Cases[2];

class ListScreensTest : public SimulatedProgram {
protected:
    // Opens the screen of a list of these entries, and does that while it is open.
    void With(const Case& each, const QStringList& lines, const std::function<void()>& act) {
        kind = each.kind;
        current = &each;
        const QString path = app->Get<ContentLists>().PathOf(each.kind);
        app->files.WriteLines(path, lines);
        bool wasOpen = false;
        dialogs.onModal[Form()] = [&] {
            wasOpen = true;
            act();
        };
        Run(each.orderOfTab + u".picEditList_Click"_s);
        EXPECT_TRUE(wasOpen);
    }
    void WithLetters(const Case& each, const QString& letters, const std::function<void()>& act) {
        With(each, Entries(each.kind, letters), act);
    }
    static QString Entry(ContentKind kind, const QString& name, const QString& flag = u"1"_s) {
        ContentFields fields;
        const bool hasSubject = kind == ContentKind::Message || kind == ContentKind::Bulletin;
        fields.subject = name;
        fields.text = hasSubject ? u"text of "_s + name : name + u"\r\nmore"_s;
        fields.nonHTML = u"plain "_s + name;
        return LineOf(kind, fields, u"&Selected="_s + flag);
    }
    // A small letter is not ticked.
    static QStringList Entries(ContentKind kind, const QString& letters) {
        QStringList lines;
        for (const QChar letter : letters)
            lines.append(Entry(kind, letter.toUpper(), letter.isUpper() ? u"1"_s : u"0"_s));
        return lines;
    }
    // As Entries() takes them.
    QString Letters() {
        QString letters;
        for (const QString& line : Lines())
            letters += line.endsWith(u'1') ? line.at(0) : line.at(0).toLower();
        return letters;
    }
    QStringList Lines() { return app->files.ReadLines(app->Get<ContentLists>().PathOf(kind)); }
    QString Form() const { return u"frm"_s + current->items + u"List"_s; }
    QByteArray Name(const QString& control) const { return (Form() + u'.' + control).toLatin1(); }
    QByteArray Box() const { return Name(u"lst"_s + current->items); }
    void Run(const QString& command, int argument = 0) { EXPECT_TRUE(app->commands.Run(command, argument)); }
    void Click(const QString& control) { Run(QString::fromLatin1(Name(control)) + u"_Click"_s); }
    void ClickItem(const char* verb) { Click(u"cmd"_s + QString::fromLatin1(verb) + current->item); }
    void Select(int row) { app->controls.SetSelected(QLatin1StringView(Box()), row); }
    int Selected() { return app->controls.Selected(QLatin1StringView(Box())); }
    QString Rows() { return app->controls.Items(QLatin1StringView(Box())).join(u'|'); }
    QString Text(const QString& control) { return app->controls.Text(QLatin1StringView(Name(control))); }
    void Tick(int row, bool ticked) {
        app->controls.SetRowTicked(QLatin1StringView(Box()), row, ticked);
        Run(QString::fromLatin1(Box()) + u"_ItemCheck"_s, row);
    }
    bool IsTicked(int row) { return app->controls.RowTicked(QLatin1StringView(Box()), row); }
    bool IsEnabled(const QString& control) { return app->controls[QLatin1StringView(Name(control))].enabled; }
    // What the entry screen is given, and what the user makes of it.
    void OnEntry(const std::function<void()>& act) { dialogs.onModal[u"frm"_s + current->item] = act; }
    void Write(const char* field, const QString& text) {
        const QByteArray name = "frm" + current->item.toLatin1() + '.' + field;
        app->controls.SetText(QLatin1StringView(name), text);
    }
    void Save() { Run(u"frm"_s + current->item + u".cmdSave_Click"_s); }
    QString ErrorLog() {
        const QString path = app->state.ErrorLogPath;
        return app->files.FileExists(path) ? app->files.ReadLines(path).join(u'\n') : QString();
    }
    QStringList TakeMessages() {
        const QStringList texts = dialogs.Texts();
        dialogs.messages.clear();
        return texts;
    }

    ContentKind kind{};
    const Case* current = nullptr;
};

} // namespace

TEST_F(ListScreensTest, ShowTheEntriesWithTheirTicksAndTheFirstOneWhole) {
    for (const Case& each : Cases)
        WithLetters(each, u"AbC"_s, [&] {
            EXPECT_EQ(Rows(), u"A|B|C"_s);
            EXPECT_TRUE(IsTicked(0));
            EXPECT_FALSE(IsTicked(1));
            EXPECT_EQ(Selected(), 0);
        });
    WithLetters(BulletinCase, u"AB"_s, [&] {
        EXPECT_EQ(Text(u"txtMessage"_s), u"text of A"_s);
        Select(1);
        EXPECT_EQ(Text(u"txtMessage"_s), u"text of B"_s);
    });
}

TEST_F(ListScreensTest, ACommentShowsItsAlternativeAndWhetherItIsUsed) {
    With(Cases[1],
         {u"a&usenonhtml=1&nonhtmlcomment=p%nl%q&Selected=1"_s,
          u"b%nl%c&usenonhtml=0&nonhtmlcomment=&Selected=1"_s},
         [&] {
             EXPECT_EQ(Text(u"txtCommentNonHTML"_s), u"p\r\nq"_s);
             EXPECT_EQ(Text(u"lblUseNonHTML"_s), u"ON"_s);
             Select(1);
             EXPECT_EQ(Text(u"txtComment"_s), u"b\r\nc"_s);
             EXPECT_EQ(Text(u"txtCommentNonHTML"_s), QString());
             EXPECT_EQ(Text(u"lblUseNonHTML"_s), u"OFF"_s);
         });
}

TEST_F(ListScreensTest, AnEmptyListShowsThePlaceholderAndItsButtonsAnswerWithTheirWords) {
    const QStringList words[] = {
        {u"Select a message to edit"_s, u"Select a message to delete"_s, u"Select a message to preview"_s},
        {u"Please select a comment to edit"_s, u"Please select a comment to delete"_s,
         u"Select a comment to preview"_s},
        {u"Select a bulletin to edit"_s, u"Select a bulletin to delete"_s, u"Select a bulletin to preview"_s},
        {u"Select a status to edit"_s, u"Select a status to delete"_s}};
    const QString rows[] = {u"Add a message..."_s, u"Add a comment..."_s, u"Add a bulletin..."_s,
                            u"Add a status..."_s};
    for (size_t i = 0; i < std::size(Cases); ++i)
        With(Cases[i], {QString(), u"  "_s}, [&] {
            EXPECT_EQ(Rows(), rows[i]);
            EXPECT_TRUE(app->controls[QLatin1StringView(Box())].rowTicks.empty());
            ClickItem("Edit");
            ClickItem("Delete");
            if (words[i].size() > 2)
                Click(u"cmdPreview"_s);
            EXPECT_EQ(TakeMessages(), words[i]);
            EXPECT_FALSE(IsEnabled(u"cmdMoveUp"_s));
            EXPECT_FALSE(IsEnabled(u"cmdMoveDown"_s));
            Run(QString::fromLatin1(Box()) + u"_DragDrop"_s, 0);
            EXPECT_EQ(Lines(), (QStringList{QString(), u"  "_s}));
        });
    EXPECT_EQ(dialogs.shownForms.filter(u"frmPreview"_s), QStringList());
}

TEST_F(ListScreensTest, ARowThatHoldsThePlaceholdersWordsIsNothingSelected) {
    With(Cases[0], {Entry(ContentKind::Message, u"Please ADD A MESSAGE"_s)}, [&] {
        ClickItem("Edit");
        EXPECT_EQ(TakeMessages(), QStringList{u"Select a message to edit"_s});
    });
    With(Cases[1], {Entry(ContentKind::Comment, u"There are no comments added"_s)}, [&] {
        ClickItem("Delete");
        EXPECT_EQ(TakeMessages(), QStringList{u"Please select a comment to delete"_s});
    });
    With(Cases[3], {Entry(ContentKind::Status, u"no comments added"_s)}, [&] {
        dialogs.answers = {Answer::No};
        ClickItem("Delete");
        EXPECT_EQ(TakeMessages(), QStringList{u"Are you sure?"_s});
    });
}

TEST_F(ListScreensTest, ABrokenLineIsReportedAndTheOthersShow) {
    for (const Case& each : Cases)
        With(each, {Entry(each.kind, u"A"_s), u"torn"_s, Entry(each.kind, u"B"_s)}, [&] {
            EXPECT_EQ(Rows(), u"A|B"_s);
            EXPECT_EQ(Selected(), 0);
            EXPECT_TRUE(ErrorLog().contains(u"Proc: Fill"_s + each.items + u"List - "_s + each.tag));
            EXPECT_TRUE(ErrorLog().contains(u"Line 2 of the list has no \"&"_s));
        });
    EXPECT_EQ(TakeMessages(),
              (QStringList{u"It seems that your bulletins list file may have become corrupted "
                           "somehow.\r\n\r\nWould you like QLM to clear the bulletins list so that "
                           "you ca re-add them?"_s,
                           u"It seems that your Statuses list file may have become corrupted "
                           "somehow.\r\n\r\nWould you like QLM to clear the Statuses list so that "
                           "you ca re-add them?"_s}));
}

TEST_F(ListScreensTest, AFileThatCannotBeReadIsClearedOnYes) {
    for (const Case& each : {Cases[2], Cases[3]}) {
        dialogs.answers = {Answer::Yes};
        With(each, {u"torn"_s, Entry(each.kind, u"A"_s)}, [&] {
            EXPECT_EQ(Lines(), QStringList());
            EXPECT_TRUE(Rows().startsWith(u"Add a "_s));
        });
    }
}

TEST_F(ListScreensTest, ADeleteAsksFirst) {
    for (const Case& each : Cases)
        WithLetters(each, u"ABC"_s, [&] {
            Select(1);
            dialogs.answers = {Answer::No};
            ClickItem("Delete");
            EXPECT_EQ(Letters(), u"ABC"_s);
            dialogs.answers = {Answer::Yes};
            ClickItem("Delete");
            EXPECT_EQ(Letters(), u"AC"_s);
            EXPECT_EQ(Rows(), u"A|C"_s);
            EXPECT_EQ(TakeMessages(), (QStringList{u"Are you sure?"_s, u"Are you sure?"_s}));
            EXPECT_EQ(app->files.ReadLines(app->ProgramFile(u"Temp_"_s + each.items + u"List.txt"_s)),
                      Lines());
        });
}

TEST_F(ListScreensTest, OfOneNameAllAreDeletedAndOneUndoBringsThemBack) {
    const QStringList before{Entry(ContentKind::Bulletin, u"A"_s), Entry(ContentKind::Bulletin, u"B"_s),
                             Entry(ContentKind::Bulletin, u"A"_s, u"0"_s)};
    With(BulletinCase, before, [&] {
        EXPECT_FALSE(IsEnabled(u"cmdUndoDelete"_s));
        dialogs.answers = {Answer::Yes, Answer::Yes};
        ClickItem("Delete");
        EXPECT_EQ(Letters(), u"B"_s);
        ClickItem("Delete");
        EXPECT_EQ(Rows(), u"Add a bulletin..."_s);
        Click(u"cmdUndoDelete"_s);
        EXPECT_EQ(Letters(), u"B"_s);
        Click(u"cmdUndoDelete"_s);
        EXPECT_EQ(Lines(), before);
        EXPECT_EQ(Selected(), 0);
        EXPECT_FALSE(IsEnabled(u"cmdUndoDelete"_s));
    });
    WithLetters(BulletinCase, u"A"_s, [&] { EXPECT_FALSE(IsEnabled(u"cmdUndoDelete"_s)); });
}

TEST_F(ListScreensTest, EntriesMoveAndStaySelected) {
    for (const Case& each : Cases)
        WithLetters(each, u"ABC"_s, [&] {
            EXPECT_FALSE(IsEnabled(u"cmdMoveUp"_s));
            EXPECT_TRUE(IsEnabled(u"cmdMoveDown"_s));
            Click(u"cmdMoveDown"_s);
            EXPECT_EQ(Letters(), u"BAC"_s);
            EXPECT_EQ(Selected(), 1);
            EXPECT_TRUE(IsEnabled(u"cmdMoveUp"_s));
            Click(u"cmdMoveDown"_s);
            EXPECT_EQ(Letters(), u"BCA"_s);
            EXPECT_FALSE(IsEnabled(u"cmdMoveDown"_s));
            Click(u"cmdMoveUp"_s);
            EXPECT_EQ(Letters(), u"BAC"_s);
            EXPECT_EQ(Selected(), 1);
        });
    WithLetters(BulletinCase, u"A"_s, [&] {
        EXPECT_FALSE(IsEnabled(u"cmdMoveUp"_s));
        EXPECT_FALSE(IsEnabled(u"cmdMoveDown"_s));
    });
}

TEST_F(ListScreensTest, AnEntryIsDraggedToAnotherPlace) {
    for (const Case& each : Cases)
        WithLetters(each, u"ABCD"_s, [&] {
            Run(QString::fromLatin1(Box()) + u"_DragDrop"_s, 2);
            EXPECT_EQ(Letters(), u"BCAD"_s);
            EXPECT_EQ(Selected(), 2);
            Run(QString::fromLatin1(Box()) + u"_DragDrop"_s, 0);
            EXPECT_EQ(Letters(), u"ABCD"_s);
        });
}

TEST_F(ListScreensTest, ATickIsWrittenAtOnce) {
    for (const Case& each : Cases)
        WithLetters(each, u"AB"_s, [&] {
            Tick(1, false);
            EXPECT_EQ(Letters(), u"Ab"_s);
            Tick(0, false);
            EXPECT_EQ(Letters(), u"ab"_s);
            Tick(1, true);
            EXPECT_EQ(Letters(), u"aB"_s);
            EXPECT_EQ(Rows(), u"A|B"_s);
        });
}

// The boxes say what the file says.
TEST_F(ListScreensTest, OfOneNameTheFirstIsTicked) {
    WithLetters(BulletinCase, u"AA"_s, [&] {
        Tick(1, false);
        EXPECT_EQ(Letters(), u"aA"_s);
        EXPECT_FALSE(IsTicked(0));
        EXPECT_TRUE(IsTicked(1));
    });
}

TEST_F(ListScreensTest, ATickThatCannotBeWrittenIsTakenBackAndReported) {
    for (const Case& each : Cases)
        WithLetters(each, u"AB"_s, [&] {
            world.gate.readOnlyFolders = {world.installationFolder};
            Tick(1, false);
            EXPECT_TRUE(IsTicked(1));
            Click(u"cmdMoveDown"_s);
            Select(1);
            Click(u"cmdMoveUp"_s);
            dialogs.answers = {Answer::Yes};
            ClickItem("Delete");
            EXPECT_EQ(Letters(), u"AB"_s);
            EXPECT_FALSE(IsEnabled(u"cmdUndoDelete"_s));
            world.gate.readOnlyFolders.clear();
            for (const QString& procedure : {u"errChangeSelectedState"_s, u"MoveDown"_s, u"errMoveUp"_s,
                                             u"cmdDelete"_s + each.item + u"_Click"_s})
                EXPECT_TRUE(ErrorLog().contains(u"Proc: "_s + procedure + u" - "_s + each.tag))
                    << procedure.toStdString();
        });
}

TEST_F(ListScreensTest, ANewEntryIsWrittenBelowTheOthers) {
    for (const Case& each : Cases)
        WithLetters(each, u"A"_s, [&] {
            OnEntry([&] {
                EXPECT_EQ(dialogs.hiddenForms, QStringList());
                for (const char* field : {"txtSubject", "txtMessage", "txtComment", "txtCommentNonHTML"})
                    if (app->controls.Has(QLatin1StringView("frm" + each.item.toLatin1() + '.' + field)))
                        Write(field, u"New"_s);
                Save();
                EXPECT_FALSE(dialogs.IsFormOpen(u"frm"_s + each.item));
            });
            ClickItem("Add");
            EXPECT_EQ(Rows(), u"A|New"_s);
            EXPECT_TRUE(IsTicked(1));
        });
}

TEST_F(ListScreensTest, AnEditIsHandedTheEntryAndTakesItsPlace) {
    for (const Case& each : Cases)
        WithLetters(each, u"AbC"_s, [&] {
            Select(1);
            const bool hasSubject = each.kind == ContentKind::Message || each.kind == ContentKind::Bulletin;
            OnEntry([&] {
                EXPECT_EQ(dialogs.hiddenForms, QStringList{Form()});
                const QByteArray form = "frm" + each.item.toLatin1() + '.';
                if (hasSubject) {
                    EXPECT_EQ(app->controls.Text(QLatin1StringView(form + "txtSubject")), u"B"_s);
                    Write("txtSubject", u"X"_s);
                }
                const char* body = each.kind == ContentKind::Comment ? "txtComment" : "txtMessage";
                EXPECT_EQ(app->controls.Text(QLatin1StringView(form + body)),
                          hasSubject ? u"text of B"_s : u"B\r\nmore"_s);
                Write(body, u"X;\r\ny"_s);
                Save();
            });
            ClickItem("Edit");
            EXPECT_EQ(dialogs.hiddenForms, QStringList());
            EXPECT_EQ(Rows(), hasSubject ? u"A|X|C"_s : u"A|X%cln%|C"_s);
            EXPECT_EQ(Letters(), u"AxC"_s);
        });
}

TEST_F(ListScreensTest, ReturnEditsDeleteDeletesInsertAdds) {
    WithLetters(BulletinCase, u"AB"_s, [&] {
        QStringList shown;
        OnEntry([&] { shown.append(app->controls.Text("frmBulletin.txtSubject"_L1)); });
        const QString list = QString::fromLatin1(Box());
        Run(list + u"_KeyDown"_s, 13);
        Run(list + u"_KeyDown"_s, 45);
        Run(list + u"_DblClick"_s);
        EXPECT_EQ(shown, (QStringList{u"A"_s, QString(), u"A"_s}));
        dialogs.answers = {Answer::Yes};
        Run(list + u"_KeyDown"_s, 46);
        EXPECT_EQ(Letters(), u"B"_s);
    });
}

TEST_F(ListScreensTest, TheOrderIsKeptInTheScopeOfTheList) {
    app->state.AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().ChangeGlobalFlags({});
    for (const Case& each : Cases) {
        const QString inOrder = u"opt"_s + each.items + u"ListSendInOrder"_s;
        const QString random = u"opt"_s + each.items + u"ListRandomize"_s;
        const QString section = u"Field Entries\\a@example.com"_s;
        WithLetters(each, u"A"_s, [&] {
            EXPECT_TRUE(app->controls.Ticked(QLatin1StringView(Name(inOrder))));
            app->controls.SetTicked(QLatin1StringView(Name(random)), true);
        });
        EXPECT_EQ(world.settings.GetSetting(section, random, {}), u"True"_s);
        EXPECT_EQ(world.settings.GetSetting(section, inOrder, {}), u"False"_s);
        EXPECT_TRUE(app->Get<ContentLists>().Randomizes(each.kind));
        WithLetters(each, u"A"_s, [&] {
            EXPECT_FALSE(app->controls.Ticked(QLatin1StringView(Name(inOrder))));
            EXPECT_TRUE(app->controls.Ticked(QLatin1StringView(Name(random))));
        });
        EXPECT_EQ(world.settings.GetSetting(u"Field Entries"_s, random, u"none"_s), u"none"_s);
    }
}

TEST_F(ListScreensTest, TheTabShowsTheListWhenItsScreenCloses) {
    for (const Case& each : Cases) {
        WithLetters(each, u"ABC"_s, [&] { Tick(1, false); });
        const QByteArray list = (each.orderOfTab + u".lstSendList"_s).toLatin1();
        EXPECT_EQ(app->controls.Items(QLatin1StringView(list)), (QStringList{u"A"_s, u"C"_s}));
        EXPECT_EQ(Rows(), QString());
    }
}

// A chained run may sign another account in behind the screen.
TEST_F(ListScreensTest, AnAccountThatChangesMeanwhileKeepsItsOwnList) {
    app->state.AccountEmail = u"a@example.com"_s;
    app->Get<SettingsFields>().ChangeGlobalFlags({});
    WithLetters(BulletinCase, u"AB"_s, [&] {
        app->state.AccountEmail = u"b@example.com"_s;
        Tick(0, false);
        OnEntry([&] {
            Write("txtSubject", u"C"_s);
            Write("txtMessage", u"c"_s);
            Save();
        });
        ClickItem("Add");
        app->controls.SetTicked("frmBulletinsList.optBulletinsListRandomize"_L1, true);
    });
    EXPECT_EQ(Lines(), QStringList());
    EXPECT_FALSE(app->Get<ContentLists>().Randomizes(ContentKind::Bulletin));
    app->state.AccountEmail = u"a@example.com"_s;
    EXPECT_EQ(Letters(), u"aBC"_s);
    EXPECT_TRUE(app->Get<ContentLists>().Randomizes(ContentKind::Bulletin));
}

TEST_F(ListScreensTest, LettersThatTheFileCannotHoldAreToldBeforeTheyAreLost) {
    const QString question = u"These characters can't be kept in the file; each would become a question "
                             u"mark:\n\nж☃😀\n\nDo you want "
                             "to save the text without them?"_s;
    WithLetters(BulletinCase, u"A"_s, [&] {
        OnEntry([&] {
            Write("txtSubject", u"ж and ж"_s);
            Write("txtMessage", u"café €, ☃ and 😀"_s);
            dialogs.answers = {Answer::No, Answer::Yes};
            Save();
            EXPECT_TRUE(dialogs.IsFormOpen(u"frmBulletin"_s));
            EXPECT_EQ(Letters(), u"A"_s);
            Save();
        });
        ClickItem("Add");
        EXPECT_EQ(TakeMessages(), (QStringList{question, question}));
        EXPECT_EQ(Lines().last(), u"? and ?&Bulletin=café €, ? and ?&Selected=1"_s);
    });
}

TEST_F(ListScreensTest, ATextThatTheListCouldNotBeReadWithIsRefused) {
    WithLetters(BulletinCase, u"A"_s, [&] {
        OnEntry([&] {
            Write("txtSubject", u"long"_s);
            Write("txtMessage", u"x"_s.repeated(1 << 20));
            Save();
        });
        ClickItem("Add");
        EXPECT_EQ(TakeMessages(), QStringList{u"The text is too long to be kept in the list."_s});
        EXPECT_EQ(Letters(), u"A"_s);
        OnEntry([&] {
            Write("txtSubject", u"Long"_s);
            Write("txtMessage", u"x"_s.repeated(100'000));
            Save();
        });
        ClickItem("Add");
        EXPECT_EQ(Rows(), u"A|Long"_s);
        Select(1);
        EXPECT_EQ(Text(u"txtMessage"_s).size(), 100'000);
    });
}

TEST_F(ListScreensTest, AnEntryThatIsGoneMeanwhileIsNotSavedInSilence) {
    WithLetters(BulletinCase, u"AB"_s, [&] {
        OnEntry([&] {
            app->files.WriteLines(app->Get<ContentLists>().PathOf(ContentKind::Bulletin),
                                  {Entry(kind, u"B"_s)});
            Write("txtSubject", u"X"_s);
            Save();
            EXPECT_TRUE(dialogs.IsFormOpen(u"frmBulletin"_s));
        });
        ClickItem("Edit");
        EXPECT_EQ(TakeMessages(),
                  QStringList{u"The entry isn't in the list any more. Your text has not been saved."_s});
    });
}

TEST_F(ListScreensTest, AStatusCountsDownFrom140) {
    const auto left = [this] { return app->controls.Text("frmStatus.lblStatusCharactersRemaining"_L1); };
    EXPECT_EQ(left(), u"140 characters remaining"_s);
    app->controls.SetText("frmStatus.txtMessage"_L1, u"Hello"_s);
    EXPECT_EQ(left(), u"135 characters remaining"_s);
    app->controls.SetText("frmStatus.txtMessage"_L1, u"x"_s.repeated(141));
    EXPECT_EQ(left(), u"-1 characters remaining"_s);
}

// A run goes on behind the screen and reads the same file, line by line.
TEST_F(ListScreensTest, ARewriteBetweenTwoPicksShiftsWhatTheNextOneFinds) {
    const auto pick = [this] { return PickContentLine(*app, StatusUpdates).left(1); };
    WithLetters(Cases[3], u"ABC"_s, [&] {
        EXPECT_EQ(pick(), u"A"_s);
        Click(u"cmdMoveDown"_s);
        EXPECT_EQ(Letters(), u"BAC"_s);
        EXPECT_EQ(pick(), u"A"_s);
        Tick(2, false);
        EXPECT_EQ(pick(), u"B"_s);
        Select(1);
        dialogs.answers = {Answer::Yes};
        ClickItem("Delete");
        EXPECT_EQ(Letters(), u"Bc"_s);
        EXPECT_EQ(pick(), u"B"_s);
    });
}

TEST_F(ListScreensTest, ASecondScreenDoesNotOpenOverTheFirst) {
    WithLetters(BulletinCase, u"AB"_s, [&] {
        bool wasOpened = false;
        dialogs.onModal[u"frmMessagesList"_s] = [&] { wasOpened = true; };
        Run(u"picMessanger.picEditList_Click"_s);
        EXPECT_FALSE(wasOpened);
        Click(u"cmdMoveDown"_s); // of the first one
        EXPECT_EQ(Rows(), u"B|A"_s);
    });
}

} // namespace qlm
