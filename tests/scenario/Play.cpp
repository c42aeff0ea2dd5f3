// SPDX-License-Identifier: MIT
#include "Play.h"
#include "Arguments.h"
#include "CommandTable.h"
#include "Stage.h"

#include <algorithm>
#include <cstdio>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {
// A command other than "run" has to come back within this much virtual time.
constexpr qint64 LongestCommandMs = 2 * 60 * 60 * 1000;
constexpr qint64 MostTurnsWithoutTime = 1'000'000;
} // namespace

Play::Play(Stage& stage, const std::vector<Command>& script) : m_stage(stage) {
    m_frames.push_back({&script, 0, {}});
}

std::optional<ScenarioFailure> Play::Run() {
    while (!m_scriptIsOver) {
        try {
            PlayOn(Level::Base, [] { return false; });
            m_scriptIsOver = true;
        } catch (const ProcessEnds&) {
            ProcessHasEnded();
        } catch (const SimPowerCut&) {
            ProcessHasEnded();
        } catch (ScenarioFailure& failure) {
            if (m_current && failure.file.isEmpty()) {
                failure.file = m_current->file;
                failure.line = m_current->line;
            }
            return failure;
        } catch (const std::exception& error) {
            return ScenarioFailure{u"an exception has left the program: "_s + QString::fromUtf8(error.what()),
                                   m_current ? m_current->file : QString(), m_current ? m_current->line : 0};
        }
    }
    if (const QString unused = Unused(); !unused.isEmpty())
        return ScenarioFailure{unused, m_current ? m_current->file : QString(),
                               m_current ? m_current->line : 0};
    return {};
}

void Play::ProcessHasEnded() {
    m_level = 0;
    m_ownTurn = false;
    m_offScript = nullptr;
    m_goal.reset();
    m_stage.DropProgram();
}

void Play::Insert(const std::vector<Command>& commands) {
    m_inserted.push_back(commands);
    m_frames.push_back({&m_inserted.back(), 0, {}});
}

void Play::SetGoal(Goal goal) {
    if (!m_offScript || m_current != m_offScript)
        m_goal = std::move(goal);
}

void Play::PutOff(qint64 delayMs, const Command& command) {
    m_putOff.push_back({m_stage.NowMs() + delayMs, command});
}

void Play::AddBlock(const Command& command) {
    m_blocks.push_back({command.words.value(1), &command});
}

QString Play::Unused() const {
    for (const Block& block : m_blocks)
        if (!block.used)
            return u"the block \"on %1\" of line %2 was never used"_s.arg(block.form)
                .arg(block.command->line);
    if (!m_putOff.empty())
        return u"\"%1\" of line %2 never came due"_s.arg(m_putOff.front().command.source)
            .arg(m_putOff.front().command.line);
    return m_stage.UnusedAnswers();
}

void Play::Kill() {
    if (InsideAProgramCall())
        throw ProcessEnds();
    m_goal.reset();
    m_stage.DropProgram();
}

void Play::PlayOn(Level level, const std::function<bool()>& leave) {
    for (;;) {
        PopFinishedFrames();
        if (m_goal && level != Level::Wait && !ReachGoal(leave))
            return;
        if (leave())
            return;
        if (m_goal)
            return; // a wait of the program goes on
        if (!ExecuteNext()) {
            if (level == Level::Base)
                return;
            m_scriptIsOver = true;
            throw ProcessEnds();
        }
    }
}

// The message loop. False when the level is over before the goal is reached; the level below goes on with the
// goal.
bool Play::ReachGoal(const std::function<bool()>& leave) {
    while (m_goal && (IsPutOffDue() || !GoalHolds(true))) {
        if (leave())
            return false;
        TurnLoop(*m_goal);
    }
    m_goal.reset();
    return true;
}

void Play::TurnLoop(const Goal& goal) {
    Pump& pump = m_stage.ThePump();
    qint64 longestMs = std::min(m_stage.TheMachine().LongestSleepMs(), goal.limitMs - m_stage.NowMs());
    if (const auto next = NextPutOff(); next != m_putOff.end())
        longestMs = std::min(longestMs, next->dueMs - m_stage.NowMs());
    const qint64 dueMs = pump.Queue().NextDueMs().value_or(pump.NowMs() + longestMs);
    const qint64 sleepMs = std::min(dueMs - pump.NowMs(), longestMs);
    if (sleepMs > 0)
        pump.Sleep(static_cast<int>(sleepMs));
    m_ownTurn = true;
    pump.PumpMessages();
    m_ownTurn = false;
    TurnWidgets();
}

// Windows that closed themselves are destroyed here, when none of their handlers can be running.
void Play::TurnWidgets() {
    if (m_level == 0)
        m_stage.DestroyClosedWindows();
}

