// SPDX-License-Identifier: MIT
#include "campaigns/OpenNotes.h"

#include "core/AnsiText.h"
#include "core/FileSystem.h"
#include "core/LineSearch.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Mark = u"\t."_s;

QString PathBeside(const QString& logPath) {
    QString path = logPath;
    const qsizetype dot = logPath.lastIndexOf(u'.');
    return path.insert(dot > logPath.lastIndexOf(u'/') ? dot : logPath.size(), u".open"_s);
}

QString LineOf(const QString& id) {
    return id.trimmed() + Mark;
}

} // namespace

OpenNotes::OpenNotes(FileSystem& files, const QString& logPath)
    : m_files(files), m_path(PathBeside(logPath)) {}

bool OpenNotes::Holds(const QString& id) const {
    return m_files.FileExists(m_path) && FileHoldsLine(m_path, ToAnsi(LineOf(id)));
}

QStringList OpenNotes::All() const {
    QStringList ids;
    if (m_files.FileExists(m_path))
        for (const QString& line : m_files.ReadLines(m_path))
            if (line.endsWith(Mark))
                ids.append(line.chopped(Mark.size()));
    return ids;
}

void OpenNotes::Note(const QString& id) {
    if (!Holds(id))
        m_files.AppendLine(m_path, LineOf(id));
}

// What a power cut has torn goes with the others.
void OpenNotes::StrikeOut(const QStringList& ids) {
    if (!m_files.FileExists(m_path))
        return;
    const QStringList noted = All();
    QStringList left;
    for (const QString& id : noted)
        if (!ids.contains(id))
            left.append(LineOf(id));
    if (left.isEmpty())
        Clear();
    else if (left.size() < noted.size())
        m_files.WriteLines(m_path, left);
}

void OpenNotes::Clear() {
    m_files.DeleteFile(m_path);
}

} // namespace qlm
