// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>

namespace qlm {

// Keeps passwords out of the program's trail, its error reports, saved pages and its address bar. Pages and
// addresses may hold them: a site may send its login form in the address, or write what was typed into the
// next page. A password that is a common word is left where it is a part of something else, since a gap there
// would tell it.
class PasswordMask {
public:
    // Remembers a password that came by, and the form field that it stood in, until the program ends; an
    // empty one is none.
    void Learn(const QString& password, const QString& field = {});
    // The text with "****" in place of every learned password that stands as a whole value, however it is
    // written there (plain, escaped as in an address, in markup or in a script), and of every value that an
    // address gives for a password.
    QString Masked(const QString& text) const;
    // An address with "****" in place of the value of a password's field, otherwise as it is.
    QString MaskedAddress(const QString& address) const;

private:
    bool IsPassword(const QString& key, const QString& value) const;

    QStringList m_learned;
    QSet<QString> m_fields;
    QRegularExpression m_anyPlace;
    QRegularExpression m_anyWriting;
};

} // namespace qlm