bool Play::GoalHolds(bool atRest) {
    if ((atRest || !m_goal->onlyAtRest) && m_goal->holds && m_goal->holds())
        return true;
    if (m_stage.NowMs() < m_goal->limitMs)
        return false;
    if (m_goal->limitIsSuccess)
        return true;
    throw ScenarioFailure{u"waited in vain for %1; %2"_s.arg(m_goal->what, m_stage.Describe()), {}, 0};
}

void Play::OnPump() {
    ++m_turns;
    m_stage.KeepZone();
    const bool isOwnTurn = std::exchange(m_ownTurn, false);
    PlayPutOff();
    if (isOwnTurn)
        return;
    CheckStuck();
    if (!m_goal || !GoalHolds(false))
        return;
    m_goal.reset();
    ++m_level;
    PlayOn(Level::Wait, [] { return false; });
    --m_level;
}

std::list<Play::PutOffCommand>::iterator Play::NextPutOff() {
    return std::ranges::min_element(m_putOff, {}, &PutOffCommand::dueMs);
}

bool Play::IsPutOffDue() {
    const auto next = NextPutOff();
    return next != m_putOff.end() && next->dueMs <= m_stage.NowMs();
}

// As the user's own doing in the program's turn: what it brings up may let the script go on inside.
void Play::PlayPutOff() {
    while (IsPutOffDue()) {
        const auto next = NextPutOff();
        m_carriedOut.splice(m_carriedOut.end(), m_putOff, next);
        const Command* const before = m_current;
        const Command* const offScriptBefore = std::exchange(m_offScript, &next->command);
        ++m_level;
        Execute(next->command);
        --m_level;
        m_offScript = offScriptBefore;
        m_current = before;
    }
}

void Play::OnDebugLine(const QString& text) {
    if (m_stopAt.isEmpty() || !text.contains(m_stopAt))
        return;
    m_stopAt.clear();
    m_goal.reset();
    for (Frame& frame : m_frames)
        frame.goalBefore.reset();
    ++m_level;
    PlayOn(Level::Wait, [] { return false; });
    --m_level;
}

bool Play::OnForm(const QString& form, bool modal) {
    for (Block& block : m_blocks) {
        if (block.used || block.form != form)
            continue;
        block.used = true;
        const size_t depth = m_frames.size();
        m_frames.push_back({&block.command->block, 0, std::exchange(m_goal, std::nullopt)});
        ++m_level;
        PlayOn(Level::Wait, [this, depth] { return m_frames.size() <= depth; });
        --m_level;
        return true;
    }
    if (modal)
        throw ScenarioFailure{
            u"the modal form %1 came up and no \"on %1\" block is left for it"_s.arg(form), {}, 0};
    return false;
}

void Play::OnModalLoop(const std::function<bool()>& closed) {
    ++m_level;
    PlayOn(Level::Modal, closed);
    --m_level;
}

bool Play::ExecuteNext() {
    Frame& frame = m_frames.back();
    if (frame.next == frame.commands->size())
        return false;
    Execute((*frame.commands)[frame.next++]);
    return true;
}

// A block that is played through gives the interrupted run back.
void Play::PopFinishedFrames() {
    while (m_frames.size() > 1 && m_frames.back().next == m_frames.back().commands->size()) {
        if (!m_goal)
            m_goal = std::move(m_frames.back().goalBefore);
        m_frames.pop_back();
    }
}

void Play::Execute(const Command& command) {
    m_current = &command;
    ++m_commands;
    m_commandStartMs = m_stage.NowMs();
    if (trace)
        std::fprintf(stderr, "%10.3f  %s:%d  %s\n", static_cast<double>(m_commandStartMs) / 1000.0,
                     qPrintable(command.file), command.line, qPrintable(command.source));
    Arguments arguments(command, [this](const QString& text) { return m_stage.Expand(text); });
    RunCommand(m_stage, arguments);
    TurnWidgets();
}

// A program that turns for ever is told apart from one that works by the clock, and by the lack of one.
void Play::CheckStuck() {
    const qint64 now = m_stage.NowMs();
    m_turnsWithoutTime = now == m_lastTurnMs ? m_turnsWithoutTime + 1 : 0;
    m_lastTurnMs = now;
    if (m_turnsWithoutTime > MostTurnsWithoutTime)
        throw ScenarioFailure{u"the program turns without letting time pass; "_s + m_stage.Describe(), {}, 0};
    if (!m_goal && now - m_commandStartMs > LongestCommandMs)
        throw ScenarioFailure{
            u"the program did not come back to its message loop; "_s + m_stage.Describe(), {}, 0};
}

} // namespace qlm::scenario
