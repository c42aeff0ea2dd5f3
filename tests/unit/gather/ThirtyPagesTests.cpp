// SPDX-License-Identifier: MIT
// A friends list of thirty pages of the practice site, gathered in each way that the user can choose; the
// list has to be what the site's journal says stood on the pages.
#include "PracticeProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

using practice::Person;

constexpr int Pages = 30;
constexpr int PerPage = 4;
constexpr qint64 Owner = 100001;

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

class ThirtyPages : public PracticeProgram, public testing::WithParamInterface<Choice> {
protected:
    ThirtyPages() {
        Tell(u"friends %1 %2"_s.arg(Owner).arg(Pages * PerPage));
        Tell(u"list friends %1 %2"_s.arg(Pages * PerPage).arg(PerPage));
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
};

} // namespace

TEST_P(ThirtyPages, BringInWhoStoodThereAndFits) {
    const Choice& choice = GetParam();
    ChooseFilters(choice);
    EXPECT_TRUE(Gather(app->Expand(u"http://{SiteRootHost}/"_s) + QString::number(Owner) + u"/friends"_s,
                       choice.isFull ? "optFullGather"_L1 : "optQuickGather"_L1));

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
