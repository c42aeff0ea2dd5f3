// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "campaigns/RequestFields.h"
#include "steps/StopResume.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString UpdatesTick = u"ctl00_ctl00_ctl00_cpMain_cpMain_cpfMainBody_EditFullName_subscribeActivities"_s;

// A run that stands at step 8 on a request page.
class RequestFieldsTest : public SimulatedProgram {
protected:
    RequestFieldsTest() : fields(*app) {
        app->state.CurrentAction = u"FR"_s;
        app->state.intFRStep = 8;
        app->state.strCurrentID = u"1001"_s;
        app->state.lngTargetNumber = 1;
    }
    void Show(const QString& body, const QString& path = u"request"_s) {
        const QString address = u"http://www.example.com/"_s + path;
        world.web.SetPage(address, u"<html><body><a href='/'>Home</a>"_s + body + u"</body></html>"_s);
        app->WebBrowser1().Navigate(address);
        platform->Pump().RunFor(1000);
    }
    Element ById(const QString& id) { return app->WebBrowser1().Document().GetElementById(id); }
    bool IsTicked(const QString& id) { return !ById(id).GetAttribute(u"checked"_s).isEmpty(); }
    QStringList Log() {
        const QString path = app->ProgramFile(u"FriendsLog.txt"_s);
        return app->files.FileExists(path) ? app->files.ReadLines(path) : QStringList();
    }

    RequestFields fields;
};

class NoteTest : public RequestFieldsTest {
protected:
    NoteTest() { app->controls.SetText("txtFRNote"_L1, u"Hi &name&!"_s); }
    const QString names = u"<p>Do you want to add <b>MARY LEE</b>?</p>"
                          "<p>You will send a friend request to JOHN SMITH</p>"_s;
};

TEST_F(NoteTest, OfTheNewLayoutGoesIntoEveryFieldOfTheName) {
    app->state.blnNewLayout = true;
    Show(names + u"<textarea id='a' name='extraText'></textarea><input id='b' name='extraText'>"
                 "<input id='c' name='ctl00$cpMain$NoteToFriend$Note'>"_s);
    fields.EnterNote();
    EXPECT_EQ(ById(u"a"_s).Value(), u"Hi John!"_s);
    EXPECT_EQ(ById(u"b"_s).Value(), u"Hi John!"_s);
    EXPECT_EQ(ById(u"c"_s).Value(), QString());
}

TEST_F(NoteTest, OfTheOldLayoutGoesIntoBothItsFields) {
    Show(names +
         u"<input id='c' name='ctl00$cpMain$NoteToFriend$Note'><input id='a' name='extraText'>"
         "<textarea id='ctl00_ctl00_ctl00_cpMain_cpMain_cpfMainBody_NoteToFriend_Note'></textarea>"_s);
    fields.EnterNote();
    EXPECT_EQ(ById(u"c"_s).Value(), u"Hi Mary!"_s);
    EXPECT_EQ(ById(u"ctl00_ctl00_ctl00_cpMain_cpMain_cpfMainBody_NoteToFriend_Note"_s).Value(),
              u"Hi Mary!"_s);
    EXPECT_EQ(ById(u"a"_s).Value(), QString());
}

// The way through the filter leads there on both layouts.
TEST_F(NoteTest, OfTheNewerPageGoesIntoItsFieldOnTheOldLayoutToo) {
    Show(names + u"<input id='a' name='extraText'><input id='c' name='ctl00$cpMain$NoteToFriend$Note'>"_s,
         u"my/friends/addtofriends/1001"_s);
    fields.EnterNote();
    EXPECT_EQ(ById(u"a"_s).Value(), u"Hi John!"_s);
    EXPECT_EQ(ById(u"c"_s).Value(), QString());
}

TEST_F(NoteTest, LosesItsTokenOnAPageWithoutAName) {
    app->state.blnNewLayout = true;
    Show(u"<input id='a' name='extraText'>"_s);
    fields.EnterNote();
    EXPECT_EQ(ById(u"a"_s).Value(), u"Hi !"_s);
}

struct TickCase {
    bool onThePage;
    bool wanted;
};

class PageTickTest : public RequestFieldsTest, public testing::WithParamInterface<TickCase> {};

TEST_P(PageTickTest, FollowsTheOptionForUpdates) {
    app->controls.SetTicked("chkFRAddToUpdates"_L1, GetParam().wanted);
    app->controls.SetTicked("chkFRFullName"_L1, !GetParam().wanted);
    Show(u"<input type='checkbox' id='"_s + UpdatesTick + (GetParam().onThePage ? u"' checked>"_s : u"'>"_s));
    fields.ApplyFriendUpdatesOption();
    EXPECT_EQ(IsTicked(UpdatesTick), GetParam().wanted);
    fields.ApplyFriendUpdatesOption();
    EXPECT_EQ(IsTicked(UpdatesTick), GetParam().wanted) << "a box that is right already was clicked";
}

TEST_P(PageTickTest, FollowsTheOptionForTheFullName) {
    app->controls.SetTicked("chkFRFullName"_L1, GetParam().wanted);
    app->controls.SetTicked("chkFRAddToUpdates"_L1, !GetParam().wanted);
    Show(u"<input type='checkbox' id='"_s + UpdatesTick + (GetParam().onThePage ? u"' checked>"_s : u"'>"_s));
    fields.ApplyFullNameOption();
    EXPECT_EQ(IsTicked(UpdatesTick), GetParam().wanted);
}

INSTANTIATE_TEST_SUITE_P(Ticks, PageTickTest,
                         testing::Values(TickCase{false, false}, TickCase{false, true}, TickCase{true, false},
                                         TickCase{true, true}));

