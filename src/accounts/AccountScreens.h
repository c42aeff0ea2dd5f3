// SPDX-License-Identifier: MIT
#pragma once

#include "accounts/AccountDetails.h"

#include <QString>
#include <vector>

namespace qlm {

class App;

// One of the two screens on which the user keeps the list of accounts, as the shared routines need to know
// it.
struct AccountScreen {
    QString form;
    QLatin1StringView list;
    std::vector<QLatin1StringView> accountButtons; // enabled only while there are accounts
    bool isLoginScreen;                            // shows blank lines too, and says so when there are none
    const char* fillName;
    const char* deleteName;
};

// What the buttons of frmInteken and frmSwitchAccount do. Their controls stand in the table of controls under
// the form's name; the handlers are registered as commands.
class AccountScreens {
public:
    explicit AccountScreens(App& app);

    // Shows the login screen; the end of start-up.
    void ShowLoginScreen();

private:
    void RegisterShared(const AccountScreen& screen);
    void FillAccountsList(const AccountScreen& screen, const QString& path, bool encrypted);
    void FillFromAccountFile(const AccountScreen& screen);
    void SelectEmail(const AccountScreen& screen, const QString& email);
    void cmdAdd_Click(const AccountScreen& screen);
    void cmdEdit_Click(const AccountScreen& screen);
    void cmdDelete_Click(const AccountScreen& screen);

    void RegisterLoginScreen();
    void lblTOS_Click();
    void cmdContinue_Click();
    bool MayContinue();
    void Continue();

    void RegisterSwitchScreen();
    void mnuSwitchLogin_Click();
    void cmdOK_Click();
    void cmdClear_Click();
    void cmdExport_Click();
    void cmdImport_Click();

    App& m_app;
    AccountDetails m_details;
    // The choice on frmSwitchAccount; an empty e-mail means that there is none.
    QString m_switchEmail;
    QString m_switchPassword;
    bool m_tooLongTold = false;
};

} // namespace qlm
