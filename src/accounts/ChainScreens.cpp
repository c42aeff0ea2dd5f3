// SPDX-License-Identifier: MIT
#include "accounts/ChainScreens.h"

#include "accounts/AccountChain.h"
#include "accounts/AccountFile.h"
#include "accounts/Chains.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto List = "frmMultipleAccounts.lstAccounts"_L1;
constexpr auto SelectAll = "frmMultipleAccounts.chkSelectAll"_L1;
constexpr auto Loop = "frmMultipleAccounts.chkChainingLoop"_L1;

QString ClickOf(QLatin1StringView control) {
    return QString(control) + u"_Click"_s;
}

} // namespace

ChainScreens::ChainScreens(App& app) : m_app(app) {
    for (const Chain& chain : Chains())
        RegisterMenu(chain);
    Commands& commands = app.commands;
    commands.Add(ClickOf(SelectAll), [this] { chkSelectAll_Click(); });
    commands.Add(u"frmMultipleAccounts.cmdOK_Click"_s, "cmdOK_Click - frmMultipleAccounts",
                 [this] { cmdOK_Click(); });
    commands.Add(u"frmMultipleAccounts.cmdCancel_Click"_s,
                 [this] { m_app.platform.Dialogs().CloseForm(u"frmMultipleAccounts"_s); });
    commands.Add(u"frmChainingOn.cmdContinue_Click"_s,
                 [this] { m_app.platform.Dialogs().CloseForm(u"frmChainingOn"_s); });
    commands.Add(u"frmChainingOn.cmdTurnOff_Click"_s, [this] {
        m_turnsOff = true;
        m_app.platform.Dialogs().CloseForm(u"frmChainingOn"_s);
    });
}

void ChainScreens::RegisterMenu(const Chain& chain) {
    Commands& commands = m_app.commands;
    commands.Add(ClickOf(chain.specify), [this, &chain] { SpecifyAccounts(chain); });
    commands.Add(ClickOf(chain.on), [this, &chain] { TurnOn(chain, true); });
    commands.Add(ClickOf(chain.onSession), [this, &chain] { TurnOn(chain, false); });
    commands.Add(ClickOf(chain.off), [this, &chain] { TurnChainOff(m_app, chain); });
}

void ChainScreens::TurnOn(const Chain& chain, bool always) {
    m_app.controls.SetTicked(always ? chain.on : chain.onSession, true);
    CheckChainAccountsSpecified(chain);
}

bool ChainScreens::CheckChainAccountsSpecified(const Chain& chain) {
    while (ChainFile(m_app, chain).Emails().isEmpty()) {
        if (m_app.AskYesNo(
                u"When using the multiple accounts feature, you need to specify at least one account. "
                "Do you want to do that now?"_s,
                u"Multiple Accounts"_s)) {
            SpecifyAccounts(chain);
            continue;
        }
        TurnChainOff(m_app, chain);
        m_app.ShowMessage(u"The 'Multiple Accounts' feature has been turned off."_s);
        return false;
    }
    return true;
}

void ChainScreens::SpecifyAccounts(const Chain& chain) {
    if (m_process)
        return;
    m_process = &chain;
    const auto closed = qScopeGuard([this] { m_process = nullptr; });
    m_app.diagnostics.Trap("Form_Load - frmMultipleAccounts", [this] {
        m_app.controls.SetText("frmMultipleAccounts.lblHeader"_L1,
                               u"Here you can specify which accounts you want Quillmere to automatically "
                               "switch to when sending "_s +
                                   QString::fromUtf16(m_process->what) + u'.');
        const QString loop = m_app.platform.Settings().GetSetting(u"General"_s, u"chkChainingLoop"_s, u"0"_s);
        m_app.controls.SetTicked(Loop, ToLong(loop).value_or(0) != 0);
        m_app.controls.SetTicked(SelectAll, false);
        FillAccountsList();
        SelectAccounts();
    });
    m_app.platform.Dialogs().ShowModal(u"frmMultipleAccounts"_s);
    m_app.Get<AccountChain>().ShowOrder();
}

void ChainScreens::FillAccountsList() {
    m_app.controls.SetItems(List, {});
    AccountFile& accounts = m_app.Get<AccountFile>();
    const QStringList emails = accounts.Emails(accounts.Path(), true, true).emails;
    m_app.controls.SetItems(List, emails, std::vector<bool>(static_cast<size_t>(emails.size()), false));
}

void ChainScreens::SelectAccounts() {
    const QStringList emails = m_app.controls.Items(List);
    ChainFile file(m_app, *m_process);
    for (int row = 0; row < emails.size(); ++row)
        m_app.controls.SetRowTicked(List, row, file.AccountEntryExists(emails[row]));
}

void ChainScreens::chkSelectAll_Click() {
    for (int row = 0; row < m_app.controls.Items(List).size(); ++row)
        m_app.controls.SetRowTicked(List, row, m_app.controls.Ticked(SelectAll));
}

// The old choice is gone also where nothing is ticked, so that no chain goes on over it.
void ChainScreens::cmdOK_Click() {
    if (!m_process)
        return;
    const QStringList& emails = m_app.controls.Items(List);
    QStringList chosen;
    for (int row = 0; row < emails.size(); ++row)
        if (m_app.controls.RowTicked(List, row))
            chosen.append(emails[row]);
    ChainFile(m_app, *m_process).Write(chosen);
    m_app.platform.Settings().SaveSetting(u"General"_s, u"chkChainingLoop"_s,
                                          m_app.controls.Ticked(Loop) ? u"1"_s : u"0"_s);
    m_app.Get<SettingsFields>().Sync();
    if (chosen.isEmpty())
        m_app.ShowMessage(u"you must select at least one account, or press Cancel"_s);
    else
        m_app.platform.Dialogs().CloseForm(u"frmMultipleAccounts"_s);
}

bool ChainScreens::StaysOn(const Chain& chain) {
    m_turnsOff = false;
    m_app.controls.SetText("frmChainingOn.lblNote"_L1,
                           u"Please note you have enabled account chaining for "_s +
                               QString::fromUtf16(chain.what));
    m_app.platform.Dialogs().ShowModal(u"frmChainingOn"_s);
    return !m_turnsOff;
}

} // namespace qlm
