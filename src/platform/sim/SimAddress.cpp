// SPDX-License-Identifier: MIT
#include "platform/sim/SimAddress.h"

#include <QStringList>
#include <cctype>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsWebScheme(const QString& scheme) {
    return scheme == u"http" || scheme == u"https" || scheme == u"file";
}

qsizetype EndOfHost(const QString& address, qsizetype start) {
    for (qsizetype i = start; i < address.size(); ++i)
        if (address[i] == u'/' || address[i] == u'?' || address[i] == u'#')
            return i;
    return address.size();
}

qsizetype EndOfPath(const QString& reference) {
    for (qsizetype i = 0; i < reference.size(); ++i)
        if (reference[i] == u'?' || reference[i] == u'#')
            return i;
    return reference.size();
}

QString Encoded(const QString& text) {
    QString encoded;
    encoded.reserve(text.size());
    for (const char byte : text.toUtf8()) {
        const auto code = static_cast<unsigned char>(byte);
        if (code <= 0x20 || code >= 0x7f || byte == '"' || byte == '<' || byte == '>')
            encoded += u'%' + QString::number(code, 16).rightJustified(2, u'0').toUpper();
        else
            encoded += QLatin1Char(byte);
    }
    return encoded;
}

QString WithoutDotParts(const QString& path) {
    QStringList parts;
    const QStringList all = path.split(u'/');
    for (qsizetype i = 1; i < all.size(); ++i) {
        const bool isLast = i == all.size() - 1;
        if (all[i] == u"..") {
            if (!parts.isEmpty())
                parts.removeLast();
        } else if (all[i] != u".") {
            parts += all[i];
            continue;
        }
        if (isLast)
            parts += QString();
    }
    return u'/' + parts.join(u'/');
}

} // namespace

QString SchemeOf(const QString& address) {
    const qsizetype colon = address.indexOf(u':');
    if (colon <= 0)
        return {};
    for (qsizetype i = 0; i < colon; ++i) {
        const QChar c = address[i];
        const bool isLetter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
        if (!isLetter && (i == 0 || !(c.isDigit() || c == u'+' || c == u'-')))
            return {};
    }
    return address.left(colon).toLower();
}

QString CanonicalAddress(const QString& address) {
    QString text = address.trimmed();
    const QString scheme = SchemeOf(text);
    // "host:8080/page" is a host with a port and no scheme.
    const bool isPort = text.size() > scheme.size() + 1 && text[scheme.size() + 1].isDigit();
    if (scheme.isEmpty() || isPort)
        return text.isEmpty() ? text : CanonicalAddress(u"http://"_s + text);
    if (scheme == u"about")
        return text.toLower();
    if (!IsWebScheme(scheme) || !text.mid(scheme.size()).startsWith(u"://"))
        return text;
    const qsizetype hostStart = scheme.size() + 3;
    const qsizetype hostEnd = EndOfHost(text, hostStart);
    const QString host = text.mid(hostStart, hostEnd - hostStart).toLower();
    QString rest = text.mid(hostEnd);
    if (!rest.startsWith(u'/'))
        rest.prepend(u'/');
    return scheme + u"://"_s + host + Encoded(rest);
}

QString WithoutFragment(const QString& address) {
    return address.section(u'#', 0, 0);
}

QString HostOf(const QString& address) {
    const qsizetype start = address.indexOf(u"://");
    if (start < 0 || !IsWebScheme(SchemeOf(address)))
        return {};
    const QString host = address.mid(start + 3, EndOfHost(address, start + 3) - start - 3);
    return host.section(u'@', -1).section(u':', 0, 0);
}

QString PathOf(const QString& address) {
    const qsizetype start = address.indexOf(u"://");
    if (start < 0)
        return {};
    const QString rest = address.mid(EndOfHost(address, start + 3));
    return rest.section(u'#', 0, 0).section(u'?', 0, 0);
}

QString FileNameOf(const QString& address) {
    return PathOf(address).section(u'/', -1);
}

QString ResolveAddress(const QString& base, const QString& reference) {
    const QString text = reference.trimmed();
    if (!SchemeOf(text).isEmpty())
        return CanonicalAddress(text);
    const QString page = WithoutFragment(base);
    const qsizetype hostStart = page.indexOf(u"://");
    if (hostStart < 0)
        return text.isEmpty() ? page : text;
    if (text.startsWith(u"//"))
        return CanonicalAddress(SchemeOf(page) + u':' + text);
    if (text.isEmpty())
        return page;
    if (text.startsWith(u'#'))
        return page + Encoded(text);
    const QString site = page.left(EndOfHost(page, hostStart + 3));
    const QString path = PathOf(page);
    if (text.startsWith(u'?'))
        return CanonicalAddress(site + path + text);
    const qsizetype pathEnd = EndOfPath(text);
    const QString folder = text.startsWith(u'/') ? QString() : path.section(u'/', 0, -2) + u'/';
    return CanonicalAddress(site + WithoutDotParts(folder + text.left(pathEnd)) + text.mid(pathEnd));
}

QString EncodeFormText(const QString& text) {
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u"\n"_s, u"\r\n"_s);
    QString encoded;
    for (const char byte : lines.toUtf8()) {
        const auto code = static_cast<unsigned char>(byte);
        const bool isPlain = std::isalnum(code) || byte == '*' || byte == '-' || byte == '.' || byte == '_';
        if (byte == ' ')
            encoded += u'+';
        else if (code < 0x80 && isPlain)
            encoded += QLatin1Char(byte);
        else
            encoded += u'%' + QString::number(code, 16).rightJustified(2, u'0').toUpper();
    }
    return encoded;
}

} // namespace qlm
