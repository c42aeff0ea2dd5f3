// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

namespace {

constexpr int YoungestAge = 13;
constexpr int OldestAge = 100;

QStringList Ages() {
    QStringList ages;
    for (int age = YoungestAge; age <= OldestAge; ++age)
        ages.append(QString::number(age));
    return ages;
}

} // namespace

// The stored choices, and what the window of the filters edits: that is stored on OK. optFilterOff comes last
// of its kind, so that what depends on it settles on its final state.
std::vector<ControlRow> Filters() {
    return {
        Option("optFilterBands", "filterType").Kept("Filter"),
        Option("optFilterComedy", "filterType").Kept("Filter"),
        Option("optFilterFilm", "filterType").Kept("Filter"),
        Option("optFilterPeople", "filterType").Kept("Filter"),
        Option("optFilterGenderOff", "filterGender").Ticked().Kept("Filter"),
        Option("optFilterMale", "filterGender").Kept("Filter"),
        Option("optFilterFemale", "filterGender").Kept("Filter"),
        Option("optFilterLocationOff", "filterLocation").Ticked().Kept("Filter"),
        Option("optFilterLocation", "filterLocation").Kept("Filter"),
        Line("txtFilterLocation").Kept("Filter"),
        Option("optFilterWhenGathering", "filterWhen").Kept("Filter"),
        Option("optFilterWhenSending", "filterWhen").Ticked().Kept("Filter"),
        Option("optFilterAgeOff", "filterAge").Ticked().Kept("Filter"),
        Option("optFilterAgeOn", "filterAge").Kept("Filter", "blnFilterAgeOn"),
        Choice("cboFilterAge1").Choices(Ages).Holds(u"18").Kept("Filter"),
        Choice("cboFilterAge2").Choices(Ages).Holds(u"99").Kept("Filter"),
        Option("optFilterLastLoginOff", "filterLogin").Ticked().Kept("Filter"),
        Option("optFilterOnlineNow", "filterLogin").Kept("Filter"),
        Option("optFilterLastLoginOn", "filterLogin").Kept("Filter"),
        Line("txtFilterLastLoginDays").Holds(u"0").Kept("Filter"),
        Option("optFilterOff", "filterType").Ticked().Kept("Filter"),
        Option("frmFilters.optFilterBands", "frmFilters.Type", u"Bands"),
        Option("frmFilters.optFilterComedy", "frmFilters.Type", u"Comedy"),
        Option("frmFilters.optFilterFilm", "frmFilters.Type", u"Film"),
        Option("frmFilters.optFilterPeople", "frmFilters.Type", u"People"),
        Option("frmFilters.optFilterGenderOff", "frmFilters.Gender", u"Filter Off").Ticked(),
        Option("frmFilters.optFilterMale", "frmFilters.Gender", u"Male"),
        Option("frmFilters.optFilterFemale", "frmFilters.Gender", u"Female"),
        Option("frmFilters.optFilterLocationOff", "frmFilters.Location", u"Filter Off").Ticked(),
        Option("frmFilters.optFilterLocation", "frmFilters.Location", u"Location:"),
        Line("frmFilters.txtFilterLocation")
            .Tip(u"Seperate multiple locations by comma")
            .Spoken(u"Locations"),
        Option("frmFilters.optFilterWhenGathering", "frmFilters.When", u"Filter when gathering"),
        Option("frmFilters.optFilterWhenSending", "frmFilters.When", u"Filter when sending").Ticked(),
        Option("frmFilters.optFilterAgeOff", "frmFilters.Age", u"Filter Off").Ticked(),
        Option("frmFilters.optFilterAgeOn", "frmFilters.Age", u"Age:"),
        Choice("frmFilters.cboFilterAge1", u"from").Choices(Ages).Holds(u"18").Spoken(u"Youngest age"),
        Choice("frmFilters.cboFilterAge2", u"to").Choices(Ages).Holds(u"99").Spoken(u"Oldest age"),
        Option("frmFilters.optFilterLastLoginOff", "frmFilters.Login", u"Filter Off").Ticked(),
        Option("frmFilters.optFilterOnlineNow", "frmFilters.Login", u"Online now"),
        Option("frmFilters.optFilterLastLoginOn", "frmFilters.Login", u"Last login within"),
        Line("frmFilters.txtFilterLastLoginDays").Holds(u"0").Spoken(u"Days since the last login"),
        Option("frmFilters.optFilterOff", "frmFilters.Type", u"Filter Off").Ticked(),
        Button("frmFilters.cmdOK", u"&OK"),
        Button("frmFilters.cmdCancel", u"Cancel"),
    };
}

} // namespace qlm::rows
