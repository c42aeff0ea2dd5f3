// SPDX-License-Identifier: MIT
#include "content/Preview.h"

#include "SimulatedProgram.h"
#include "core/Text.h"
#include "steps/StopResume.h"

#include <QFile>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString LetterPage = u"as it is read on the site"_s; // of a bulletin's template
const QString Templates = u"program/Preview Templates"_s;

class PreviewTest : public SimulatedProgram {
protected:
    PreviewTest() {
        QDir().mkpath(folder.filePath(Templates));
        for (const QString& name : {u"previewtemplateBUL.htm"_s, u"previewtemplateMSG.htm"_s})
            EXPECT_TRUE(QFile::copy(QStringLiteral(QUILLMERE_DATA "/Preview Templates/") + name,
                                    folder.filePath(Templates + u'/' + name)));
    }
    SimBrowser& Browser() { return platform->Browser(BrowserName::webPreview); }
    QString Text() { return Browser().Document().BodyText(); }
    QString Markup() { return Browser().Document().BodyHTML(); }
    void Show(const QString& kind, const QString& text, Preview::As as, const std::function<void()>& act) {
        bool wasOpen = false;
        dialogs.onModal[u"frmPreview"_s] = [&] {
            wasOpen = true;
            act();
        };
        app->Get<Preview>().Show(kind, text, as);
        EXPECT_TRUE(wasOpen);
    }
    QString Press(const char* button) {
        QString seen;
        dialogs.onModal[u"frmPreview"_s] = [&] { seen = Text(); };
        EXPECT_TRUE(app->commands.Run(QString::fromLatin1(button) + u"_Click"_s));
        return seen;
    }
    // The template of comments comes so late, or not at all.
    void DelayTemplate(std::optional<int> latencyMs) {
        const QString path = folder.filePath(Templates + u"/previewtemplateMSG.htm"_s);
        SimAnswer answer;
        answer.html = QString::fromUtf8(app->files.ReadBytes(path));
        answer.latencyMs = latencyMs;
        answer.fault = latencyMs ? SimFault::None : SimFault::Hang;
        world.web.SetAnswer(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded), answer);
    }
    QString ErrorLog() {
        const QString path = app->state.ErrorLogPath;
        return app->files.FileExists(path) ? app->files.ReadLines(path).join(u'\n') : QString();
    }
};

} // namespace

TEST_F(PreviewTest, EachTemplateHasOnePlaceForTheText) {
    for (const QString& name : {u"previewtemplateBUL.htm"_s, u"previewtemplateMSG.htm"_s}) {
        const QString page =
            QString::fromUtf8(app->files.ReadBytes(folder.filePath(Templates + u'/' + name)));
        EXPECT_EQ(page.count(u"REPLACETHISTEXT"_s), 1) << name.toStdString();
        EXPECT_TRUE(page.contains(u"prefers-color-scheme: dark"_s)) << name.toStdString();
        EXPECT_FALSE(page.contains(u"http:"_s) || page.contains(u"https:"_s) || page.contains(u"<script"_s));
    }
}

TEST_F(PreviewTest, MessagesAndBulletinsShareATemplateAndCommentsHaveTheOther) {
    for (const auto& [kind, isLetter] :
         {std::pair{u"MESSAGE"_s, true}, {u"BULLETIN"_s, true}, {u""_s, false}, {u"COMMENT"_s, false}})
        Show(kind, u"the text"_s, Preview::As::Markup, [&, isLetter = isLetter] {
            EXPECT_EQ(Text().contains(LetterPage), isLetter) << Text().toStdString();
            EXPECT_TRUE(Text().contains(u"the text"_s));
            EXPECT_FALSE(Text().contains(u"REPLACETHISTEXT"_s));
        });
}

TEST_F(PreviewTest, AsMarkupLineEndsBreakTheLine) {
    Show(u"MESSAGE"_s, u"<b>one</b>\r\ntwo\nthree"_s, Preview::As::Markup, [&] {
        EXPECT_TRUE(Has(Markup(), u"<b>one</b><br>two<br>three"_s)) << Markup().toStdString();
        EXPECT_TRUE(Text().contains(u"one\ntwo\nthree"_s)) << Text().toStdString();
    });
}

