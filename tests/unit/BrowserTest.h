// SPDX-License-Identifier: MIT
#pragma once

#include "SimulatedProgram.h"
#include "browser/PageSigns.h"
#include "steps/BrowserHost.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

namespace qlm {

// A program with all hosts of the site known, its trail kept, and a way to show it any page.
class BrowserTest : public SimulatedProgram {
protected:
    BrowserTest() {
        using namespace Qt::Literals::StringLiterals;
        StartOn(u"SiteDomain=site.example.com\nSiteRootHost=www.site.example.com\n"
                "HomeHost=home.site.example.com\nLoginHost=login.site.example.com\n"
                "MessagingHost=mail.site.example.com\nFriendsHost=friends.site.example.com\n"
                "ProfileHost=profile.site.example.com\nCommentHost=comment.site.example.com\n"
                "GroupsHost=groups.site.example.com\nEventsHost=events.site.example.com\n"
                "BulletinsHost=bulletins.site.example.com\n"
                "SearchServiceHost=search.site.example.com\n"
                "BrowseUsersHost=people.example.org\nVideoHost=vids.site.example.com\n"
                "MusicHost=music.site.example.com\nTopArtistsHost=top.site.example.com\n"
                "ForumHost=forums.site.example.com\nSchoolHost=school.site.example.com\n"
                "CreativeHost=creative.site.example.com\nInviteHost=invite.site.example.com\n"
                "LinkRedirectHost=links.site.example.com\nGroupID=77\nFriendID=88\n"
                "ProductServer=http://product.example.com\n"
                "ProductServerAlternate=http://product2.example.com\n"_s);
        app->state.blnLoggingEnabled = true;
        app->diagnostics.onLine = [this](const QString& line) { trail += line; };
        app->controls.AddListener([this](const Control& control, Controls::Change, int) {
            if (!m_givenUp && State().lngFailedCount > 0 &&
                control.name.endsWith(QLatin1StringView("FailedCount")))
                m_givenUp = {State(), app->timers->tmrAutoResume.Enabled()};
        });
    }

    // The program says its last words while there is somebody to hear them.
    ~BrowserTest() override { app.reset(); }

    // What the step after the send was handed with the first target that was given up. It goes on at once.
    struct Handed {
        RunState state;
        bool watchdog;
    };
    const RunState& GivenUp() const {
        EXPECT_TRUE(m_givenUp.has_value());
        return m_givenUp ? m_givenUp->state : app->state;
    }
    bool WatchdogAtGivingUp() const { return m_givenUp && m_givenUp->watchdog; }
    void ForgetGivenUp() { m_givenUp.reset(); }

    // Shows a page in WebBrowser1; the address may hold {Role}s and needs no scheme.
    void Show(const QString& address, const QString& body, SimFault fault = SimFault::None) {
        const QString url = QStringLiteral("http://") + app->Expand(address);
        SimAnswer answer;
        answer.html = QStringLiteral("<html><body>") + body + QStringLiteral("</body></html>");
        answer.fault = fault;
        world.web.SetAnswer(url, answer);
        Browser().Navigate(url);
        platform->Pump().RunFor(500);
    }
    void Show(const QString& body) { Show(QStringLiteral("{SiteRootHost}/page"), body); }

    SimBrowser& Browser() { return platform->Browser(BrowserName::WebBrowser1); }
    RunState& State() { return app->state; }
    void Await(const QString& type, const QString& value) {
        State().strLinkType = type;
        State().strLinkValue = value;
        State().blnLinkFound = false;
    }
    QString Address() { return Browser().LocationURL(); }
    bool Said(const QString& line) const { return trail.contains(line); }
    bool SaidBeginningWith(const QString& text) const {
        return std::any_of(trail.begin(), trail.end(),
                           [&](const QString& line) { return line.startsWith(text); });
    }

    QStringList trail;

private:
    std::optional<Handed> m_givenUp;
};

} // namespace qlm

inline void PrintTo(const QStringList& texts, std::ostream* stream) {
    *stream << texts.join(QStringLiteral(" | ")).toStdString();
}
