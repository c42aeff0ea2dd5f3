// SPDX-License-Identifier: MIT
#include "content/ContentLine.h"

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString LineBreak = u"\r\n"_s;
const QString LineBreakWord = u"%nl%"_s;
const QString SemicolonWord = u"%cln%"_s;
// The comment in front of its flag is looked for without the "=".
const QString CommentEnd = u"&usenonhtml"_s;

qsizetype Need(const QString& text, const QString& marker) {
    const qsizetype place = FindMarker(text, marker);
    if (place < 0)
        throw std::invalid_argument("Invalid procedure call or argument");
    return place;
}

ContentFields CommentOf(const QString& line) {
    ContentFields fields;
    fields.text = TextBefore(line, CommentEnd);
    fields.usesNonHTML = TextBehind(line, UseNonHTMLMarker).startsWith(u'1');
    if (fields.usesNonHTML)
        fields.nonHTML = TextBefore(TextBehind(line, NonHTMLMarker), u"&Selected"_s);
    return fields;
}

} // namespace

// Every marker begins with a "&", which is found sooner than letters of either case.
qsizetype FindMarker(const QString& text, const QString& marker) {
    for (qsizetype at = text.indexOf(u'&'); at >= 0; at = text.indexOf(u'&', at + 1))
        if (QStringView(text).sliced(at).startsWith(marker, Qt::CaseInsensitive))
            return at;
    return -1;
}

QString EscapeField(ContentKind kind, const QString& text) {
    QString escaped = text;
    escaped.replace(LineBreak, LineBreakWord).replace(u';', SemicolonWord);
    if (kind != ContentKind::Message)
        escaped.replace(u'\n', LineBreakWord);
    return escaped;
}

QString UnescapeLine(const QString& line) {
    QString text = line;
    return text.replace(LineBreakWord, LineBreak).replace(SemicolonWord, u";"_s);
}

QString TextBefore(const QString& text, const QString& marker) {
    return text.left(Need(text, marker));
}

QString TextBehind(const QString& text, const QString& marker) {
    return text.mid(Need(text, marker) + marker.size());
}

QString FlagTextOf(const QString& line) {
    const qsizetype place = FindMarker(line, SelectedMarker);
    return place < 0 ? SelectedFlag : line.mid(place);
}

QString WithoutFlag(const QString& line) {
    return line.left(FindMarker(line, SelectedMarker));
}

QString LineOf(ContentKind kind, const ContentFields& fields, const QString& flagText) {
    const QString text = EscapeField(kind, fields.text);
    switch (kind) {
    case ContentKind::Message:
        return EscapeField(kind, fields.subject) + MessageMarker + text + flagText;
    case ContentKind::Bulletin:
        return EscapeField(kind, fields.subject) + BulletinMarker + text + flagText;
    case ContentKind::Comment:
        return text + UseNonHTMLMarker + (fields.usesNonHTML ? u'1' : u'0') + NonHTMLMarker +
               EscapeField(kind, fields.nonHTML) + flagText;
    case ContentKind::Status:
        break;
    }
    return text + flagText;
}

ContentFields FieldsOf(ContentKind kind, const QString& line) {
    ContentFields fields;
    switch (kind) {
    case ContentKind::Message:
    case ContentKind::Bulletin: {
        const QString& marker = kind == ContentKind::Message ? MessageMarker : BulletinMarker;
        fields.subject = TextBefore(line, marker);
        fields.text = TextBefore(TextBehind(line, marker), SelectedMarker);
        break;
    }
    case ContentKind::Comment:
        return CommentOf(line);
    case ContentKind::Status:
        fields.text = TextBefore(line, SelectedMarker);
        break;
    }
    return fields;
}

} // namespace qlm
