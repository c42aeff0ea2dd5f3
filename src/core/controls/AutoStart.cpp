// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList HalvesOfTheDay() {
    return {u"AM"_s, u"PM"_s};
}

QStringList Actions() {
    return {u"Friend Requests"_s, u"Messages"_s, u"Comments"_s, u"Bulletins"_s, u"Accept Friend Requests"_s};
}

} // namespace

// Shared by all accounts. What is kept stands beside the form, which may be canceled.
std::vector<ControlRow> AutoStart() {
    return {
        Option("optAutoStartOn", "autostart").Kept("Field Entries"),
        Line("txtTimeHH").Holds(u"hh").Kept("Field Entries"),
        Line("txtTimeMM").Holds(u"00").Kept("Field Entries"),
        Choice("cboAMPM").Choices(HalvesOfTheDay).Holds(u"AM").Kept("Field Entries"),
        Choice("cboAutostartAction").Kept("Field Entries"),
        Label("frmAutoStart.Label1",
              u"Here you can set Quillmere to start sending with the multiple accounts you "
              u"have selected at a certain time of the day."),
        Option("frmAutoStart.optAutoStartOn", "frmAutoStart", u"O&n"),
        Option("frmAutoStart.optAutoStartOff", "frmAutoStart", u"O&ff").Ticked(),
        Line("frmAutoStart.txtTimeHH", u"&Time:").Spoken(u"Hour"),
        Line("frmAutoStart.txtTimeMM").Spoken(u"Minutes"),
        Choice("frmAutoStart.cboAMPM", u"&AM or PM:").Choices(HalvesOfTheDay),
        Choice("frmAutoStart.cboAutostartAction", u"&Start:").Choices(Actions),
        Label("frmAutoStart.Label2", u"Quillmere must already be running for this feature to work."),
        Button("frmAutoStart.cmdOK", u"&OK"),
        Button("frmAutoStart.cmdCancel", u"Cancel"),
    };
}

} // namespace qlm::rows
