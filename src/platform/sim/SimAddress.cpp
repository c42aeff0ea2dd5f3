// SPDX-License-Identifier: MIT
#include "platform/sim/SimAddress.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>
#include <cctype>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsWebScheme(const QString& scheme) {
    return scheme == u"http" || scheme == u"https" || scheme == u"ftp" || scheme == u"file";
}

QString DefaultPort(const QString& scheme) {
    return scheme == u"http"    ? u":80"_s
           : scheme == u"https" ? u":443"_s
           : scheme == u"ftp"   ? u":21"_s
                                : u""_s;
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

// Blanks around it don't count, nor do line ends and tabs anywhere; a path may be written with "\\".
QString Tidied(const QString& address) {
    qsizetype begin = 0;
    qsizetype end = address.size();
    while (begin < end && address[begin] <= u' ')
        ++begin;
    while (end > begin && address[end - 1] <= u' ')
        --end;
    QString text = address.mid(begin, end - begin);
    text.remove(u'\t').remove(u'\n').remove(u'\r');
    const QString scheme = SchemeOf(text);
    if (!scheme.isEmpty() && !IsWebScheme(scheme))
        return text;
    const qsizetype pathEnd = EndOfPath(text);
    return text.left(pathEnd).replace(u'\\', u'/') + text.mid(pathEnd);
}

QString Encoded(const QString& text, QByteArrayView also) {
    QString encoded;
    encoded.reserve(text.size());
    for (const char byte : text.toUtf8()) {
        const auto code = static_cast<unsigned char>(byte);
        if (code <= 0x20 || code >= 0x7f || also.contains(byte))
            encoded += u'%' + QString::number(code, 16).rightJustified(2, u'0').toUpper();
        else
            encoded += QLatin1Char(byte);
    }
    return encoded;
}

// In a path a letter, a digit and some signs may be written encoded; the browser shows them as they are.
QString WithPlainSigns(const QString& path) {
    static const QRegularExpression encoded(u"%([46][1-9a-f]|[57][0-9a]|3[0-9]|2[de]|5f|7e)"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    QString plain;
    qsizetype at = 0;
    for (auto found = encoded.globalMatch(path); found.hasNext();) {
        const QRegularExpressionMatch sign = found.next();
        plain += path.mid(at, sign.capturedStart() - at) + QChar(sign.captured(1).toInt(nullptr, 16));
        at = sign.capturedEnd();
    }
    return plain + path.mid(at);
}

QString EncodedFragment(const QString& fragment) {
    return Encoded(fragment, "\"<>`");
}

// A query with what follows it.
QString EncodedQuery(const QString& rest) {
    const qsizetype hash = rest.indexOf(u'#');
    if (hash < 0)
        return Encoded(rest, "\"<>'");
    return Encoded(rest.left(hash), "\"<>'") + EncodedFragment(rest.mid(hash));
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

// What stands behind the host: path, query, fragment.
QString WrittenRest(const QString& rest) {
    const qsizetype pathEnd = EndOfPath(rest);
    const QString path = WithPlainSigns(rest.left(pathEnd));
    return Encoded(WithoutDotParts(path.startsWith(u'/') ? path : u'/' + path), "\"<>`{}") +
           EncodedQuery(rest.mid(pathEnd));
}

QString WrittenHost(const QString& scheme, const QString& authority) {
    const qsizetype at = authority.lastIndexOf(u'@');
    QString host = QUrl::fromPercentEncoding(authority.mid(at + 1).toUtf8()).toLower();
    if (const QString port = DefaultPort(scheme); !port.isEmpty() && host.endsWith(port))
        host.chop(port.size());
    return authority.left(at + 1) + host;
}

// "scheme:" is followed by as many slashes as anybody likes; a file has no host.
QString WrittenAddress(const QString& scheme, const QString& behindColon) {
    if (scheme == u"file")
        return u"file://"_s + WrittenRest(behindColon.startsWith(u"//") ? behindColon.mid(2) : behindColon);
    qsizetype start = 0;
    while (start < behindColon.size() && behindColon[start] == u'/')
        ++start;
    const qsizetype end = EndOfHost(behindColon, start);
    return scheme + u"://"_s + WrittenHost(scheme, behindColon.mid(start, end - start)) +
           WrittenRest(behindColon.mid(end));
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
    const QString text = Tidied(address);
    const QString scheme = SchemeOf(text);
    const QString behindColon = text.mid(scheme.size() + 1);
    // "host:8080/page" is a host with a port and no scheme.
    const bool isPort = !behindColon.isEmpty() && behindColon[0].isDigit();
    if (scheme.isEmpty() || isPort)
        return text.isEmpty() ? text : WrittenAddress(u"http"_s, text);
    if (scheme == u"about")
        return text.toLower();
    return IsWebScheme(scheme) ? WrittenAddress(scheme, behindColon) : text;
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
    QString text = Tidied(reference);
    const QString page = WithoutFragment(base);
    const qsizetype hostStart = page.indexOf(u"://");
    const QString ownScheme = hostStart < 0 ? QString() : SchemeOf(page);
    if (const QString scheme = SchemeOf(text); !scheme.isEmpty()) {
        const QString behindColon = text.mid(scheme.size() + 1);
        if (!IsWebScheme(scheme))
            return text;
        // "http:page" is relative on a page of the same scheme.
        if (scheme != ownScheme || behindColon.startsWith(u"//"))
            return WrittenAddress(scheme, behindColon);
        text = behindColon;
    }
    if (hostStart < 0)
        return text.isEmpty() ? page : text;
    if (text.startsWith(u"//"))
        return WrittenAddress(ownScheme, text);
    if (text.isEmpty())
        return page;
    if (text.startsWith(u'#'))
        return page + EncodedFragment(text);
    const QString site = page.left(EndOfHost(page, hostStart + 3));
    const QString path = PathOf(page);
    if (text.startsWith(u'?'))
        return site + path + EncodedQuery(text);
    const QString folder = text.startsWith(u'/') ? QString() : path.section(u'/', 0, -2) + u'/';
    return site + WrittenRest(folder + text);
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
