// SPDX-License-Identifier: MIT
#pragma once

#include "Command.h"

#include <functional>
#include <list>
#include <optional>

namespace qlm::scenario {

class Stage;

// Thrown out of the program from wherever it stands: its process has ended (kill, a power cut, the end of the
// script). No std::exception, so that no trap of the program takes it for an error.
struct ProcessEnds {};

// What a "run" or "wait" waits for.
struct Goal {
    std::function<bool()> holds;
    // True only between two messages, never in the middle of a step.
    bool onlyAtRest = false;
    qint64 limitMs = 0;
    bool limitIsSuccess = false; // a plain wait
    QString what;
};

// Walks a script. The program runs inside the commands: a click calls its handlers, and those may open a
// modal form or wait. The script then goes on from inside that form or wait, so one script position serves
// all levels; a level returns to the program when the next "run" or "wait" asks for it.
class Play {
public:
    Play(Stage& stage, const std::vector<Command>& script);

    // Runs the script to its end; nothing, or what failed.
    std::optional<ScenarioFailure> Run();

    // For commands.
    // A command that was put off is not waited for.
    void SetGoal(Goal goal);
    void AddBlock(const Command& command);
    void StopAt(const QString& text) { m_stopAt = text; }
    // The command is carried out when that time has come, wherever the program stands then.
    void PutOff(qint64 delayMs, const Command& command);
    // The commands run next, before what follows in the script.
    void Insert(const std::vector<Command>& commands);
    // Ends the program's process without any unloading and goes on with the script.
    void Kill();
    bool InsideAProgramCall() const { return m_level > 0; }
    // Commands of the script so far, and turns of the program's message loop.
    qint64 Commands() const { return m_commands; }
    qint64 Turns() const { return m_turns; }
    const Command* Current() const { return m_current; }

    // For what the program calls.
    void OnPump();
    void OnDebugLine(const QString& text);
    // Plays the form's block. A modal form without one is a failure; true when a block was there.
    bool OnForm(const QString& form, bool modal);
    // The message loop of a modal form: plays on until the form has been closed.
    void OnModalLoop(const std::function<bool()>& closed);

    // What was prepared and never used.
    QString Unused() const;

    bool trace = false;

private:
    struct Frame {
        const std::vector<Command>* commands;
        size_t next = 0;
        std::optional<Goal> goalBefore; // a form interrupted this run
    };
    struct Block {
        QString form;
        const Command* command;
        bool used = false;
    };
    struct PutOffCommand {
        qint64 dueMs;
        Command command;
    };
    enum class Level { Base, Modal, Wait };

    void PlayOn(Level level, const std::function<bool()>& leave);
    bool ReachGoal(const std::function<bool()>& leave);
    void TurnLoop(const Goal& goal);
    bool GoalHolds(bool atRest);
    bool ExecuteNext();
    void Execute(const Command& command);
    std::list<PutOffCommand>::iterator NextPutOff();
    bool IsPutOffDue();
    void PlayPutOff();
    void ProcessHasEnded();
    void TurnWidgets();
    void PopFinishedFrames();
    void CheckStuck();

    Stage& m_stage;
    std::vector<Frame> m_frames;
    std::list<std::vector<Command>> m_inserted; // frames point into it
    std::vector<Block> m_blocks;
    std::list<PutOffCommand> m_putOff;
    std::list<PutOffCommand> m_carriedOut; // m_current points into it
    const Command* m_offScript = nullptr;  // the one of them that runs
    std::optional<Goal> m_goal;
    QString m_stopAt;
    const Command* m_current = nullptr;
    int m_level = 0;
    qint64 m_commands = 0;
    qint64 m_turns = 0;
    bool m_ownTurn = false;
    bool m_scriptIsOver = false;
    qint64 m_commandStartMs = 0;
    qint64 m_lastTurnMs = -1;
    qint64 m_turnsWithoutTime = 0;
};

} // namespace qlm::scenario