TEST_F(PreviewTest, AsTextMarkupShows) {
    Show({}, u"<b>one</b>\r\ntwo"_s, Preview::As::Text, [&] {
        EXPECT_TRUE(Text().contains(u"<b>one</b>"_s)) << Text().toStdString();
        EXPECT_FALSE(Text().contains(u"<br>"_s));
        EXPECT_TRUE(Browser().Document().GetElementsByTagName(u"b"_s).empty());
    });
}

TEST_F(PreviewTest, ATextThatHoldsTheMarkOrPatternSignsStandsAsItIs) {
    const QString text = u"REPLACETHISTEXT \\1 $1 %1 REPLACETHISTEXT"_s;
    for (const Preview::As as : {Preview::As::Markup, Preview::As::Text})
        Show(u"MESSAGE"_s, text, as, [&] { EXPECT_TRUE(Text().contains(text)) << Text().toStdString(); });
}

TEST_F(PreviewTest, WithoutItsTemplateTheBareTextShowsAndTheReasonIsLogged) {
    QFile::remove(folder.filePath(Templates + u"/previewtemplateMSG.htm"_s));
    Show({}, u"<i>bare</i>"_s, Preview::As::Markup, [&] {
        EXPECT_EQ(Text().trimmed(), u"bare"_s);
        EXPECT_TRUE(ErrorLog().contains(u"Proc: Form_Load - frmPreview"_s));
        EXPECT_TRUE(ErrorLog().contains(u"The template of the preview is missing: \""_s));
        EXPECT_TRUE(ErrorLog().contains(u"previewtemplateMSG.htm"_s));
    });
    Show({}, u"<i>bare</i>"_s, Preview::As::Text, [&] { EXPECT_EQ(Text().trimmed(), u"<i>bare</i>"_s); });
}

TEST_F(PreviewTest, ATemplateWithoutAPlaceCountsAsMissing) {
    app->files.WriteBytes(folder.filePath(Templates + u"/previewtemplateMSG.htm"_s), "<body>no place</body>");
    Show({}, u"bare"_s, Preview::As::Markup, [&] {
        EXPECT_EQ(Text().trimmed(), u"bare"_s);
        EXPECT_TRUE(ErrorLog().contains(u"The template of the preview has no place for the text: \""_s));
    });
}

TEST_F(PreviewTest, ATemplateThatNeverLoadsIsGivenUpAndTheReasonLogged) {
    DelayTemplate(std::nullopt);
    const qint64 before = world.clock.NowMs();
    Show({}, u"<i>bare</i>"_s, Preview::As::Markup, [&] {
        EXPECT_EQ((world.clock.NowMs() - before) / 1000, 10);
        EXPECT_EQ(Text().trimmed(), u"bare"_s);
        EXPECT_TRUE(ErrorLog().contains(u"The page of the preview did not load: \""_s))
            << ErrorLog().toStdString();
    });
}

// The wait for the template is no run's: a run that waits around it is stopped, and the preview opens all the
// same.
TEST_F(PreviewTest, AStopThatComesWhileItsTemplateLoadsLeavesItAlone) {
    DelayTemplate(5000);
    bool wasShown = false;
    platform->Pump().Queue().Post([&] {
        Show({}, u"the text"_s, Preview::As::Markup, [&] {
            wasShown = true;
            EXPECT_TRUE(Text().contains(u"the text"_s));
            EXPECT_NE(Text().trimmed(), u"the text"_s) << "without its template";
            EXPECT_EQ(ErrorLog(), QString());
        });
    });
    platform->Pump().Queue().PostAt(world.clock.NowMs() + 1000,
                                    [&] { app->Get<StopResume>().StopAll(StopReason::WindowStop); });
    const Waiting::Owned running(app->waiting);
    EXPECT_THROW(app->waiting.WaitFor(u"the page"_s, [] { return true; }), RunEnded);
    EXPECT_TRUE(wasShown);
}

