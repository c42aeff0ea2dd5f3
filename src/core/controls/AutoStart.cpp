// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList HalvesOfTheDay() {
    return {u"AM"_s, u"PM"_s};
}

} // namespace

// Shared by all accounts.
std::vector<ControlRow> AutoStart() {
    return {
        Option("optAutoStartOn", "autostart").Kept("Field Entries"),
        Line("txtTimeHH").Holds(u"hh").Kept("Field Entries"),
        Line("txtTimeMM").Holds(u"00").Kept("Field Entries"),
        Choice("cboAMPM").Choices(HalvesOfTheDay).Holds(u"AM").Kept("Field Entries"),
        Choice("cboAutostartAction").Kept("Field Entries"),
    };
}

} // namespace qlm::rows
