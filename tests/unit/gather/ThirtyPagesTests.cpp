// SPDX-License-Identifier: MIT
// A friends list of thirty pages of the practice site, gathered in each way that the user can choose; the
// list has to be what the site's journal says stood on the pages.
#include "SimulatedProgram.h"
#include "practice/PracticeSite.h"
#include "practice/World.h"

#include <QFile>
#include <QUrl>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using practice::Person;

constexpr int Pages = 30;
constexpr int PerPage = 4;
constexpr qint64 Owner = 100001;
constexpr qint64 Founder = 6221;
constexpr quint64 Seed = 1;

// A date in figures that two countries read as two different days: the filter takes the better one.
bool LoggedInWithin(const Person& person, QDate today, int days) {
    const QDate date = today.addDays(-person.daysSinceLogin);
    const QDate swapped(date.year(), date.day(), date.month());
    return date.daysTo(today) <= days || (swapped.isValid() && swapped.daysTo(today) <= days);
}

bool IsPerson(const Person& person) {
    return person.kind == Person::Kind::Person;
}

struct Choice {
    const char* name;
    bool isFull;
    std::vector<QLatin1StringView> options; // of the filter window
    bool visits;                            // the profiles, which firms and private people don't pass
    bool (*fits)(const Person&, QDate today);
};

const QString Town = u"Bellwood"_s;

const std::vector<Choice>& Choices() {
    static const std::vector<Choice> choices{
        {"Quick", false, {}, false, [](const Person&, QDate) { return true; }},
        {"Full", true, {}, false, [](const Person&, QDate) { return true; }},
        {"Bands",
         true,
         {"optFilterBands"_L1},
         true,
         [](const Person& p, QDate) { return p.kind == Person::Kind::Band; }},
        {"Comedy",
         true,
         {"optFilterComedy"_L1},
         true,
         [](const Person& p, QDate) { return p.kind == Person::Kind::Comedian; }},
        {"Film",
         true,
         {"optFilterFilm"_L1},
         true,
         [](const Person& p, QDate) { return p.kind == Person::Kind::Film; }},
        {"People",
         true,
         {"optFilterPeople"_L1},
         true,
         [](const Person& p, QDate) { return p.kind != Person::Kind::Band; }},
        {"Men",
         true,
         {"optFilterMale"_L1},
         true,
         [](const Person& p, QDate) { return IsPerson(p) && p.male; }},
        {"Women",
         true,
         {"optFilterFemale"_L1},
         true,
         [](const Person& p, QDate) { return IsPerson(p) && !p.male; }},
        {"Age",
         true,
         {"optFilterAgeOn"_L1},
         true,
         [](const Person& p, QDate) { return IsPerson(p) && p.age >= 25 && p.age <= 40; }},
        {"Location",
         true,
         {"optFilterLocation"_L1},
         true,
         [](const Person& p, QDate) { return (p.town + p.region + p.country).contains(Town); }},
        {"LastLogin",
         true,
         {"optFilterLastLoginOn"_L1},
         true,
         [](const Person& p, QDate today) { return LoggedInWithin(p, today, 5); }},
        {"OnlineNow",
         true,
         {"optFilterOnlineNow"_L1},
         false,
         [](const Person& p, QDate) { return p.online; }},
        {"MenOfAnAge",
         false,
         {"optFilterMale"_L1, "optFilterAgeOn"_L1},
         true,
         [](const Person& p, QDate) { return IsPerson(p) && p.male && p.age >= 25 && p.age <= 40; }},
    };
    return choices;
}

class ThirtyPages : public SimulatedProgram, public testing::WithParamInterface<Choice> {
protected:
    ThirtyPages() : site(Seed, [this] { return world.clock.Now(); }) {
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
        for (const QString& line : {u"journal shown on"_s, u"friends %1 %2"_s.arg(Owner).arg(Pages * PerPage),
                                    u"list friends %1 %2"_s.arg(Pages * PerPage).arg(PerPage)})
            EXPECT_EQ(site.Control(line), QString());
    }

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

    void ChooseFilters(const Choice& choice) {
        Controls& controls = app->controls;
        controls.SetText("cboFilterAge1"_L1, u"25"_s);
        controls.SetText("cboFilterAge2"_L1, u"40"_s);
        controls.SetText("txtFilterLocation"_L1, u"Nowhere at all, "_s + Town);
        controls.SetText("txtFilterLastLoginDays"_L1, u"5"_s);
        controls.SetTicked("optFilterWhenGathering"_L1, true);
        for (const QLatin1StringView option : choice.options)
            controls.SetTicked(option, true);
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
        for (const QString& id : app->state.arrFriendIDs)
            if (!id.isEmpty()) {
                EXPECT_TRUE(ids.insert(id.toLongLong()).second) << id.toStdString() << " stands twice";
            }
        return ids;
    }

    practice::PracticeSite site;
};

} // namespace

TEST_P(ThirtyPages, BringInWhoStoodThereAndFits) {
    const Choice& choice = GetParam();
    app->WebBrowser1().Navigate(app->Expand(u"http://{SiteRootHost}/"_s) + QString::number(Owner) +
                                u"/friends"_s);
    platform->Pump().RunFor(1000);
    app->controls.SetTicked("optScanFollowing"_L1, true);
    app->controls.SetTicked(choice.isFull ? "optFullGather"_L1 : "optQuickGather"_L1, true);
    ChooseFilters(choice);
    app->commands.Run(u"picScanStart_Click"_s);
    for (int i = 0; i < 300 && !app->state.CurrentAction.isEmpty(); ++i)
        platform->Pump().RunFor(60 * 1000);
    EXPECT_EQ(app->Status(), u"Finished gathering ID's"_s);

    const practice::World twin(Seed, [this] { return world.clock.Now(); });
    std::set<qint64> expected;
    for (const qint64 id : Shown(choice.isFull)) {
        const Person& person = *twin.people.Find(id);
        const bool refuses = person.advertiser || twin.requests.NatureOf(id) == practice::Outcome::Private;
        if (choice.fits(person, world.clock.Now().date()) && !(choice.visits && refuses))
            expected.insert(id);
    }
    EXPECT_EQ(Shown(true).size(), Pages * PerPage - 1);
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(Gathered(), expected);
}

INSTANTIATE_TEST_SUITE_P(Each, ThirtyPages, testing::ValuesIn(Choices()),
                         [](const testing::TestParamInfo<Choice>& row) { return row.param.name; });

} // namespace qlm
