// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> SmallForms() {
    return {
        Choice("frmRunReport.cboRuns", u"&Run of"),
        Label("frmRunReport.lblSummary"),
        Label("frmRunReport.lblProblem"),
        Button("frmRunReport.cmdSaveCSV", u"&Save as CSV..."),
        Button("frmRunReport.cmdTakeOffLog", u"Take the unsent &off the log")
            .Tip(u"Who was chosen, but never sent to, can be invited again by the next run"),
        Button("frmRunReport.cmdClose", u"&Close"),
        List("frmRunReport.grdTargets").Spoken(u"What became of each profile"),
        Label("frmError.lblErrorLogPath").Spoken(u"The log file"),
        Button("frmError.lblHowToClick", u"- &How do I Send an Error Report? -"),
        Label("frmError.lblHowTo"),
        Button("frmError.cmdOK", u"&OK"),
        Button("frmError.cmdOpenFolder", u"Open &folder"),
        Button("frmStarting.cmdClose", u"&Close"),
        Box("frmTempMySpaceErrorFR.chkDontShowAgain", u"&Don't show again"),
        Button("frmTempMySpaceErrorFR.cmdOK", u"&OK"),
    };
}

} // namespace qlm::rows