TEST_F(RequestFieldsTest, APageWithoutTheBoxIsLeftAlone) {
    app->controls.SetTicked("chkFRAddToUpdates"_L1, true);
    Show(u"<input type='checkbox' id='other'>"_s);
    fields.ApplyFriendUpdatesOption();
    EXPECT_FALSE(IsTicked(u"other"_s));
    EXPECT_FALSE(app->files.FileExists(app->state.ErrorLogPath));
}

class CategoryTest : public RequestFieldsTest {
protected:
    CategoryTest() {
        app->controls.SetTicked("chkFRAddToCategory"_L1, true);
        app->controls.SetText("cboFRCategories"_L1, u"Bands"_s);
    }
    // The link is clicked; the categories come so many seconds later.
    void ShowCategories(int seconds) {
        Show(u"<a href='#' id='x_ShowHideCatsLnk' data-on-click='set #cats title open'>Categories</a>"
             "<div id='cats'></div>"_s);
        platform->Pump().onPump = [this, comesMs = world.clock.NowMs() + seconds * 1000] {
            if (world.clock.NowMs() < comesMs || ById(u"cats"_s).Read(ElementText::Title) != u"open"_s)
                return;
            platform->Pump().onPump = nullptr;
            ById(u"cats"_s).SetInnerHTML(
                u"<div class='catNameColumn'><p><input type='checkbox' id='a'>Bandsmen (2)</p>"
                "<p><input type='checkbox' id='b'>Bands (1)</p>"
                "<p><input type='text' id='c' data-on-click='set #c value clicked'>Bands (1)</p>"
                "<p><input type='checkbox' id='d'>My bands (4)</p></div>"_s);
        };
    }
};

TEST_F(CategoryTest, IsTickedWhereItsNameStandsBeforeANumber) {
    ShowCategories(5);
    fields.ApplyCategory();
    EXPECT_EQ(app->Status(), u"Waiting for categories to load on page..."_s);
    EXPECT_FALSE(IsTicked(u"a"_s));
    EXPECT_TRUE(IsTicked(u"b"_s));
    EXPECT_EQ(ById(u"c"_s).Value(), QString()) << "it is no check box";
    EXPECT_TRUE(IsTicked(u"d"_s)) << "the text is looked for anywhere in the parent";
}

TEST_F(CategoryTest, IsNotAskedForWithoutTheOption) {
    app->controls.SetTicked("chkFRAddToCategory"_L1, false);
    ShowCategories(0);
    fields.ApplyCategory();
    EXPECT_EQ(app->Status(), QString());
    EXPECT_TRUE(ById(u"b"_s).IsNull());
}

TEST_F(CategoryTest, IsWaitedForOnlyWhileTheStepLasts) {
    ShowCategories(60);
    const qint64 startMs = world.clock.NowMs();
    platform->Pump().Queue().Post([this] { app->state.intFRStep = 9; });
    fields.ApplyCategory();
    EXPECT_LT(world.clock.NowMs() - startMs, 1000);
    app->state.intFRStep = 8;
    platform->Pump().Queue().Post([this] { app->Get<StopResume>().StopAll(StopReason::RequestStop); });
    fields.ApplyCategory();
    EXPECT_LT(world.clock.NowMs() - startMs, 1000);
    EXPECT_TRUE(ById(u"b"_s).IsNull());
}

TEST_F(CategoryTest, OfATargetThatWasLeftIsNotTicked) {
    ShowCategories(60);
    platform->Pump().Queue().Post([this] {
        ++app->state.lngTargetNumber;
        ById(u"cats"_s).SetInnerHTML(
            u"<p class='catNameColumn'><input type='checkbox' id='b'>Bands (1)</p>"_s);
    });
    fields.ApplyCategory();
    EXPECT_FALSE(IsTicked(u"b"_s));
}

class RequestButtonTest : public RequestFieldsTest {
protected:
    // What the page says of the input that was clicked.
    QString Clicked() { return ById(u"clicked"_s).InnerText(); }
    void ShowInputs(const QStringList& values) {
        QString body = u"<p id='clicked'></p>"_s;
        for (const QString& value : values)
            body +=
                u"<input type='button' value='%1' data-on-click='set #clicked innertext %1'>"_s.arg(value);
        Show(body);
    }
};

TEST_F(RequestButtonTest, IsTheFirstInputThatSaysSo) {
    for (const QString& value :
         {u"add to friends"_s, u"ADD TO FRIENDS"_s, u"AddToFriends"_s, u"Friend him"_s}) {
        app->state.intFRStep = 8;
        ShowInputs({u"unfriend"_s, value, u"Add to Friends again"_s});
        EXPECT_TRUE(fields.ClickRequestButton());
        EXPECT_EQ(Clicked(), value);
        EXPECT_EQ(app->state.intFRStep, 9);
    }
    EXPECT_EQ(Log(), QStringList(4, u"1001"_s));
}

TEST_F(RequestButtonTest, IsPressedOnlyBehindTheLine) {
    ShowInputs({u"Add to Friends"_s});
    world.gate.CrashAtWrite(1);
    EXPECT_THROW(fields.ClickRequestButton(), SimPowerCut);
    EXPECT_EQ(app->state.intFRStep, 9);
    EXPECT_EQ(Clicked(), QString());
}

TEST_F(RequestButtonTest, IsMissingOnAnotherPage) {
    ShowInputs({u"Cancel"_s, u"Send"_s});
    EXPECT_FALSE(fields.ClickRequestButton());
    EXPECT_EQ(Clicked(), QString());
    EXPECT_EQ(app->state.intFRStep, 8);
    EXPECT_TRUE(Log().isEmpty());
}

} // namespace
} // namespace qlm
