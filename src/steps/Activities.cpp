// SPDX-License-Identifier: MIT
#include "steps/Activities.h"

#include "core/App.h"

#include <algorithm>

namespace qlm {

const Activity* FindActivity(const QString& word) {
    for (const Activity& activity : Activities())
        if (word == activity.word)
            return &activity;
    return nullptr;
}

const Activity* RunningActivity(const App& app) {
    return FindActivity(app.state.CurrentAction);
}

bool IsRunning(const App& app, const ActivitySet& activities, const std::vector<qint16>& steps) {
    if (!activities.Contains(app.state.CurrentAction))
        return false;
    const Activity* activity = steps.empty() ? nullptr : RunningActivity(app);
    return steps.empty() || (activity && activity->step &&
                             std::find(steps.begin(), steps.end(), app.state.*activity->step) != steps.end());
}

QString TrailOf(const QString& word) {
    const Activity* activity = FindActivity(word);
    return activity ? QString::fromLatin1(activity->debugFile) : QString();
}

void NoteConfirmation(App& app) {
    if (const Activity* activity = RunningActivity(app); activity && activity->onConfirmed)
        activity->onConfirmed(app);
}

void TraceErrorPage(App& app, const QString& mark) {
    app.diagnostics.DebugForAction(mark + QString::number(app.state.intPageClass));
}

} // namespace qlm
