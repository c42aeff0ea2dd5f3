// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace qlm::practice {

/// What can be made to go wrong at an address.
enum class FaultKind {
    Slow,      ///< the page comes, but late
    Hang,      ///< no answer ever
    Reset,     ///< the connection breaks
    NoBody,    ///< an empty answer; the page itself is not run
    Error,     ///< the server's error page
    LoggedOut, ///< the session is dropped and the visitor sent to the root
    Limit,     ///< the daily limit page
    Captcha,   ///< a CAPTCHA in front of the page
    Alert,     ///< the page with a script alert
    Unload,    ///< the page with a script that asks before it is left
    Endless,   ///< the page with a script that never ends
    Wrong,     ///< quite another page
    Lost,      ///< the page is run, and the connection breaks before its answer arrives
    Blank,     ///< the page is run, and an empty answer arrives
    // Pages that may come in the middle of a sign-in.
    Advert,      ///< an advertisement that wants to be skipped
    Moving,      ///< a notice that players are moving
    Foreign,     ///< a sign-in page that isn't in English
    Return,      ///< a page that only leads back
    Welcome,     ///< a page that only says that one is signed in
    Cached,      ///< the page of somebody who is signed in, out of a cache
    Birthday,    ///< a question about birthdays
    Certificate, ///< a warning about the certificate
};

std::optional<FaultKind> FaultNamed(const QString& name);

struct Fault {
    QString
        prefix; ///< host + path, lower case, without a scheme; a "$" at the end means exactly this address
    FaultKind kind = FaultKind::Slow;
    int delayMs = 0;
    int left = -1;     ///< how many more requests it meets; -1 for all
    QString mail = {}; ///< meets that account alone; everybody when empty
};

/// The faults in force. The one set last wins where several fit.
class Faults {
public:
    /// Sets a fault in place of an older one with the same prefix for the same account.
    void Set(Fault fault);
    void Remove(const QString& prefix);
    void Clear() { m_faults.clear(); }

    /// The fault that meets a request of that account for `address` (host + path with query), counted down.
    /// `mail` is empty for a visitor who isn't signed in.
    std::optional<Fault> Meet(const QString& address, const QString& mail);

private:
    QList<Fault> m_faults;
};

} // namespace qlm::practice