// Its button pressed again, or another text's, while the template loads: one preview at a time.
TEST_F(PreviewTest, ASecondStartWhileItsTemplateLoadsDoesNothing) {
    DelayTemplate(5000);
    platform->Pump().Queue().PostAt(world.clock.NowMs() + 1000, [&] {
        app->Get<Preview>().Show(u"MESSAGE"_s, u"another text"_s, Preview::As::Text);
        EXPECT_FALSE(dialogs.IsFormOpen(u"frmPreview"_s));
    });
    int shown = 0;
    Show({}, u"<b>the</b> text"_s, Preview::As::Markup, [&] {
        ++shown;
        EXPECT_TRUE(Text().contains(u"the text"_s)) << Text().toStdString();
        EXPECT_FALSE(Text().contains(u"another"_s) || Text().contains(LetterPage));
    });
    EXPECT_EQ(shown, 1);
}

TEST_F(PreviewTest, NothingOfATextRunsLoadsOrLeadsAnywhere) {
    world.web.SetPage(u"http://evil.example.com/"_s, u"<body>gone</body>"_s);
    const QString text =
        u"<a id=link href='http://evil.example.com/'>link</a><a id=js href='javascript:leave()'>js</a>"
        "<form id=form action='http://evil.example.com/'><input id=send type=submit></form>"
        "<b id=click data-on-click='goto http://evil.example.com/' data-on-load='remove #b'>click</b>"
        "<i data-on-script='leave' data-do='remove #click'></i><iframe "
        "src='http://evil.example.com/'></iframe>"
        "<meta http-equiv=refresh content='0; url=http://evil.example.com/'>"_s;
    Show({}, text, Preview::As::Markup, [&] {
        const QString before = Browser().LocationURL();
        for (const char* id : {"#link", "#js", "#send", "#click"})
            Browser().PageClick(QString::fromLatin1(id));
        Browser().Document().GetElementById(u"form"_s).Submit();
        platform->Pump().RunFor(5000);
        EXPECT_EQ(Browser().LocationURL(), before);
        EXPECT_TRUE(Text().contains(u"click"_s));
        EXPECT_EQ(Browser().Visited().filter(u"evil"_s), QStringList());
        EXPECT_TRUE(Browser().PostedForms().empty());
        EXPECT_EQ(Browser().scripts, QStringList());
        Browser().RightClick();
        platform->Pump().RunFor(10);
        EXPECT_EQ(Browser().contextMenuShown, false);
    });
}

TEST_F(PreviewTest, NothingOfItIsLeftWhenItCloses) {
    Show({}, u"the text"_s, Preview::As::Markup, [] {});
    EXPECT_EQ(Browser().LocationURL(), u"about:blank"_s);
}

TEST_F(PreviewTest, EveryButtonShowsItsOwnText) {
    struct Row {
        const char* button;
        QLatin1StringView text;
        bool isLetter;
    };
    for (const Row& row : {Row{"picMsgPreview", "txtMsgMessage"_L1, true},
                           {"picAccMsgPreview", "txtAcceptMessage"_L1, true},
                           {"picAccComPreview", "txtAcceptComment"_L1, true},
                           {"picAccComNonHTMLPreview", "txtAcceptCommentNonHTML"_L1, true},
                           {"picBulPreview", "txtBulMessage"_L1, true},
                           {"picComPreview", "txtComment"_L1, false},
                           {"frmMessage.picBulPreview", "frmMessage.txtMessage"_L1, true},
                           {"frmBulletin.picBulPreview", "frmBulletin.txtMessage"_L1, true}}) {
        app->controls.SetText(row.text, QString(row.text) + u" <b>x</b>\r\ny"_s);
        const QString seen = Press(row.button);
        EXPECT_TRUE(seen.contains(QString(row.text) + u" x\ny"_s))
            << row.button << ": " << seen.toStdString();
        EXPECT_EQ(seen.contains(LetterPage), row.isLetter) << row.button;
    }
    app->controls.SetText("txtCommentNonHTML"_L1, u"plain <b>x</b>"_s);
    EXPECT_TRUE(Press("picComPreviewNonHTML").contains(u"plain <b>x</b>"_s));
}

} // namespace qlm
