// SPDX-License-Identifier: MIT
#include "core/PasswordMask.h"

#include "core/AnsiText.h"

#include <QUrl>

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Stars = u"****"_s;

// A word that people and programs use tells nothing where it stands in a sentence, but its absence would:
// such a password is hidden as a value alone. No word is one that mixes letters and digits.
bool IsUnmistakable(const QString& password) {
    constexpr qsizetype Shortest = 6;
    auto holds = [&password](bool (QChar::*kind)() const) {
        return std::any_of(password.begin(), password.end(), [kind](QChar c) { return (c.*kind)(); });
    };
    return password.size() >= Shortest && holds(&QChar::isLetter) && holds(&QChar::isDigit);
}

QString Hexadecimal(uint number, int width) {
    return QString::number(number, 16).rightJustified(width, u'0');
}

// As in an address, also in one that is itself part of an address.
QString Percented(const QByteArray& bytes) {
    QString pattern;
    for (const char byte : bytes)
        pattern += u"%(?:25)*(?i:"_s + Hexadecimal(static_cast<uchar>(byte), 2) + u')';
    return pattern;
}

QString MarkupName(char32_t character) {
    switch (character) {
    case U'&':
        return u"amp"_s;
    case U'<':
        return u"lt"_s;
    case U'>':
        return u"gt"_s;
    case U'"':
        return u"quot"_s;
    case U'\'':
        return u"apos"_s;
    default:
        return {};
    }
}

// Every way in which one character of a password may be written.
QString AnyWriting(char32_t character) {
    const QString plain = QString::fromUcs4(&character, 1);
    const QString escaped = QRegularExpression::escape(plain);
    QStringList ways{Percented(plain.toUtf8()), Percented(ToAnsi(plain)),
                     u"&#0*%1;"_s.arg(static_cast<uint>(character)),
                     u"&#[xX]0*(?i:%1);"_s.arg(Hexadecimal(character, 1)), u"\\\\"_s + escaped};
    if (character <= 0xFF)
        ways.append(u"\\\\x(?i:%1)"_s.arg(Hexadecimal(character, 2)));
    if (character <= 0xFFFF)
        ways.append(u"\\\\u(?i:%1)"_s.arg(Hexadecimal(character, 4)));
    if (const QString name = MarkupName(character); !name.isEmpty())
        ways.append(u'&' + name + u';');
    if (character == U' ')
        ways.append(u"\\+"_s);
    // Last: an ampersand also begins its own longer writings.
    ways.append(escaped);
    return u"(?:"_s + ways.join(u'|') + u')';
}

QString AnyWritingOf(const QString& password) {
    QString pattern;
    for (const uint character : password.toUcs4())
        pattern += AnyWriting(character);
    return u"(?:"_s + pattern + u')';
}

// Where it is the whole of something: of a query key's or an attribute's value, of a quoted text, of what a
// text area holds.
QString AsAWhole(const QString& password) {
    const QString written = AnyWritingOf(password);
    QStringList places{uR"((?<==|%3[Dd]|%253[Dd]))"_s + written + uR"((?=$|[&;#\s"'<>]|%(?:25)*(?:26|23)))"_s,
                       uR"((?<=["'`]|&quot;|&#3[49];|%2[27]))"_s + written +
                           uR"((?=\\?["'`]|&quot;|&#3[49];|%2[27]))"_s,
                       u"(?<=>)"_s + written + u"(?=</textarea)"_s};
    if (IsUnmistakable(password))
        places.append(u"(?:(?<![A-Za-z0-9_])|(?<=%[0-9A-Fa-f]{2}))"_s + written + u"(?![A-Za-z0-9_])"_s);
    return u"(?:"_s + places.join(u'|') + u')';
}

// A key of an address as the page named its field.
QString Decoded(QString key) {
    return QUrl::fromPercentEncoding(key.replace(u'+', u' ').toUtf8());
}

} // namespace

void PasswordMask::Learn(const QString& password, const QString& field) {
    if (password.isEmpty())
        return;
    if (!field.isEmpty())
        m_fields.insert(field);
    if (m_learned.contains(password))
        return;
    m_learned.append(password);
    // The longest first: a shorter one may be a part of it.
    std::stable_sort(m_learned.begin(), m_learned.end(),
                     [](const QString& left, const QString& right) { return left.size() > right.size(); });
    QStringList places;
    QStringList writings;
    for (const QString& learned : m_learned) {
        places.append(AsAWhole(learned));
        writings.append(AnyWritingOf(learned));
    }
    m_anyPlace.setPattern(places.join(u'|'));
    m_anyWriting.setPattern(QRegularExpression::anchoredPattern(writings.join(u'|')));
}

QString PasswordMask::Masked(const QString& text) const {
    static const QRegularExpression value(
        uR"(((?:[?&;]|%26|%3F)[^=&;\s"'<>]*(?:passw|pwd)[^=&;\s"'<>]*?(?:=|%3D))[^&;\s"'<>#]*)"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString masked = text;
    if (!m_learned.isEmpty())
        masked.replace(m_anyPlace, Stars);
    return masked.replace(value, u"\\1"_s + Stars);
}

QString PasswordMask::MaskedAddress(const QString& address) const {
    static const QRegularExpression pair(uR"(([?&;])([^=&;#]*)=([^&;#\s]*))"_s);
    QString masked;
    qsizetype end = 0;
    for (auto pairs = pair.globalMatch(address); pairs.hasNext();) {
        const QRegularExpressionMatch match = pairs.next();
        masked += address.mid(end, match.capturedStart(3) - end);
        masked += IsPassword(Decoded(match.captured(2)), match.captured(3)) ? Stars : match.captured(3);
        end = match.capturedEnd(3);
    }
    return masked + address.mid(end);
}

bool PasswordMask::IsPassword(const QString& key, const QString& value) const {
    static const QRegularExpression telling(u"passw|pwd"_s, QRegularExpression::CaseInsensitiveOption);
    return telling.match(key).hasMatch() || (m_fields.contains(key) && m_anyWriting.match(value).hasMatch());
}

} // namespace qlm
