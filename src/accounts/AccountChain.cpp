// SPDX-License-Identifier: MIT
#include "accounts/AccountChain.h"

#include "accounts/AccountFile.h"
#include "accounts/Chains.h"
#include "accounts/LoginFlow.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/StopResume.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A chain that goes round and round without sending anything would ask the site for logins all night.
constexpr qsizetype MostIdleRounds = 3;
constexpr int NamesShown = 2;

// The one behind the last that holds the address.
QString CandidateAfter(const QStringList& emails, const QString& email) {
    if (email.isEmpty())
        return emails.value(0);
    for (qsizetype i = emails.size() - 1; i >= 0; --i)
        if (emails[i].contains(email, Qt::CaseInsensitive))
            return emails.value(i + 1);
    return {};
}

} // namespace

AccountChain::AccountChain(App& app) : m_app(app) {
    app.commands.Add(u"LoginNextCycleAccount"_s, [this] { LoginNextCycleAccount(); });
}

void AccountChain::LoginFirstAccount() {
    m_idleTurns = 0;
    LoginAccountAfter({});
}

void AccountChain::LoginNextCycleAccount() {
    LoginAccountAfter(m_app.state.AccountEmail);
}

// Of an account list or a chain that can't be read nobody comes next.
void AccountChain::LoginAccountAfter(const QString& email) {
    const QString error = m_app.diagnostics.Trap("LoginNextCycleAccount", [&] {
        const QString next = GetNextChainAccount(email);
        m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"LNextCycAcc1 - "_s + EncodeAccountLine(next));
        if (next.isEmpty())
            return;
        // A password may hold what separates it from the e-mail.
        const QString line = m_app.Get<AccountFile>().GetAccountLine(next);
        const QString name = line.section(u';', 0, 0);
        m_app.controls.SetText("lblChain"_L1, OrderAfter(next));
        m_app.Get<LoginFlow>().LogInChainedAccount(name, line.mid(name.size() + 1));
    });
    if (error.isEmpty())
        return;
    m_app.Get<StopResume>().StopAll(StopReason::ChainEnded);
    m_app.Get<StopResume>().DoFinishedExit();
}

QString AccountChain::GetNextChainAccount(const QString& email) {
    const Chain* chain = FindChain(m_app.state.ChainedCampaign);
    if (!chain || !ChainFile(m_app, *chain).Exists()) {
        Finish(
            u"You have set the chaining feature on, but have not specified which accounts to chain "
            "through.\n\nPlease go to the Options menu -> Multiple Account Chaining -> Specify Accounts."_s);
        return {};
    }
    if (!email.isEmpty() && IsIdle(*chain)) {
        Finish(
            u"None of the accounts could send anything, %1 times in a row. The chain has been ended."_s.arg(
                MostIdleRounds));
        return {};
    }
    const QString next = NextAfter(*chain, email);
    if (next.isEmpty())
        Finish(u"Finished"_s);
    return next;
}

// The one that comes next finds the count of its turn at 0, also where its login fails.
bool AccountChain::IsIdle(const Chain& chain) {
    qint32& sent = m_app.state.*chain.sent;
    m_idleTurns = sent > 0 ? 0 : m_idleTurns + 1;
    sent = 0;
    const qsizetype accounts = std::max<qsizetype>(ChainFile(m_app, chain).Emails().size(), 1);
    return Loops() && m_idleTurns >= MostIdleRounds * accounts;
}

bool AccountChain::Loops() const {
    const QString stored = m_app.platform.Settings().GetSetting(u"General"_s, u"chkChainingLoop"_s, u"0"_s);
    return ToLong(stored).value_or(0) != 0;
}

QString AccountChain::NextAfter(const Chain& chain, QString email) const {
    const QStringList emails = ChainFile(m_app, chain).Emails();
    for (bool isAnew = false;;) {
        const QString candidate = CandidateAfter(emails, email);
        if (candidate.isEmpty()) {
            // Once round is enough to know that there is none.
            if (isAnew || !Loops())
                return {};
            isAnew = true;
            email.clear();
        } else if (!m_app.Get<AccountFile>().GetAccountLine(candidate).isEmpty()) {
            return candidate;
        } else {
            // Deleted from the list of accounts meanwhile.
            email = candidate;
        }
    }
}

void AccountChain::Finish(const QString& words) {
    m_app.Get<StopResume>().StopAll(StopReason::ChainEnded);
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(words);
}

QString AccountChain::OrderAfter(const QString& email) const {
    const Chain* chain = FindChain(m_app.state.ChainedCampaign);
    QStringList names;
    QString name = email;
    while (chain && names.size() <= NamesShown) {
        name = NextAfter(*chain, name);
        if (name.isEmpty() || names.contains(name))
            break;
        names.append(name);
    }
    if (names.isEmpty())
        return u"The last account of the chain"_s;
    QString text = u"next: "_s + names.takeFirst();
    if (!names.isEmpty())
        text += u", then "_s + names.takeFirst();
    return names.isEmpty() ? text : text + u", …"_s;
}

void AccountChain::ShowOrder() {
    if (m_app.state.blnChaining)
        m_app.controls.SetText("lblChain"_L1, OrderAfter(m_app.state.AccountEmail));
}

} // namespace qlm
