// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class Form;

// The builders of the forms: each lays out the widgets of one, by their names.
void BuildAccountDetails(Form& form);
void BuildAutoStart(Form& form);
void BuildBlacklist(Form& form);
void BuildBookmark(Form& form);
void BuildChainingOn(Form& form);
void BuildContentEntry(Form& form);
void BuildContentList(Form& form);
void BuildError(Form& form);
void BuildFilters(Form& form);
void BuildGlobalSettings(Form& form);
void BuildGoogleSearch(Form& form);
void BuildLogin(Form& form);
void BuildLog(Form& form);
void BuildGroupInviteOptions(Form& form);
void BuildInvites(Form& form);
void BuildLoginProblem(Form& form);
void BuildManageBookmarks(Form& form);
void BuildMultipleAccounts(Form& form);
void BuildProfileIDHelp(Form& form);
void BuildSwitchAccount(Form& form);
void BuildTerms(Form& form);
void BuildTimeDelay(Form& form);

} // namespace qlm
