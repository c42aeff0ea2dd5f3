// SPDX-License-Identifier: MIT
#include "platform/sim/SimNoScript.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// What is no markup inside: a comment, or an element of text.
const QRegularExpression& NextPart() {
    static const QRegularExpression part(
        u"<!--|<(/head|noscript|script|style|textarea|title|xmp|iframe|noembed|noframes|plaintext)(?=[\\s/>])"_s,
        QRegularExpression::CaseInsensitiveOption);
    return part;
}

// The end tag's place, or the page's end.
qsizetype EndOf(const QString& html, const QString& tag, qsizetype from) {
    const qsizetype end = html.indexOf(u"</"_s + tag, from, Qt::CaseInsensitive);
    return end < 0 ? html.size() : end;
}

} // namespace

QString WithNoScriptAsText(const QString& html) {
    if (!html.contains(u"<noscript"_s, Qt::CaseInsensitive))
        return html;
    QString written;
    qsizetype at = 0;
    // In a head the one element stays in it, behind the head the other begins the body.
    QString standIn = u"noframes"_s;
    for (;;) {
        const QRegularExpressionMatch part = NextPart().match(html, at);
        if (!part.hasMatch())
            return written + html.mid(at);
        const QString tag = part.captured(1).toLower();
        qsizetype end = part.capturedEnd();
        if (tag.isEmpty())
            end = html.indexOf(u"-->"_s, end) < 0 ? html.size() : html.indexOf(u"-->"_s, end);
        else if (tag == u"/head")
            standIn = u"noembed"_s;
        else
            end = EndOf(html, tag, end);
        if (tag != u"noscript") {
            written += html.mid(at, end - at);
        } else {
            written += html.mid(at, part.capturedStart() - at) + u'<' + standIn + u' ' +
                       QString::fromLatin1(NoScriptMark) +
                       html.mid(part.capturedEnd(), end - part.capturedEnd());
            const bool isClosed = end < html.size();
            written += isClosed ? u"</"_s + standIn : QString();
            end += isClosed ? 2 + tag.size() : 0;
        }
        at = end;
    }
}

} // namespace qlm
