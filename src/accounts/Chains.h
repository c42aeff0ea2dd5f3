// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <vector>

namespace qlm {

class App;
struct RunState;

// The accounts that a campaign works through, one after the other. Each campaign that can do so has a list of
// its own: a file in ProgramFolder of an e-mail a line, encoded like those of the account file. No password
// stands in it.
struct Chain {
    QLatin1StringView campaign; // its word
    const char16_t* what;       // "friend requests"
    QLatin1StringView file;
    // Its menu; the three last are a group.
    QLatin1StringView specify;
    QLatin1StringView on;
    QLatin1StringView onSession;
    QLatin1StringView off;
    qint32 RunState::*sent; // what the account in use has sent in its turn
};

const std::vector<Chain>& Chains();
// nullptr for a word of another activity.
const Chain* FindChain(const QString& campaign);

bool IsChainOn(const App& app, const Chain& chain);
// Its menu says so, and the campaign that runs moves on no more.
void TurnChainOff(App& app, const Chain& chain);

// Readable by its owner alone, and written whole or not at all.
class ChainFile {
public:
    ChainFile(App& app, const Chain& chain) : m_app(app), m_chain(chain) {}

    QString Path() const;
    bool Exists() const;
    // The e-mails, trimmed, without blank lines; none of a file that is missing.
    QStringList Emails() const;
    void Write(const QStringList& emails);

    // These two make the file where it is missing.
    bool AccountEntryExists(const QString& email);
    // Whether an account of the list stands in it.
    bool HasAccounts();

private:
    void Ensure();

    App& m_app;
    const Chain& m_chain;
};

} // namespace qlm
