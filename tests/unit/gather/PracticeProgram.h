// SPDX-License-Identifier: MIT
#pragma once

#include "SimulatedProgram.h"
#include "practice/PracticeSite.h"
#include "practice/World.h"

#include <QFile>
#include <QUrl>
#include <set>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// A program on the simulated platform whose network is the practice site, signed in and ready to gather.
class PracticeProgram : public SimulatedProgram {
protected:
    static constexpr quint64 Seed = 1;
    static constexpr qint64 Founder = 6221;

    PracticeProgram() : site(Seed, [this] { return world.clock.Now(); }) {
        QFile deployment(QStringLiteral(DEPLOYMENT));
        if (!deployment.open(QIODevice::ReadOnly))
            throw std::runtime_error("no deployment");
        world.deploymentText = QString::fromUtf8(deployment.readAll());
        world.web.responder = [this](const SimRequest& request) { return Answer(request); };
        app.reset();
        app.emplace(platform.emplace(world, dialogs));
        app->state.ProgramFolder = world.installationFolder;
        app->state.DataFolder = world.dataFolder;
        app->state.ErrorLogPath = app->DataFile(u"Error.log"_s);
        app->state.MyProfileID = u"900001"_s;
        app->state.blnNewLayout = true;
        Tell(u"journal shown on"_s);
    }

    void Tell(const QString& line) { ASSERT_EQ(site.Control(line), QString()); }

    std::optional<SimAnswer> Answer(const SimRequest& request) {
        const QUrl url(request.url);
        practice::Request asked;
        asked.method = request.method;
        asked.host = url.host();
        asked.path = url.path(QUrl::FullyEncoded);
        if (url.hasQuery())
            asked.path += u'?' + url.query(QUrl::FullyEncoded);
        asked.body = request.body;
        const practice::Response response = site.Answer(asked);
        SimAnswer answer;
        answer.html = QString::fromUtf8(response.body);
        answer.status = response.status;
        for (const auto& [name, value] : response.headers)
            if (name == u"Location"_s)
                answer.redirectTo = value;
        return answer;
    }

    // From the open page to the gather's own end; false when hours go by without.
    bool Gather(const QString& url, QLatin1StringView kind) {
        app->WebBrowser1().Navigate(url);
        platform->Pump().RunFor(1000);
        app->controls.SetTicked("optScanFollowing"_L1, true);
        app->controls.SetTicked(kind, true);
        app->commands.Run(u"picScanStart_Click"_s);
        for (int i = 0; i < 300 && !app->state.CurrentAction.isEmpty(); ++i)
            platform->Pump().RunFor(60 * 1000);
        return app->Status() == u"Finished gathering ID's"_s;
    }

    // What stood on the list's pages, each person once, by number alone or all.
    std::set<qint64> Shown(bool byNameToo) const {
        std::set<qint64> ids;
        for (const QString& line : site.Journal()) {
            const QStringList words = line.split(u' ');
            if (words[0] == u"shown"_s || (byNameToo && words[0] == u"shown-by-name"_s))
                for (const QString& id : words.mid(2))
                    ids.insert(id.toLongLong());
        }
        ids.erase(Founder);
        return ids;
    }

    std::set<qint64> Gathered() const {
        std::set<qint64> ids;
        for (const QString& id : app->state.arrFriendIDs.ToStringList())
            if (!id.isEmpty()) {
                EXPECT_TRUE(ids.insert(id.toLongLong()).second) << id.toStdString() << " stands twice";
            }
        return ids;
    }

    practice::PracticeSite site;
};

} // namespace qlm
