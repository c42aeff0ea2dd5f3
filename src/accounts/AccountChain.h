// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
struct Chain;

// Moves a chained campaign from account to account.
class AccountChain {
public:
    explicit AccountChain(App& app);

    // Has the first account of ChainedCampaign logged in; its login goes on with the campaign.
    void LoginFirstAccount();
    // The account in use has done its share: the next one is logged in, or the chain ends.
    void LoginNextCycleAccount();
    // Says in the window who comes next.
    void ShowOrder();

private:
    void LoginAccountAfter(const QString& email);
    // The e-mail of the account that comes after that one, of the first after none; empty where the chain has
    // ended, which has been told then.
    QString GetNextChainAccount(const QString& email);
    QString NextAfter(const Chain& chain, QString email) const;
    QString OrderAfter(const QString& email) const;
    bool IsIdle(const Chain& chain);
    bool Loops() const;
    void Finish(const QString& words);

    App& m_app;
    // The turns since an account has last sent something.
    int m_idleTurns = 0;
};

} // namespace qlm
