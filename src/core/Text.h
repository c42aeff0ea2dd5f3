// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace qlm {

// Contains without regard to letter case: the usual page test.
inline bool Has(const QString& text, const QString& part) {
    return text.contains(part, Qt::CaseInsensitive);
}

// The numeric test: optional sign, digits with an optional decimal point, blanks around; not
// empty.
bool IsNumeric(const QString& text);
// Digits alone, at least one.
bool IsDigits(const QString& text);
// Rounds half to even; nothing when the text is no number or beyond 32 bits.
std::optional<qint32> ToLong(const QString& text);
// Boolean as stored: a text that is neither "False" nor a number that is 0 is true.
bool ToBoolean(const QString& text);
QString FromBoolean(bool value); // "True" or "False"

QString GetQueryStringValue(const QString& url, const QString& key);
QString GetHTMLTagValue(const QString& html, const QString& tag);
QString GetNumberFromEnd(const QString& text);
QString GetStringFromEnd(const QString& text, const QString& delimiter);
QString CleanupFileName(const QString& name);
// Letters and digits stay, a blank becomes "+", any other byte "%" and two capital hexadecimal digits.
QString UrlEncode(const QString& text);
QString LeadingZero(qint64 number);
// "&H1F" with its prefix, in any letter case; nothing for any other text and beyond 63 bits.
std::optional<qint64> FromHexadecimal(const QString& text);
// Digits 0 to 9 and a to z, the sign in front.
QString ToBase36(qint64 number);
std::optional<qint64> FromBase36(const QString& text);

} // namespace qlm
