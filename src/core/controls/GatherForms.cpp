// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

// The search term is stored when its window goes.
std::vector<ControlRow> GatherForms() {
    return {
        Line("frmBlacklist.txtID", u"&ID:").Spoken(u"ID to add"),
        Button("frmBlacklist.cmdAdd", u"&Add ID"),
        List("frmBlacklist.lstFriendIDs").Spoken(u"Blacklisted ID's"),
        Button("frmBlacklist.cmdDelete", u"&Delete Selected ID"),
        Button("frmBlacklist.cmdAddFromFile", u"Add ID's from &file"),
        Button("frmBlacklist.cmdClearList", u"Clea&r list"),
        Button("frmBlacklist.cmdClose", u"&Close"),
        Line("frmGoogleSearch.txtGoogleTerm", u"Please enter a Google search &term to scan MySpace profiles:")
            .Spoken(u"Google search term"),
        Button("frmGoogleSearch.cmdOK", u"&Search"),
        Label("frmGoogleSearch.lblInProgress", u"Extracting Google Results (1000 max) - please be patient"),
        Label("frmGoogleSearch.lblFullGatheringID", u"Full-Gathering ID's..."),
        Box("frmGroupGatherPrompt.chkDontShowAgain", u"&Don't show again"),
        Button("frmGroupGatherPrompt.cmdOK", u"&OK"),
        Box("frmMusicSearchGatherPrompt.chkDontShowAgain", u"&Don't show again"),
        Button("frmMusicSearchGatherPrompt.cmdOK", u"&OK"),
        Box("frmFullGatherReminder.chkDontShowAgain", u"&Don't show again"),
        Button("frmFullGatherReminder.cmdOK", u"&OK"),
        Button("frmFullGatherHelp.cmdClose", u"&Close"),
        Button("frmProifleIDHelp.cmdClose", u"&Close"),
    };
}

} // namespace qlm::rows
