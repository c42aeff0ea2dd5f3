// SPDX-License-Identifier: MIT
// A gathered list that can't be changed is reported with the place that wanted to.
#include "CommenterTest.h"
#include "MessengerTest.h"

namespace qlm {
namespace {

void RefuseRemovals(App& app) {
    app.controls.SetTicked("chkRemoveAfterSent"_L1, true);
    app.controls.AddListener([](const Control& control, Controls::Change change, int) {
        if (control.name == "lstFriendIDs"_L1 && change == Controls::Change::RowRemoved)
            throw std::runtime_error("no row goes");
    });
}

QStringList PlacesIn(App& app) {
    return app.files.ReadLines(app.state.ErrorLogPath).filter(u"Data: "_s);
}

const QString Page = u"<html><body><a href='/home'>Home</a>%1</body></html>"_s;
const QString Profile = Page.arg(u"<p>View My: Pics</p><p>Male<br>33 years old</p>"_s);

void LookForWomen(RunState& state) {
    state.blnFilterGenderOff = false;
    state.blnFilterFemale = true;
}

} // namespace

class MessageRemovalTest : public MessengerTest {
protected:
    MessageRemovalTest() {
        People({u"1001"_s});
        RefuseRemovals(*app);
    }
    QStringList Places() {
        Start();
        Finish();
        return PlacesIn(*app);
    }
};

TEST_F(MessageRemovalTest, OfWhoStandsInTheLog) {
    app->files.WriteLines(app->ProgramFile(u"MessagesLog.txt"_s), {u"1001"_s});
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendMessages - 1"_s});
}

TEST_F(MessageRemovalTest, OfWhoDoesNotMatchTheFilter) {
    LookForWomen(State());
    world.web.SetPage(u"http://www.site.example.com/1001/classic"_s, Profile);
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendMessages - 2"_s});
}

TEST_F(MessageRemovalTest, AfterAMessageThatFollowsARequest) {
    app->controls.SetTicked("chkFrSendMessage"_L1, true);
    world.web.SetPage(u"http://www.site.example.com/my/friends/addtofriends/1001"_s,
                      Page.arg(u"Request Sent!"_s));
    app->commands.Run(u"piccmdAddFriends_Click"_s);
    Finish();
    EXPECT_EQ(PlacesIn(*app), QStringList{u"Data: IterateSendMessages - 3"_s});
}

TEST_F(MessageRemovalTest, AfterAMessage) {
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendMessages - 4"_s});
}

TEST_F(MessageRemovalTest, WhereThePageHasNoButton) {
    world.web.SetPage(NewPage + u"1001"_s,
                      Form(u"1001"_s, u"Deliver"_s).replace(u"</form>"_s, u"<button>send</button></form>"_s));
    EXPECT_EQ(Places(), QStringList{u"Data: SubmitMessage"_s});
}

class CommentRemovalTest : public CommentRun {
protected:
    CommentRemovalTest() : CommentRun(false) {
        app->Get<GatheredList>().Remove(1, u"test"_s);
        RefuseRemovals(*app);
    }
    QStringList Places() {
        Run();
        return PlacesIn(*app);
    }
};

TEST_F(CommentRemovalTest, OfWhoStandsInTheLog) {
    app->files.WriteLines(SentLog(*app, &Comments).Path(), {u"1001"_s});
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendComments - 1"_s});
}

TEST_F(CommentRemovalTest, OfWhoDoesNotMatchTheFilter) {
    LookForWomen(State());
    world.web.SetPage(app->Expand(u"http://{SiteRootHost}/1001/classic"_s), Profile);
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendComments - 2"_s});
}

TEST_F(CommentRemovalTest, AfterAComment) {
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendComments - 3"_s});
}

TEST_F(CommentRemovalTest, WhereTheFormIsBack) {
    SetPage(ConfirmPage(u"1001"_s),
            u"<p>Post A Comment About Tom</p><div id=ctl00_ctl00_cpMain_cpMain_ctl02_ctl00></div>"_s);
    EXPECT_EQ(Places(), QStringList{u"Data: IterateSendComments - 4"_s});
}

// What looked like the button takes the text.
TEST_F(CommentRemovalTest, WhereTheFormHasNoButton) {
    SetPage(CommentPage(u"1001"_s),
            app->Expand(u"<a href='http://{ProfileHost}/index.cfm?fuseaction=user.viewprofile'>x</a>"
                        "<form><input name=commentText value='Post a Comment'></form>"_s));
    EXPECT_EQ(Places(), QStringList{u"Data: SubmitComment"_s});
}

TEST_F(CommentRemovalTest, WhereThePageThatConfirmsHasNoButton) {
    SetPage(ConfirmPage(u"1001"_s), u"<input type=button value='Post a Comment'>"_s);
    EXPECT_EQ(Places(), QStringList{u"Data: ConfirmComment"_s});
}

} // namespace qlm
