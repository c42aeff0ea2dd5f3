// SPDX-License-Identifier: MIT
#include "core/PasswordMask.h"

#include "core/AnsiText.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Stars = u"****"_s;

// A shorter one stands in many words by chance, and is masked only where it stands alone.
constexpr qsizetype UnmistakableLength = 6;

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
    if (password.size() >= UnmistakableLength)
        return pattern;
    return u"(?:(?<![A-Za-z0-9])|(?<=%[0-9A-Fa-f]{2}))"_s + pattern + u"(?![A-Za-z0-9])"_s;
}

} // namespace

void PasswordMask::Learn(const QString& password) {
    if (password.isEmpty() || m_learned.contains(password))
        return;
    m_learned.append(password);
    // The longest first: a shorter one may be a part of it.
    std::stable_sort(m_learned.begin(), m_learned.end(),
                     [](const QString& left, const QString& right) { return left.size() > right.size(); });
    QStringList patterns;
    for (const QString& learned : m_learned)
        patterns.append(AnyWritingOf(learned));
    m_anyLearned.setPattern(patterns.join(u'|'));
}

QString PasswordMask::Masked(const QString& text) const {
    static const QRegularExpression value(
        uR"(((?:[?&;]|%26|%3F)[^=&;\s"'<>]*(?:passw|pwd)[^=&;\s"'<>]*?(?:=|%3D))[^&;\s"'<>#]*)"_s,
        QRegularExpression::CaseInsensitiveOption);
    QString masked = text;
    if (!m_learned.isEmpty())
        masked.replace(m_anyLearned, Stars);
    return masked.replace(value, u"\\1"_s + Stars);
}

QString PasswordMask::MaskedAddress(const QString& address) const {
    const qsizetype query = address.indexOf(u'?');
    return query < 0 ? address : address.left(query) + Masked(address.mid(query));
}

} // namespace qlm
