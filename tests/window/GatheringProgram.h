// SPDX-License-Identifier: MIT
#pragma once

#include "RunningProgram.h"
#include "SiteProcess.h"

#include <functional>

namespace qlm {

// Who stood on the lists of the pages that the site has delivered, in their order.
struct ShownPeople {
    QStringList byNumber;
    QStringList byName; // without a number that could be read there

    // What a gather has to bring in: everybody once, without the founder. "Quick" leaves out whoever is known
    // by name alone.
    QStringList Quick() const;
    QStringList Full() const;
};

// A program that somebody is signed in at and that gathers one list after another, several tests long. Its
// waits are shortened by a faster clock; the engine and the site take their time. Made and gone through
// outside of the application's own loop.
class GatheringProgram {
public:
    static constexpr int UsualClockRate = 8;

    explicit GatheringProgram(int clockRate = UsualClockRate);
    ~GatheringProgram();

    // Empties the list, opens the page and waits for it.
    void Open(const QString& url);
    // Presses Start on the open page with "Quick" or "Full" Gather chosen and waits until the gather has come
    // to its own end. False when that took too long; then it has been stopped.
    bool Gather(const char* kind = "optQuickGather", int limitMs = GenerousLimitMs);
    // The same, but Stop is pressed as soon as it is timely, which is asked every few milliseconds. The
    // milliseconds until nothing was going on any more; -1 when the gather had ended before.
    qint64 GatherAndStop(const char* kind, const std::function<bool()>& isTimely);
    // Timely is here: so long after the moment at which the site's journal has got that many new lines.
    qint64 GatherAndStop(const char* kind, int journalLines, int afterMs);
    // Sets an option or a field of the filter window while nothing goes on.
    void Tick(QLatin1StringView option);
    void Fill(QLatin1StringView field, const QString& text);

    // The gathered list.
    QStringList List() const;
    // Since the last time.
    ShownPeople TakeShown();
    App& Program() { return m_program->app; }

    static constexpr int GenerousLimitMs = 40 * 1000;

    // As the user's own acts: from the program's queue, never in the middle of a call into a page.
    void Act(std::function<void()> act);

private:
    void PressStart(const char* kind);
    bool IsIdle() const { return m_program->app.state.CurrentAction.isEmpty(); }

public:
    SiteProcess site;

private:
    UsedProgram m_folders{site.Port()};
    std::optional<RunningProgram> m_program;
};

} // namespace qlm
