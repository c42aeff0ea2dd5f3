// SPDX-License-Identifier: MIT
#pragma once

#include "content/ContentRows.h"
#include "content/ListFile.h"

namespace qlm {

class App;

// One list of prepared texts, where it stood when it was taken: an account that changes meanwhile has
// another.
class ContentList {
public:
    ContentList(App& app, ContentKind kind, const ListFile& file) : m_app(&app), m_kind(kind), m_file(file) {}

    ContentKind Kind() const { return m_kind; }
    const ListFile& File() const { return m_file; }
    QStringList Lines() const { return m_file.Lines(); }

    // What the entry screens do on Save. edited is the entry as it was, null for a new one. False when
    // nothing was saved; the user has been told why, or has chosen so.
    bool SaveEntry(const ContentFields& fields, const ContentFields* edited) const;
    // The whole status whose first line stands in a row of frmStatusesList; empty when there is none.
    QString GetCompleteStatusFromList(const QString& row) const;

private:
    bool MayBeSaved(const ContentFields& fields) const;
    bool Refuse(const QString& words) const;

    App* m_app;
    ContentKind m_kind;
    ListFile m_file;
};

// Asks whether a text may be saved although the files' code page lacks some of its letters. Asks nothing when
// it has them all.
bool MayLoseLetters(App& app, const QString& text);

} // namespace qlm
