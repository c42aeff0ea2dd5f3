// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
struct InviteKind;

// Who has been invited to one group or event: one ID a line. An ID is written when its box is ticked; until
// the site has confirmed the batch a note beside the log says that the invitation may not have gone out.
class InviteLog {
public:
    // Of the group or event of that name. Makes folder and file.
    InviteLog(App& app, const InviteKind& kind, const QString& name);

    // Below ProgramFolder, as the report has it.
    const QString& Name() const { return m_name; }
    QString Path() const;
    bool Holds(const QString& id) const;
    // Both throw FileError.
    void Write(const QString& id);
    void Confirm(const QStringList& ids);

private:
    App& m_app;
    QString m_name;
};

} // namespace qlm
