// SPDX-License-Identifier: MIT
// The whole road, as the built program goes it: sign in, gather, send, stop.
#include "PrintText.h"
#include "ProgramProcess.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "UsedProgram.h"
#include "core/Text.h"

#include <QImage>
#include <gtest/gtest.h>

namespace qlm {
namespace {

struct Picture {
    const char16_t* file;
    QSize atLeast;
    // Of the part where the browser is; a page has text, a blank one has a colour or two.
    int coloursInBrowser;
};

// The browser stands on the right of the control panel, below the address bar and the line of the activity.
QRect BrowserPart(const QImage& window) {
    return {window.width() * 55 / 100, 120, window.width() * 40 / 100, window.height() - 180};
}

int CountColours(const QImage& image, const QRect& part) {
    QSet<QRgb> colours;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

void ExpectPicture(const QString& folder, const Picture& wanted) {
    const QImage picture(folder + u'/' + QString::fromUtf16(wanted.file));
    ASSERT_FALSE(picture.isNull());
    EXPECT_GE(picture.width(), wanted.atLeast.width());
    EXPECT_GE(picture.height(), wanted.atLeast.height());
    if (wanted.coloursInBrowser > 0) {
        EXPECT_GE(CountColours(picture, BrowserPart(picture)), wanted.coloursInBrowser);
    }
}

} // namespace

TEST(Road, TheGuidedRunFiltersMeetsACaptchaAndItsLimitAndOpensTheReport) {
    const QTemporaryDir out;
    ProgramProcess program({u"--guided"_s, out.path()});
    ASSERT_TRUE(program.WaitForEnd(3 * GenerousMs)) << program.Output().toStdString();
    EXPECT_FALSE(program.HasCrashed());
    EXPECT_EQ(program.ExitCode(), 0) << program.Output().toStdString();

    QFile file(out.filePath(u"summary.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString summary = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(summary.contains(u"Signed in as a@example.com, own profile 900001"_s))
        << summary.toStdString();
    for (const QString& line :
         {u"The CAPTCHA's word was typed key by key\n"_s,
          u"Sent 6 friend requests; Failed: 0, Skipped: 5\n"_s,
          u"The report: Sent: 6   Sent, not logged: 1   Skipped: 5. Your limit was reached, "_s,
          u"7 people asked, 0 of them twice\n"_s})
        EXPECT_TRUE(summary.contains(line)) << line.toStdString() << summary.toStdString();
    EXPECT_TRUE(summary.endsWith(u"The journal and the log agree, but for the one that met the limit.\n"_s))
        << summary.toStdString();

    constexpr Picture pictures[] = {
        {u"login.png", {400, 300}, 0},    {u"gathering.png", {780, 550}, 60},
        {u"sending.png", {780, 550}, 30}, {u"captcha.png", {780, 550}, 60},
        {u"report.png", {500, 300}, 0},
    };
    for (const Picture& picture : pictures) {
        SCOPED_TRACE(QString::fromUtf16(picture.file).toStdString());
        ExpectPicture(out.path(), picture);
    }
}

TEST(Road, PagesThatFailCostTheirOwnTargetAlone) {
    SiteProcess site;
    UsedProgram folders(site.Port());
    const QStringList ids = SomeTargets(10);
    folders.SaveList(ids);
    site.Tell(u"fault "_s + RequestPage(ids[1]) + u" slow 2500"_s);
    site.Tell(u"fault "_s + RequestPage(ids[3]) + u" reset"_s);
    site.Tell(u"fault "_s + RequestPage(ids[5]) + u" alert"_s);
    site.Tell(u"fault "_s + RequestPage(ids[7]) + u" error"_s);
    site.Tell(u"outcome "_s + ids[8] + u" private"_s);

    ProgramProcess program(folders.Arguments());
    ASSERT_TRUE(program.WaitForEnd(3 * GenerousMs)) << program.Output().toStdString();
    EXPECT_EQ(program.ExitCode(), 0) << program.Output().toStdString();
    EXPECT_TRUE(program.Output().contains(u"Sent 7 friend requests; Failed: 3, Skipped: 0"_s))
        << program.Output().toStdString();

    const QStringList journal = site.Journal();
    QStringList expected = ids;
    for (const QString& failed : {ids[3], ids[7], ids[8]})
        expected.removeAll(failed);
    EXPECT_EQ(TargetsOf(journal, u"asked"_s), expected);
    EXPECT_EQ(TargetsOf(journal, u"asked-again"_s), QStringList());
    EXPECT_EQ(folders.Log(), expected);
}

// On the real engine an element can have the page's focus without the page having the window's: then a blank
// would press the button that was pressed last, and start the run anew.
TEST(Road, ACaptchaPageHasTheKeyboardAndHasItAgainBehindARefusedWord) {
    SiteProcess site;
    const UsedProgram folders(site.Port());
    const QStringList ids = SomeTargets(3);
    folders.SaveList(ids);
    site.Tell(u"outcome "_s + ids[1] + u" captcha"_s);
    site.Tell(u"captcha-word zebra"_s);
    std::optional<RunningProgram> program(folders);
    App& app = program->app;
    WindowDriver& driver = program->driver;
    auto answer = [&app] { return app.WebBrowser1().Document().GetElementById(u"captchaText"_s).Value(); };
    auto asks = [&app, answer](bool again) {
        return app.state.blnWaitingForCaptcha && app.WebBrowser1().ReadyState() == 4 &&
               !app.WebBrowser1().Document().GetElementById(u"captchaText"_s).IsNull() &&
               answer().isEmpty() &&
               Has(app.WebBrowser1().Document().BodyText(), u"Security code does not match"_s) == again;
    };
    program->PlanSending();
    driver.Add({u"The run"_s, 20, [&] { return app.state.CurrentAction == u"FR"_s; },
                [&] { driver.Find("frmMain", "piccmdAddFriends")->setFocus(); }});
    driver.Add({u"The CAPTCHA"_s, 60, [&] { return asks(false); }, [&] { driver.TypeKeys(u" wrong"_s); }});
    driver.Add({u"A wrong word"_s, 20, [&] { return answer() == u" wrong"_s; },
                [&] {
                    driver.Find("frmMain", "piccmdAddFriends")->setFocus();
                    app.WebBrowser1().TakeFocus();
                    driver.TypeKeys(u"\n"_s);
                    driver.Find("frmMain", "piccmdAddFriends")->setFocus();
                }});
    driver.Add(
        {u"The CAPTCHA again"_s, 60, [&] { return asks(true); }, [&] { driver.TypeKeys(u"zebra"_s); }});
    driver.Add(
        {u"The word"_s, 20, [&] { return answer() == u"zebra"_s; }, [&] { driver.TypeKeys(u"\n"_s); }});
    program->PlanReport(60);
    const bool isWell = program->Run();
    EXPECT_TRUE(isWell) << driver.Problem().toStdString();
    program.reset();
    const QStringList journal = site.Journal();
    EXPECT_EQ(TargetsOf(journal, u"asked"_s), ids);
    EXPECT_EQ(journal.filter(u"captcha-wrong"_s).size(), 1) << journal.join(u'\n').toStdString();
    EXPECT_EQ(folders.Log(), ids);
}

} // namespace qlm
