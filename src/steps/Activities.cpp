// SPDX-License-Identifier: MIT
#include "steps/Activities.h"

#include "core/App.h"

namespace qlm {

const Activity* FindActivity(const QString& word) {
    for (const Activity& activity : Activities())
        if (word == activity.word)
            return &activity;
    return nullptr;
}

QString TrailOf(const QString& word) {
    const Activity* activity = FindActivity(word);
    return activity ? QString::fromLatin1(activity->debugFile) : QString();
}

void NoteConfirmation(App& app) {
    if (const Activity* activity = FindActivity(app.state.CurrentAction); activity && activity->onConfirmed)
        activity->onConfirmed(app);
}

void TraceErrorPage(App& app, const QString& mark) {
    app.diagnostics.DebugForAction(mark + QString::number(app.state.intPageClass));
}

} // namespace qlm
