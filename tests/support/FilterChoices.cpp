// SPDX-License-Identifier: MIT
#include "FilterChoices.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {

using practice::Person;

namespace {

constexpr int Youngest = 25;
constexpr int Oldest = 40;
constexpr int Days = 5;
const QString Town = u"Bellwood"_s;

bool IsPerson(const Person& p) {
    return p.kind == Person::Kind::Person;
}

bool IsOfAge(const Person& p) {
    return IsPerson(p) && p.age >= Youngest && p.age <= Oldest;
}

// A date in figures that two countries read as two different days: the filter takes the better one.
bool LoggedInLately(const Person& p, QDate today) {
    const QDate date = today.addDays(-p.daysSinceLogin);
    const QDate swapped(date.year(), date.day(), date.month());
    return date.daysTo(today) <= Days || (swapped.isValid() && swapped.daysTo(today) <= Days);
}

} // namespace

const std::vector<FilterChoice>& FilterChoices() {
    using Kind = Person::Kind;
    static const std::vector<FilterChoice> choices{
        {"Bands", {"optFilterBands"_L1}, true, [](auto& p, QDate) { return p.kind == Kind::Band; }},
        {"Comedy", {"optFilterComedy"_L1}, true, [](auto& p, QDate) { return p.kind == Kind::Comedian; }},
        {"Film", {"optFilterFilm"_L1}, true, [](auto& p, QDate) { return p.kind == Kind::Film; }},
        {"People", {"optFilterPeople"_L1}, true, [](auto& p, QDate) { return p.kind != Kind::Band; }},
        {"Men", {"optFilterMale"_L1}, true, [](auto& p, QDate) { return IsPerson(p) && p.male; }},
        {"Women", {"optFilterFemale"_L1}, true, [](auto& p, QDate) { return IsPerson(p) && !p.male; }},
        {"Age", {"optFilterAgeOn"_L1}, true, [](auto& p, QDate) { return IsOfAge(p); }},
        {"Location",
         {"optFilterLocation"_L1},
         true,
         [](auto& p, QDate) { return (p.town + p.region + p.country).contains(Town); }},
        {"LastLogin", {"optFilterLastLoginOn"_L1}, true, LoggedInLately},
        {"OnlineNow", {"optFilterOnlineNow"_L1}, false, [](auto& p, QDate) { return p.online; }},
        {"MenOfAnAge",
         {"optFilterMale"_L1, "optFilterAgeOn"_L1},
         true,
         [](auto& p, QDate) { return IsOfAge(p) && p.male; }},
    };
    return choices;
}

void FillFilterFields(const std::function<void(QLatin1StringView field, const QString& text)>& fill) {
    fill("cboFilterAge1"_L1, QString::number(Youngest));
    fill("cboFilterAge2"_L1, QString::number(Oldest));
    fill("txtFilterLocation"_L1, u"Nowhere at all, "_s + Town);
    fill("txtFilterLastLoginDays"_L1, QString::number(Days));
}

bool PassesFilter(const FilterChoice& choice, const practice::World& site, qint64 id, QDate today) {
    const Person& person = *site.people.Find(id);
    const bool refuses = person.advertiser || site.requests.NatureOf(id) == practice::Outcome::Private;
    return choice.fits(person, today) && !(choice.visits && refuses);
}

} // namespace qlm
