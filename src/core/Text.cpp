// SPDX-License-Identifier: MIT
#include "core/Text.h"

#include "core/AnsiText.h"

#include <QRegularExpression>
#include <QStringList>
#include <cmath>
#include <limits>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

bool IsNumeric(const QString& text) {
    static const QRegularExpression number(u"^\\s*[+-]?([0-9]+\\.?[0-9]*|\\.[0-9]+)\\s*$"_s);
    return number.match(text).hasMatch();
}

bool IsDigits(const QString& text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

std::optional<qint32> ToLong(const QString& text) {
    if (!IsNumeric(text))
        return std::nullopt;
    const double value = std::nearbyint(text.trimmed().toDouble());
    if (value < std::numeric_limits<qint32>::min() || value > std::numeric_limits<qint32>::max())
        return std::nullopt;
    return static_cast<qint32>(value);
}

bool ToBoolean(const QString& text) {
    const QString word = text.trimmed();
    if (word.compare(u"False"_s, Qt::CaseInsensitive) == 0)
        return false;
    return !IsNumeric(word) || word.toDouble() != 0.0;
}

QString FromBoolean(bool value) {
    return value ? u"True"_s : u"False"_s;
}

QString GetQueryStringValue(const QString& url, const QString& key) {
    const QRegularExpression pattern(u"[?&]"_s + QRegularExpression::escape(key) + u"=([^&]*)"_s,
                                     QRegularExpression::CaseInsensitiveOption);
    return pattern.match(url).captured(1);
}

QString GetHTMLTagValue(const QString& html, const QString& tag) {
    const QString name = QRegularExpression::escape(tag);
    const QRegularExpression pattern(u"<"_s + name + u"(?:\\s[^>]*)?>(.*?)</"_s + name + u"\\s*>"_s,
                                     QRegularExpression::CaseInsensitiveOption |
                                         QRegularExpression::DotMatchesEverythingOption);
    return pattern.match(html).captured(1);
}

QString GetNumberFromEnd(const QString& text) {
    qsizetype start = text.size();
    while (start > 0 && text[start - 1] >= u'0' && text[start - 1] <= u'9')
        --start;
    return text.mid(start);
}

QString GetStringFromEnd(const QString& text, const QString& delimiter) {
    const qsizetype last = text.lastIndexOf(delimiter);
    return last < 0 ? text : text.mid(last + delimiter.size());
}

QString CleanupFileName(const QString& name) {
    static const QRegularExpression notAllowed(u"[\\\\/:*?\"<>|\\x00-\\x1F]"_s);
    QString cleaned = name;
    return cleaned.remove(notAllowed);
}

QString UrlEncode(const QString& text) {
    QString encoded;
    for (const char byte : ToAnsi(text)) {
        const bool plain =
            (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        if (plain)
            encoded += QLatin1Char(byte);
        else if (byte == ' ')
            encoded += u'+';
        else
            encoded +=
                u'%' +
                QString::number(static_cast<unsigned char>(byte), 16).toUpper().rightJustified(2, u'0');
    }
    return encoded;
}

QString LeadingZero(qint64 number) {
    return QString::number(number).rightJustified(2, u'0');
}

std::optional<qint64> FromHexadecimal(const QString& text) {
    if (!text.startsWith(u"&H"_s, Qt::CaseInsensitive) || text.size() < 3 || !text[2].isLetterOrNumber())
        return std::nullopt;
    bool isNumber = false;
    const qint64 number = text.mid(2).toLongLong(&isNumber, 16);
    return isNumber ? std::optional(number) : std::nullopt;
}

QString ToBase36(qint64 number) {
    return QString::number(number, 36);
}

std::optional<qint64> FromBase36(const QString& text) {
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber, 36);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace qlm
