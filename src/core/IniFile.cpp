// SPDX-License-Identifier: MIT
#include "core/IniFile.h"

#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Where a key stands, or where it would be added.
struct Place {
    qsizetype line = -1;
    qsizetype endOfSection =
        -1; // the line after the section's last one that isn't blank; -1 without the section
};

bool IsSection(const QString& line, const QString& section) {
    const QString text = line.trimmed();
    return text.startsWith(u'[') && text.endsWith(u']') &&
           text.mid(1, text.size() - 2).trimmed().compare(section, Qt::CaseInsensitive) == 0;
}

Place Find(const QStringList& lines, const QString& section, const QString& key) {
    Place place;
    bool inside = false;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString text = lines[i].trimmed();
        if (text.startsWith(u'[')) {
            // Of two sections of one name the first counts.
            inside = place.endOfSection < 0 && IsSection(text, section);
            if (inside)
                place.endOfSection = i + 1;
            continue;
        }
        if (!inside || text.isEmpty() || text.startsWith(u';'))
            continue;
        place.endOfSection = i + 1;
        const qsizetype equals = text.indexOf(u'=');
        if (place.line < 0 && equals > 0 &&
            text.left(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0)
            place.line = i;
    }
    return place;
}

QString WithoutQuotes(const QString& value) {
    for (const QChar quote : {QChar(u'"'), QChar(u'\'')})
        if (value.size() >= 2 && value.front() == quote && value.back() == quote)
            return value.mid(1, value.size() - 2);
    return value;
}

} // namespace

QString clsINI::ReadIni(const QString& section, const QString& key) const {
    if (!m_app.files.FileExists(INIFile))
        return {};
    const QStringList lines = m_app.files.ReadLines(INIFile);
    const Place place = Find(lines, section, key);
    if (place.line < 0)
        return {};
    const QString& line = lines[place.line];
    return WithoutQuotes(line.mid(line.indexOf(u'=') + 1).trimmed());
}

void clsINI::WriteIni(const QString& section, const QString& key, const QString& value) const {
    QStringList lines = m_app.files.FileExists(INIFile) ? m_app.files.ReadLines(INIFile) : QStringList();
    const Place place = Find(lines, section, key);
    const QString line = key + u'=' + value;
    if (place.line >= 0)
        lines[place.line] = line;
    else if (place.endOfSection >= 0)
        lines.insert(place.endOfSection, line);
    else
        lines << u'[' + section + u']' << line;
    m_app.files.WriteLines(INIFile, lines);
}

} // namespace qlm
