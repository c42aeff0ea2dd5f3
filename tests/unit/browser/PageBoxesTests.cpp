// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "browser/PageBoxes.h"
#include "steps/BrowserHost.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using PageBoxesTest = BrowserTest;

TEST_F(PageBoxesTest, AWindowIsClosedByItsTitle) {
    dialogs.windowTitles = {u"Login problem"_s, u"Message from webpage"_s};
    app->Get<PageBoxes>().ClosePopup(u"Login problem"_s);
    EXPECT_EQ(State().ClosePopupResult, u"CLOSED"_s);
    EXPECT_EQ(dialogs.windowTitles, QStringList{u"Message from webpage"_s});
    app->Get<PageBoxes>().ClosePopup(u"Login problem"_s);
    EXPECT_EQ(State().ClosePopupResult, u"NOT FOUND"_s);
    EXPECT_EQ(dialogs.windowTitles, QStringList{u"Message from webpage"_s});
}

TEST_F(PageBoxesTest, WithoutATitleTheScriptsBoxIsMeantAndThenTheBrowsers) {
    dialogs.windowTitles = {u"windows internet explorer"_s, u"Message from webpage"_s, u"Login problem"_s};
    app->Get<PageBoxes>().ClosePopup({});
    EXPECT_EQ(dialogs.windowTitles, (QStringList{u"windows internet explorer"_s, u"Login problem"_s}));
    app->Get<PageBoxes>().ClosePopup({});
    EXPECT_EQ(State().ClosePopupResult, u"CLOSED"_s);
    EXPECT_EQ(dialogs.windowTitles, QStringList{u"Login problem"_s});
    app->Get<PageBoxes>().ClosePopup({});
    EXPECT_EQ(State().ClosePopupResult, u"NOT FOUND"_s);
}

TEST_F(PageBoxesTest, WhileSendingThePagesMenuIsForCaptchasAlone) {
    app->Get<BrowserHost>().Attach();
    auto comesUp = [this](const QString& action) {
        State().CurrentAction = action;
        return Browser().events.contextMenu();
    };
    Show(u"Welcome"_s);
    for (const QString& action : {u"COM"_s, u"FR"_s, u"MSG"_s})
        EXPECT_FALSE(comesUp(action)) << action.toStdString();
    for (const QString& action : {QString(), u"LOGIN"_s, u"BUL"_s, u"ACC"_s, u"SCANNING"_s})
        EXPECT_TRUE(comesUp(action)) << action.toStdString();
    Show(u"Type the two words:"_s);
    for (const QString& action : {u"COM"_s, u"FR"_s, u"MSG"_s})
        EXPECT_TRUE(comesUp(action)) << action.toStdString();
}

// Whether it asks for a CAPTCHA nobody can tell.
TEST_F(PageBoxesTest, APageThatCannotBeReadHasNoMenuInARun) {
    app->Get<BrowserHost>().Attach();
    Show(u"Type the two words:"_s);
    State().CurrentAction = u"FR"_s;
    Browser().LosePage();
    EXPECT_FALSE(Browser().events.contextMenu());
}

TEST_F(PageBoxesTest, APageThatIsStillToComeHasNoMenuInARun) {
    app->Get<BrowserHost>().Attach();
    Show(u"{SiteRootHost}/page"_s, u"x"_s, SimFault::NoBody);
    State().CurrentAction = u"FR"_s;
    const qint64 startMs = app->Pump().NowMs();
    EXPECT_FALSE(Browser().events.contextMenu());
    EXPECT_EQ(app->Pump().NowMs(), startMs);
}

} // namespace
} // namespace qlm
