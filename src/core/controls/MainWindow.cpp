// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

// The frame of the main window.
std::vector<ControlRow> MainWindow() {
    return {
        Line("txtAddress").Spoken(u"Address").Hint(u"Address"),
        Button("picBack", u"Back").Picture("NAVBACK").Tip(u"Go back one page"),
        Button("picForward", u"Forward").Picture("NAVFORWARD").Tip(u"Go forward one page"),
        Button("picHome", u"Home").Picture("NAVHOME").Tip(u"Go to your MySpace home page"),
        Button("picRefresh", u"Refresh").Picture("REFRESH").Tip(u"Load this page again"),
        Button("picStop", u"Stop").Picture("STOP").Tip(u"Stop the page and whatever is running"),
        Button("picGO", u"Go").Picture("GO").Tip(u"Go to the address"),
        Button("picSkip", u"S&kip")
            .Picture("SKIP")
            .Tip(u"Skip the current profile, or end a running time delay"),
        Button("picCollapse", u"Fold the control panel away")
            .Picture("COLLAPSE_LEFT")
            .Tip(u"Fold the control panel away"),
        Label("lblStatus"),
        Label("lblLoggedInAs"),
        Label("myfraCurrentAction"),
        Label("lblWaitingFor"),
        Label("lblChain"),
        Label("lblAutoStart"),
        Label("lblTimeDelay", u"Time Delay: OFF"),
        Label("lblLaterErrors"),
        Label("lblProgress"),
        Pointer("MousePointer"),
        Label("lblPracticeSite")
            .Tip(u"The program works on the bundled practice site. No real site is touched."),
        List("TabStrip1").Spoken(u"Control panel"),
        Panel("ucpanelFullGatherIDNotify", u"Full Gather"),
        Label("lblFullGatherIDNotify"),
    };
}

} // namespace qlm::rows
