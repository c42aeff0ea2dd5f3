// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "core/SettingsFields.h"
#include "gather/ProfileFilters.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

// The filter window as its user works it.
class FilterOptionsTest : public SimulatedProgram {
protected:
    void Open(const std::function<void()>& act) {
        dialogs.onModal[u"frmFilters"_s] = act;
        app->commands.Run(u"picFilterOptions_Click"_s);
    }
    void Choose(QLatin1StringView name) {
        app->controls.SetTicked(name, true);
        app->commands.Run(name + u"_Click"_s);
    }
    void Ok() { app->commands.Run(u"frmFilters.cmdOK_Click"_s); }
    QString Stored(const QString& key) {
        return platform->Settings().GetSetting(u"Field Entries"_s, key, u"(none)"_s);
    }
    bool AgesEnabled() { return app->controls["frmFilters.cboFilterAge1"_L1].enabled; }
};

TEST_F(FilterOptionsTest, StartsWithEveryFilterOff) {
    EXPECT_TRUE(app->Get<ProfileFilters>().AllOff());
    EXPECT_FALSE(app->Get<ProfileFilters>().ActiveWhenSending());
}

TEST_F(FilterOptionsTest, OkStoresAndTheFieldsFollow) {
    Open([this] {
        Choose("frmFilters.optFilterPeople"_L1);
        Choose("frmFilters.optFilterAgeOn"_L1);
        app->controls.SetText("frmFilters.cboFilterAge1"_L1, u"21"_s);
        app->controls.SetText("frmFilters.txtFilterLastLoginDays"_L1, u" 7 "_s);
        Choose("frmFilters.optFilterLastLoginOn"_L1);
        Ok();
    });
    EXPECT_TRUE(app->state.blnFilterPeople);
    EXPECT_FALSE(app->state.blnFilterTypeOff);
    EXPECT_TRUE(app->state.blnFilterAgeOn);
    EXPECT_EQ(app->state.strFilterAge1, u"21"_s);
    EXPECT_EQ(app->state.intFilterLastLoginDays, 7);
    EXPECT_EQ(Stored(u"optFilterPeople"_s), u"True"_s);
    EXPECT_EQ(Stored(u"blnFilterAgeOn"_s), u"True"_s);
    EXPECT_EQ(Stored(u"optFilterAgeOn"_s), u"(none)"_s);
    EXPECT_EQ(Stored(u"txtFilterLastLoginDays"_s), u"7"_s);
    EXPECT_TRUE(app->Get<ProfileFilters>().ActiveWhenSending());
}

TEST_F(FilterOptionsTest, EachOptionHasItsFieldAndItsKey) {
    struct Option {
        const char* control;
        bool RunState::*field;
        const char* key;
    };
    const Option options[] = {
        {"optFilterOff", &RunState::blnFilterTypeOff, "optFilterOff"},
        {"optFilterBands", &RunState::blnFilterBands, "optFilterBands"},
        {"optFilterComedy", &RunState::blnFilterComedy, "optFilterComedy"},
        {"optFilterFilm", &RunState::blnFilterFilm, "optFilterFilm"},
        {"optFilterPeople", &RunState::blnFilterPeople, "optFilterPeople"},
        {"optFilterGenderOff", &RunState::blnFilterGenderOff, "optFilterGenderOff"},
        {"optFilterMale", &RunState::blnFilterMale, "optFilterMale"},
        {"optFilterFemale", &RunState::blnFilterFemale, "optFilterFemale"},
        {"optFilterLocationOff", &RunState::blnFilterLocationOff, "optFilterLocationOff"},
        {"optFilterLocation", &RunState::blnFilterLocation, "optFilterLocation"},
        {"optFilterWhenGathering", &RunState::optFilterWhenGathering, "optFilterWhenGathering"},
        {"optFilterWhenSending", &RunState::optFilterWhenSending, "optFilterWhenSending"},
        {"optFilterAgeOff", &RunState::blnFilterAgeOff, "optFilterAgeOff"},
        {"optFilterAgeOn", &RunState::blnFilterAgeOn, "blnFilterAgeOn"},
        {"optFilterLastLoginOff", &RunState::blnFilterLastLoginOff, "optFilterLastLoginOff"},
        {"optFilterOnlineNow", &RunState::optFilterOnlineNow, "optFilterOnlineNow"},
        {"optFilterLastLoginOn", &RunState::blnFilterLastLoginOn, "optFilterLastLoginOn"},
    };
    for (const Option& option : options) {
        const QByteArray name = QByteArray("frmFilters.") + option.control;
        Open([&] {
            Choose("frmFilters.optFilterMale"_L1); // something is on, so that "when gathering" may stay
            Choose(QLatin1StringView(name));
            Ok();
        });
        EXPECT_TRUE(app->state.*option.field) << option.control;
        EXPECT_EQ(Stored(QString::fromLatin1(option.key)), u"True"_s) << option.key;
        // Another choice of the same kind, if there is one, takes it back.
        int chosen = 0;
        for (const Option& other : options)
            chosen += app->controls[QLatin1StringView(other.control)].group ==
                          app->controls[QLatin1StringView(option.control)].group &&
                      app->state.*other.field;
        EXPECT_EQ(chosen, 1) << option.control;
    }
}

