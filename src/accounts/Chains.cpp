// SPDX-License-Identifier: MIT
#include "accounts/Chains.h"

#include "accounts/AccountFile.h"
#include "core/ActivityWords.h"
#include "core/AnsiText.h"
#include "core/App.h"
#include "steps/StopResume.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

const std::vector<Chain>& Chains() {
    static const std::vector<Chain> chains{
        {ActivityWord::FriendRequests, u"friend requests", "chainingfr.txt"_L1, "mnuSpecifyAccountsFR"_L1,
         "mnuMultipleAccountsFROn"_L1, "mnuMultipleAccountsFROnSession"_L1, "mnuMultipleAccountsFROff"_L1,
         &RunState::lngSessionFR},
        {ActivityWord::Messages, u"messages", "chainingmsg.txt"_L1, "mnuSpecifyAccountsMSG"_L1,
         "mnuMultipleAccountsMSGOn"_L1, "mnuMultipleAccountsMSGOnSession"_L1, "mnuMultipleAccountsMSGOff"_L1,
         &RunState::lngSessionMsg},
        {ActivityWord::Bulletins, u"bulletins", "chainingbul.txt"_L1, "mnuSpecifyAccountsBUL"_L1,
         "mnuMultipleAccountsBULOn"_L1, "mnuMultipleAccountsBULOnSession"_L1, "mnuMultipleAccountsBULOff"_L1,
         &RunState::lngSessionBul},
    };
    return chains;
}

const Chain* FindChain(const QString& campaign) {
    for (const Chain& chain : Chains())
        if (campaign == chain.campaign)
            return &chain;
    return nullptr;
}

bool IsChainOn(const App& app, const Chain& chain) {
    return app.controls.Ticked(chain.on) || app.controls.Ticked(chain.onSession);
}

void TurnChainOff(App& app, const Chain& chain) {
    app.controls.SetTicked(chain.off, true);
    if (app.state.ChainedCampaign == chain.campaign)
        app.Get<StopResume>().EndChain();
}

QString ChainFile::Path() const {
    return m_app.ProgramFile(m_chain.file);
}

bool ChainFile::Exists() const {
    return m_app.files.FileExists(Path());
}

void ChainFile::Ensure() {
    m_app.files.EnsureFile(Path(), Readers::OwnerAlone);
    m_app.files.CloseToOthers(Path());
}

QStringList ChainFile::Emails() const {
    QStringList emails;
    if (!Exists())
        return emails;
    for (const QString& line : LinesOfText(m_app.files.ReadBytes(Path())))
        if (const QString email = DecodeAccountLine(line).trimmed(); !email.isEmpty())
            emails.append(email);
    return emails;
}

void ChainFile::Write(const QStringList& emails) {
    QStringList lines;
    for (const QString& email : emails)
        lines.append(EncodeAccountLine(email));
    m_app.files.WriteLines(Path(), lines, Readers::OwnerAlone);
}

bool ChainFile::AccountEntryExists(const QString& email) {
    Ensure();
    return Emails().contains(email.trimmed());
}

bool ChainFile::HasAccounts() {
    Ensure();
    const QStringList chosen = Emails();
    AccountFile& accounts = m_app.Get<AccountFile>();
    const QStringList listed = accounts.Emails(accounts.Path(), true, true).emails;
    return std::any_of(listed.begin(), listed.end(),
                       [&chosen](const QString& email) { return chosen.contains(email.trimmed()); });
}

} // namespace qlm
