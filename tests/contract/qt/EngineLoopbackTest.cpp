// SPDX-License-Identifier: MIT
// What a page may reach on the user's own machine when everything goes through the deployment's proxy:
// nothing but the site, under its names.
#include "LoopbackWorld.h"
#include "PrintText.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

LoopbackServer& Site() {
    static LoopbackServer site;
    return site;
}

class EngineLoopback : public LoopbackWorld {
protected:
    EngineLoopback()
        : LoopbackWorld(Site(), u"www.stranger.example.com"_s,
                        "Proxy=127.0.0.1:" + QByteArray::number(Site().Port()) + '\n') {}
    ~EngineLoopback() override { site.ForwardUnknownTo(0); }
};

} // namespace

TEST_F(EngineLoopback, APageReachesNoPortOfTheMachine) {
    AskForTheMachine();
}

TEST_F(EngineLoopback, NoRedirectLeadsThere) {
    FollowRedirects();
}

TEST_F(EngineLoopback, ThePageItselfIsNotLedThere) {
    MoveThePage();
}

#ifdef PRACTICE_SITE
// The controls stand at a host that the proxy knows, so a page can ask for them; they are to refuse it.
TEST_F(EngineLoopback, APageCannotSteerThePracticeSite) {
    PracticeServer practice(QStringLiteral(PRACTICE_SITE));
    site.ForwardUnknownTo(practice.Port());
    LoopbackAnswer over;
    Answer(u"/over"_s, over);
    ASSERT_NO_FATAL_FAILURE(Visit(R"JS(
        const controls = 'http://control.myspace.example.com/control';
        const line = 'fault www.myspace.example.com/ error';
        fetch(controls, {method: 'POST', mode: 'no-cors', body: line}).catch(() => 0);
        fetch(controls, {method: 'POST', body: line, headers: {'Sec-Practice-Control': '1'}}).catch(() => 0);
        fetch(controls, {method: 'POST', body: line, headers: {'X-Practice-Control': '1'}}).catch(() => 0);
        navigator.sendBeacon(controls, line);
        add('iframe', {name: 'sink'});
        const form = add('form', {method: 'post', target: 'sink', action: controls, enctype: 'text/plain'});
        form.appendChild(Object.assign(document.createElement('input'), {name: line}));
        form.submit();
    )JS"));
    int asked = 0;
    for (const LoopbackRequest& request : site.Requests())
        asked += request.url.startsWith(u"http://control."_s) && request.method == u"POST"_s ? 1 : 0;
    EXPECT_GE(asked, 3);
    const auto front = platform->Http().Get(u"http://www.myspace.example.com/"_s);
    ASSERT_TRUE(front);
    EXPECT_FALSE(front->contains(u"server error"_s, Qt::CaseInsensitive));
    EXPECT_TRUE(front->contains(u"password"_s, Qt::CaseInsensitive));
}
#endif

} // namespace qlm
