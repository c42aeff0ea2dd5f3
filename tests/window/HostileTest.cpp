// SPDX-License-Identifier: MIT
// A run that meets a page which means harm: Stop answers within a second, and with that one person skipped
// the run goes on.
#include "LoopbackServer.h"
#include "PrintText.h"
#include "RunningProgram.h"
#include "SelfSignedServer.h"
#include "SiteProcess.h"

#include <csignal>
#include <gtest/gtest.h>

namespace qlm {
namespace {

// What the page's own answer can't bring about.
enum class Trouble { None, LostRenderer, BadCertificate };

struct HostilePage {
    const char* name;
    std::function<LoopbackAnswer()> answer;
    Trouble trouble = Trouble::None;
};

LoopbackAnswer Page(const QByteArray& body) {
    LoopbackAnswer answer;
    answer.body = "<!DOCTYPE html><body>" + body;
    return answer;
}

LoopbackAnswer Redirect(const QString& address) {
    LoopbackAnswer answer;
    answer.status = 302;
    answer.headers = "Location: " + address.toLatin1() + "\r\n";
    return answer;
}

LoopbackAnswer Download() {
    LoopbackAnswer answer = Page("a file");
    answer.contentType = "application/zip";
    answer.headers = "Content-Disposition: attachment; filename=x.zip\r\n";
    return answer;
}

const QString Target = SomeTargets(2)[1];

const std::vector<HostilePage>& HostilePagesAll() {
    static const std::vector<HostilePage> pages{
        {"EndlessScript", [] { return Page("<script>setTimeout(() => { for (;;); }, 50)</script>"); }},
        {"AlertStorm",
         [] {
             return Page(
                 "<script>setTimeout(() => { for (;;) { alert(1); confirm(2); prompt(3); } }, 50)</script>");
         }},
        {"PopUpStorm",
         [] { return Page("<script>setInterval(() => window.open('about:blank'), 1)</script>"); }},
        {"RedirectLoop", [] { return Redirect(u"http://"_s + RequestPage(Target)); }},
        {"FiftyMegabytes",
         [] {
             return Page(
                 QByteArray("<p>The quick brown fox jumps over the lazy dog.</p>\n").repeated(1'000'000));
         }},
        {"DeepMarkup", [] { return Page(QByteArray("<div>").repeated(100'000) + "bottom"); }},
        {"DeepTree",
         [] {
             return Page("<div id=top></div><script>let at = document.getElementById('top');"
                         "for (let i = 0; i < 100000; ++i) {"
                         " const next = document.createElement('div'); at.append(next); at = next; }"
                         "at.append('bottom')</script>");
         }},
        {"Download", Download},
        {"Permission",
         [] {
             return Page("<script>setInterval(() => { Notification.requestPermission();"
                         "navigator.geolocation.getCurrentPosition(() => {}); }, 20)</script>");
         }},
        {"BridgeGuess",
         [] {
             return Page("<script>setInterval(() => { const lie = JSON.stringify(['complete', 'x', "
                         "location.href]); console.log(lie); prompt(lie); if (window.quillmere) "
                         "document.body.append('Request Sent!'); }, 5)</script>");
         }},
        {"Certificate", [] { return LoopbackAnswer(); }, Trouble::BadCertificate},
        {"LostRenderer", [] { return Page("here"); }, Trouble::LostRenderer},
    };
    return pages;
}

class HostilePages : public testing::TestWithParam<HostilePage> {
protected:
    HostilePages() {
        server.ForwardUnknownTo(site.Port());
        folders.SaveList(ids);
        program.emplace(folders);
        program->PlanSending();
    }

    void Meet(const HostilePage& page);
    bool IsMet() const { return server.CountRequests(RequestPage(ids[1])) > met; }
    void PressStop();
    void PlanTheRest();
    void SkipIfNeeded();

    SiteProcess site;
    LoopbackServer server;
    std::optional<SelfSignedServer> secure;
    UsedProgram folders{server.Port()};
    const QStringList ids = SomeTargets(3);
    std::optional<RunningProgram> program;

    int met = 0;
    QElapsedTimer sinceMet, posted, pressed;
    bool isDelivered = true;
    qint64 answeredMs = -1;
    QTimer user;
};

// Pressed when nothing that was posted has been delivered for a while, which is the worst moment; or after
// five seconds, which hold a check of the page, when there was none.
void HostilePages::PressStop() {
    if (!program || !IsMet())
        return;
    if (!sinceMet.isValid())
        sinceMet.start();
    MessageQueue& queue = program->app.Pump().Queue();
    const bool isHeldUp = !isDelivered && posted.elapsed() >= 60;
    if (!isHeldUp && sinceMet.elapsed() < 5000) {
        if (std::exchange(isDelivered, false)) {
            posted.start();
            queue.Post([this] { isDelivered = true; });
        }
        return;
    }
    user.stop();
    pressed.start();
    queue.Post([this] {
        program->driver.Press("frmMain", "piccmdAddFriendsStop");
        if (program->app.state.CurrentAction.isEmpty())
            answeredMs = pressed.elapsed();
    });
}

void HostilePages::PlanTheRest() {
    program->driver.Add({u"Stop"_s, 30, [this] { return answeredMs >= 0; },
                         [this] {
                             met = server.CountRequests(RequestPage(ids[1]));
                             program->driver.Press("frmMain", "piccmdAddFriends");
                         }});
    program->driver.Add({u"The report"_s, 60,
                         [this] {
                             SkipIfNeeded();
                             return program->driver.WasTold(u"Finished sending"_s);
                         },
                         [this] { program->driver.End({}); }});
}

void HostilePages::SkipIfNeeded() {
    if (program->IsStuckOn(ids[1], 2500)) {
        program->app.Pump().Queue().Post([this] {
            if (program->app.state.strCurrentID == ids[1])
                program->driver.Press("frmMain", "picSkip");
        });
    }
}

void HostilePages::Meet(const HostilePage& page) {
    if (page.trouble == Trouble::BadCertificate)
        secure.emplace();
    server.AnswerOnly(RequestPage(ids[1]), secure ? Redirect(secure->Address()) : page.answer());
    QObject::connect(&user, &QTimer::timeout, &user, [this] { PressStop(); });
    if (page.trouble == Trouble::LostRenderer)
        program->driver.Add({u"The page whose renderer is lost"_s, 60, [this] { return IsMet(); },
                             [this] {
                                 ::kill(static_cast<pid_t>(program->app.WebBrowser1().RendererProcessId()),
                                        SIGKILL);
                             }});
    PlanTheRest();
    user.start(5);
    const bool isWell = program->Run();
    EXPECT_TRUE(isWell) << program->driver.Problem().toStdString();
    program.reset();
}

} // namespace

TEST_P(HostilePages, StopAnswersWithinASecondAndTheRunGoesOnWithoutThisOne) {
    Meet(GetParam());
    std::printf("%s: Stop answered after %lld ms\n", GetParam().name, static_cast<long long>(answeredMs));
    EXPECT_GE(answeredMs, 0);
    EXPECT_LT(answeredMs, 1000);
    const QStringList others{ids[0], ids[2]};
    EXPECT_EQ(folders.Log(), others);
    EXPECT_EQ(TargetsOf(site.Journal(), u"asked"_s), others);
}

INSTANTIATE_TEST_SUITE_P(All, HostilePages, testing::ValuesIn(HostilePagesAll()),
                         [](const auto& page) { return std::string(page.param.name); });

} // namespace qlm
