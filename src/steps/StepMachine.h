// SPDX-License-Identifier: MIT
#pragma once

#include "core/App.h"

#include <QByteArray>
#include <vector>

namespace qlm {

// What a step leaves behind: a page or a timer is awaited, or the next step runs at once.
enum class Next { Wait, Again };

// The machine of one activity. Owner holds the steps.
template <typename Owner> struct StepMachine {
    struct State {
        qint16 step;
        Next (Owner::*run)();
    };
    QLatin1StringView word; // it runs while this is CurrentAction
    qint16 RunState::*step;
    const char* procedure;               // the name of the step routine in the error log
    void (Owner::*begin)();              // before each step: silence, cleared marks
    std::vector<State> states;           // a step that has none waits
    QString (Owner::*errorData)() const; // what an error's report says beside the error; nullptr for nothing
};

// Runs the steps from the present one until one waits. An earlier entry that still waits below ends there.
// Answers the text of an error that ended it, as long as the run is still its own.
template <typename Owner> QString RunSteps(App& app, Owner& owner, const StepMachine<Owner>& machine) {
    const Waiting::Entry entry(app.waiting);
    const auto isRunning = [&] { return app.state.CurrentAction == machine.word; };
    const auto runStep = [&] {
        if (!isRunning())
            return Next::Wait;
        (owner.*machine.begin)();
        const qint16 step = app.state.*machine.step;
        for (const auto& state : machine.states)
            if (state.step == step && isRunning())
                return (owner.*state.run)();
        return Next::Wait;
    };
    const auto runSteps = [&] {
        while (runStep() == Next::Again)
            app.waiting.LeaveIfObsolete();
    };
    const auto data = [&] { return machine.errorData ? (owner.*machine.errorData)() : QString(); };
    QString error;
    Waiting::LeaveHere([&] { error = app.diagnostics.Trap(machine.procedure, runSteps, data); });
    return entry.IsCurrent() && isRunning() ? error : QString();
}

} // namespace qlm
