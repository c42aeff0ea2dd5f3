// SPDX-License-Identifier: MIT
#include "Address.h"

#include <QByteArray>
#include <algorithm>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

QString Decode(const QString& text) {
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text.toUtf8()));
}

} // namespace

Address ParseAddress(const QString& pathAndQuery) {
    Address address;
    const QString whole = pathAndQuery.section(u'#', 0, 0);
    address.path = whole.section(u'?', 0, 0);
    for (const QString& part : address.path.split(u'/', Qt::SkipEmptyParts))
        address.segments.append(Decode(part));
    address.query = ParseFields(whole.section(u'?', 1));
    return address;
}

Fields ParseFields(const QString& text) {
    Fields fields;
    for (QString pair : text.split(u'&', Qt::SkipEmptyParts)) {
        pair.replace(u'+', u' ');
        fields.insert(Decode(pair.section(u'=', 0, 0)).toLower(), Decode(pair.section(u'=', 1)));
    }
    return fields;
}

QStringList ValuesOf(const QByteArray& body, const QString& name) {
    QStringList values;
    for (const QString& pair : QString::fromUtf8(body).split(u'&', Qt::SkipEmptyParts)) {
        const Fields field = ParseFields(pair);
        if (field.contains(name))
            values.append(field.value(name));
    }
    return values;
}

QString CookieValue(const QString& header, const QString& name) {
    for (const QString& part : header.split(u';')) {
        const QString pair = part.trimmed();
        if (pair.section(u'=', 0, 0) == name)
            return pair.section(u'=', 1);
    }
    return {};
}

bool IsDigits(const QString& text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace qlm::practice
