// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace qlm::practice {

/// Name-value pairs of a query or a sent form; names are kept in lower case, as the site ignores theirs.
using Fields = QMap<QString, QString>;

/// A request's path taken to pieces.
struct Address {
    QString path;         ///< without the query
    QStringList segments; ///< decoded, empty ones left out
    Fields query;
};

Address ParseAddress(const QString& pathAndQuery);

/// Reads "a=1&b=two+words", as it stands in a query or the body of a form.
Fields ParseFields(const QString& text);

/// Every value under that name, which is in lower case, in their order.
QStringList ValuesOf(const QByteArray& body, const QString& name);

/// The value of one cookie of a Cookie header, or "".
QString CookieValue(const QString& header, const QString& name);

/// True when `text` is a non-empty run of decimal digits.
bool IsDigits(const QString& text);

} // namespace qlm::practice
