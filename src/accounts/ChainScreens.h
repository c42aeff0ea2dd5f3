// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;
struct Chain;

// The menu of chained accounts, the screen on which they are chosen, and the reminder that they are on.
class ChainScreens {
public:
    explicit ChainScreens(App& app);

    // frmMultipleAccounts for that chain.
    void SpecifyAccounts(const Chain& chain);
    // frmChainingOn: whether the campaign is to go through the chain that is on.
    bool StaysOn(const Chain& chain);

private:
    void RegisterMenu(const Chain& chain);
    void TurnOn(const Chain& chain, bool always);
    bool CheckChainAccountsSpecified(const Chain& chain);
    void FillAccountsList();
    void SelectAccounts();
    void chkSelectAll_Click();
    void cmdOK_Click();

    App& m_app;
    const Chain* m_process = nullptr; // while frmMultipleAccounts is open
    bool m_turnsOff = false;
};

} // namespace qlm
