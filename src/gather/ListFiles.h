// SPDX-License-Identifier: MIT
#pragma once

#include "core/App.h"

#include <QScopeGuard>
#include <functional>

namespace qlm {

// What the work list and the black list share: reading a list from a file the user chooses.

// For the file dialogs.
QString TextFilesFilter();
// The question whether duplicates are to be looked for: Yes, No or Cancel.
Dialogs::Answer AskForDuplicates(App& app);
// Gives each ID of the file, trimmed; blank lines are left out, and lines that are longer than any ID. The
// message loop turns every few hundred lines.
void ForEachId(App& app, const QString& path, const std::function<void(const QString& id)>& visit);

// The pointer of a long piece of work, until the end of the block.
[[nodiscard]] inline auto ShowWaitPointer(App& app) {
    app.controls.SetPointer(PointerShape::Busy);
    return qScopeGuard([&app] { app.controls.SetPointer(PointerShape::Usual); });
}

} // namespace qlm
