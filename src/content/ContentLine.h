// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

enum class ContentKind { Message, Comment, Bulletin, Status };

// What an entry of a content list holds. Messages and bulletins have a subject; comments an alternative for
// profiles that refuse HTML.
struct ContentFields {
    QString subject;
    QString text;
    bool usesNonHTML = false;
    QString nonHTML;
};

// One entry is one line; marker words hold its fields apart and are found in any letter case. They are not
// escaped: a text that holds one breaks its line.

inline const QString MessageMarker = QStringLiteral("&Message=");
inline const QString BulletinMarker = QStringLiteral("&Bulletin=");
inline const QString UseNonHTMLMarker = QStringLiteral("&usenonhtml=");
inline const QString NonHTMLMarker = QStringLiteral("&nonhtmlcomment=");
inline const QString SelectedMarker = QStringLiteral("&Selected=");
inline const QString SelectedFlag = QStringLiteral("&Selected=1");

// Where the first such marker begins, or -1.
qsizetype FindMarker(const QString& text, const QString& marker);

// A field as it stands in the file. Of a message a lone line feed stays, which splits its line.
QString EscapeField(ContentKind kind, const QString& text);
QString UnescapeLine(const QString& line);

// Throw when the marker is missing: the cut would be at no place.
QString TextBefore(const QString& text, const QString& marker);
QString TextBehind(const QString& text, const QString& marker);

// From the selected marker on; the flag of a line that has none is set.
QString FlagTextOf(const QString& line);
// The line without that.
QString WithoutFlag(const QString& line);

QString LineOf(ContentKind kind, const ContentFields& fields, const QString& flagText);
// The fields of a line as GetNext... gives it, escapes undone. Throws on a line that lacks a marker.
ContentFields FieldsOf(ContentKind kind, const QString& line);

} // namespace qlm
