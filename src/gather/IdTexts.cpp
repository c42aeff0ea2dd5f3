// SPDX-License-Identifier: MIT
#include "core/Text.h"
#include "gather/IdResolution.h"

#include <QStringList>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

QString DigitsFrom(const QString& text, qsizetype start) {
    qsizetype end = start;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    return text.mid(start, end - start);
}

} // namespace

QString DigitsBehind(const QString& text, const QString& key) {
    const qsizetype at = text.indexOf(key, 0, Qt::CaseInsensitive);
    return at < 0 ? QString() : DigitsFrom(text, at + key.size());
}

QString ValueAfterKey(const QString& text, const QString& key) {
    const qsizetype at = text.indexOf(key, 0, Qt::CaseInsensitive);
    if (at < 0)
        return {};
    const qsizetype start = at + key.size();
    qsizetype end = start;
    while (end < text.size() && text[end] != u'>' && text[end] != u' ')
        ++end;
    return text.mid(start, end - start).remove(u'"');
}

QString TrailingNumber(const QString& href) {
    QString address = href;
    if (address.endsWith(u'/'))
        address.chop(1);
    return GetNumberFromEnd(address);
}

std::optional<QString> ScriptValue(const QString& script, const QString& key) {
    qsizetype at = script.indexOf(key + u"\":"_s, 0, Qt::CaseInsensitive);
    if (at < 0)
        at = script.indexOf(key + u':', 0, Qt::CaseInsensitive);
    if (at < 0)
        return std::nullopt;
    const qsizetype start = at + key.size();
    const qsizetype comma = script.indexOf(u',', start);
    return script.mid(start, comma < 0 ? -1 : comma - start).remove(u':').remove(u'"').trimmed();
}

QString NameToShow(const QString& linkText, const QString& vanityName) {
    const QStringList lines = linkText.split(u'\n');
    if (lines.size() > 1)
        return lines[0].trimmed().isEmpty() ? lines[1].trimmed() : lines[0].trimmed();
    return linkText.trimmed().isEmpty() ? vanityName : linkText;
}

qint32 ExtractNumberFromString(const QString& text) {
    qsizetype start = 0;
    while (start < text.size() && !IsDigit(text[start]))
        ++start;
    const QString digits = DigitsFrom(text, start);
    if (digits.isEmpty())
        return 0;
    const std::optional<qint32> number = ToLong(digits);
    if (!number)
        throw std::overflow_error("Overflow");
    return *number;
}

} // namespace qlm
