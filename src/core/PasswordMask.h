// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace qlm {

// Keeps passwords out of the program's trail, its error reports and its address bar. Pages and addresses may
// hold them: a site may send its login form in the address, or write what was typed into the next page.
class PasswordMask {
public:
    // Remembers a password that came by, until the program ends; an empty one is none.
    void Learn(const QString& password);
    // The text with "****" in place of every learned password, however it is written there (plain, escaped
    // as in an address, in markup or in a script), and of every value that an address gives for a password.
    QString Masked(const QString& text) const;
    // The same for an address alone: what stands before its query stays as it is.
    QString MaskedAddress(const QString& address) const;

private:
    QStringList m_learned;
    QRegularExpression m_anyLearned;
};

} // namespace qlm
