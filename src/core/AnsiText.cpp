// SPDX-License-Identifier: MIT
#include "core/AnsiText.h"

#include <QStringConverter>

#include <algorithm>
#include <array>
#include <optional>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Codes 0x80 to 0x9F; those that the code page leaves open stand for themselves.
constexpr std::array<char16_t, 32> UpperControls{
    u'\u20AC', u'\x81',   u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\x8D',   u'\u017D', u'\x8F',
    u'\x90',   u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\x9D',   u'\u017E', u'\u0178'};

char ToAnsiCode(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    const auto found = std::find(UpperControls.begin(), UpperControls.end(), character);
    return found == UpperControls.end() ? '?' : static_cast<char>(0x80 + (found - UpperControls.begin()));
}

// Most text is, and needs no look at each character: it is the same in both.
bool IsAscii(QStringView text) {
    char16_t bits = 0;
    for (const QChar character : text)
        bits |= character.unicode();
    return bits < 0x80;
}

} // namespace

QByteArray ToAnsi(QStringView text) {
    if (IsAscii(text))
        return text.toLatin1();
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* out = bytes.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        // A character beyond the basic plane is two units here and one "?" there.
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        *out++ = ToAnsiCode(text[i].unicode());
    }
    bytes.truncate(out - bytes.constData());
    return bytes;
}

QString FromAnsi(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    if (IsAscii(QStringView(text)))
        return text;
    for (QChar& character : text)
        if (const char16_t code = character.unicode(); code >= 0x80 && code < 0xA0)
            character = UpperControls[code - 0x80U];
    return text;
}

bool FitsAnsi(const QString& text) {
    return FromAnsi(ToAnsi(text)) == text;
}

QString MissingInAnsi(const QString& text) {
    QString missing;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size();
        const QString character = text.mid(at, isPair ? 2 : 1);
        at += isPair ? 1 : 0;
        if (!FitsAnsi(character) && !missing.contains(character))
            missing += character;
    }
    return missing;
}

QStringList LinesOfText(const QByteArray& bytes) {
    const std::optional<QStringConverter::Encoding> marked = QStringConverter::encodingForData(bytes);
    QString text = marked ? QString(QStringDecoder(*marked).decode(bytes)) : FromAnsi(bytes);
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    else if (text.isEmpty())
        return {};
    return text.split(u'\n');
}

} // namespace qlm