TEST_F(FilterOptionsTest, CancelChangesNothing) {
    Open([this] {
        Choose("frmFilters.optFilterBands"_L1);
        app->commands.Run(u"frmFilters.cmdCancel_Click"_s);
    });
    EXPECT_TRUE(app->state.blnFilterTypeOff);
    EXPECT_EQ(Stored(u"optFilterBands"_s), u"(none)"_s);
    Open([this] { EXPECT_TRUE(app->controls.Ticked("frmFilters.optFilterOff"_L1)); });
}

TEST_F(FilterOptionsTest, DaysThatAreNoNumberKeepTheWindowOpen) {
    bool open = false;
    Open([this, &open] {
        app->controls.SetText("frmFilters.txtFilterLastLoginDays"_L1, u"soon"_s);
        Ok();
        open = app->platform.Dialogs().IsFormOpen(u"frmFilters"_s);
    });
    EXPECT_TRUE(open);
    EXPECT_EQ(dialogs.Texts(), QStringList{u"Please enter a valid number for the Last Login filter"_s});
    EXPECT_EQ(Stored(u"optFilterOff"_s), u"(none)"_s);
}

TEST_F(FilterOptionsTest, BandsHaveNeitherGenderNorAge) {
    Open([this] {
        Choose("frmFilters.optFilterBands"_L1);
        for (const auto& name : {"frmFilters.optFilterMale"_L1, "frmFilters.optFilterFemale"_L1,
                                 "frmFilters.optFilterGenderOff"_L1, "frmFilters.optFilterAgeOff"_L1,
                                 "frmFilters.optFilterAgeOn"_L1, "frmFilters.cboFilterAge2"_L1})
            EXPECT_FALSE(app->controls[name].enabled) << name.data();
        Choose("frmFilters.optFilterFilm"_L1);
        EXPECT_TRUE(app->controls["frmFilters.optFilterMale"_L1].enabled);
        EXPECT_TRUE(AgesEnabled());
    });
}

TEST_F(FilterOptionsTest, TheWindowComesUpAsItsOptionsSay) {
    const QString section = u"Field Entries"_s;
    auto male = [this] { return app->controls["frmFilters.optFilterMale"_L1].enabled; };
    platform->Settings().SaveSetting(section, u"optFilterBands"_s, u"True"_s);
    platform->Settings().SaveSetting(section, u"optFilterOff"_s, u"False"_s);
    platform->Settings().SaveSetting(section, u"blnFilterAgeOn"_s, u"True"_s);
    platform->Settings().SaveSetting(section, u"optFilterAgeOff"_s, u"False"_s);
    Open([&] {
        EXPECT_FALSE(male());
        EXPECT_FALSE(AgesEnabled());
    });
    platform->Settings().SaveSetting(section, u"optFilterBands"_s, u"False"_s);
    platform->Settings().SaveSetting(section, u"optFilterFilm"_s, u"True"_s);
    Open([&] {
        EXPECT_TRUE(male());
        EXPECT_TRUE(AgesEnabled());
    });
}

TEST_F(FilterOptionsTest, TheAgeBoxesFollowTheAgeFilter) {
    Open([this] {
        EXPECT_FALSE(AgesEnabled());
        Choose("frmFilters.optFilterAgeOn"_L1);
        EXPECT_TRUE(AgesEnabled());
        Choose("frmFilters.optFilterAgeOff"_L1);
        EXPECT_FALSE(AgesEnabled());
    });
}

TEST_F(FilterOptionsTest, WithAllFiltersOffNothingIsFilteredWhenGathering) {
    Open([this] {
        Choose("frmFilters.optFilterWhenGathering"_L1);
        Ok();
    });
    EXPECT_FALSE(app->state.optFilterWhenGathering);
    EXPECT_TRUE(app->state.optFilterWhenSending);
}

TEST_F(FilterOptionsTest, TheFieldsFollowARestoredAccount) {
    platform->Settings().SaveSetting(u"Field Entries"_s, u"optFilterFemale"_s, u"True"_s);
    platform->Settings().SaveSetting(u"Field Entries"_s, u"optFilterGenderOff"_s, u"False"_s);
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    EXPECT_TRUE(app->state.blnFilterFemale);
    EXPECT_FALSE(app->state.blnFilterGenderOff);
}

} // namespace
} // namespace qlm
