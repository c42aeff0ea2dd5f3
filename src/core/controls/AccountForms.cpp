// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

// The values of the login screen are stored on Continue, not with the rest.
std::vector<ControlRow> AccountForms() {
    return {
        Label("frmInteken.lblHeading"),
        List("frmInteken.lstAccounts").Spoken(u"Accounts"),
        Button("frmInteken.cmdAdd", u"&Add"),
        Button("frmInteken.cmdEdit", u"&Edit"),
        Button("frmInteken.cmdDelete", u"&Delete"),
        Box("frmInteken.chkTOS").Spoken(u"I agree to the Quillmere Terms of Service"),
        Button("frmInteken.lblTOS", u"I agree to the Quillmere &Terms of Service"),
        Label("frmInteken.Label5", u"Quillmere is in no way affiliated with MySpace™"),
        Label("frmInteken.lblPracticeSite"),
        Button("frmInteken.cmdContinue", u"&Continue"),
        Label("frmTerms.txtTerms").Spoken(u"Terms of Service"),
        Button("frmTerms.cmdClose", u"&Close"),
        List("frmSwitchAccount.lstAccounts").Spoken(u"Accounts"),
        Label("frmSwitchAccount.lblHeading", u"Log in with another MySpace account:"),
        Button("frmSwitchAccount.cmdAdd", u"&Add"),
        Button("frmSwitchAccount.cmdEdit", u"&Edit"),
        Button("frmSwitchAccount.cmdDelete", u"&Delete"),
        Button("frmSwitchAccount.cmdClear", u"Clea&r"),
        Button("frmSwitchAccount.cmdExport", u"E&xport"),
        Button("frmSwitchAccount.cmdImport", u"&Import"),
        Button("frmSwitchAccount.cmdOK", u"&Login"),
        Button("frmSwitchAccount.cmdCancel", u"Cancel"),
        Line("frmAccountDetails.txtEmail", u"&E-mail address:"),
        Line("frmAccountDetails.txtPassword", u"&Password:"),
        Line("frmAccountDetails.txtConfirmPassword", u"Co&nfirm password:"),
        Panel("frmAccountDetails.fraFields"),
        Button("frmAccountDetails.cmdOK", u"&OK"),
        Button("frmAccountDetails.cmdCancel", u"Cancel"),
        Button("frmLoginProblem.cmdClose", u"&Close"),
        Label("frmMultipleAccounts.lblHeader"),
        List("frmMultipleAccounts.lstAccounts").Spoken(u"Accounts"),
        Box("frmMultipleAccounts.chkSelectAll", u"Select &All"),
        Box("frmMultipleAccounts.chkChainingLoop", u"&Loop until ID's finished"),
        Button("frmMultipleAccounts.cmdOK", u"&OK"),
        Button("frmMultipleAccounts.cmdCancel", u"Cancel"),
        Label("frmChainingOn.lblNote"),
        Button("frmChainingOn.cmdContinue", u"&Continue with chaining on"),
        Button("frmChainingOn.cmdTurnOff", u"&Turn chaining off"),
    };
}

} // namespace qlm::rows
