// SPDX-License-Identifier: MIT
#pragma once

#include "RunningProgram.h"
#include "SiteProcess.h"

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
    // Presses Start and returns when the gather goes; it goes on in whatever waits next.
    void Start(const char* kind = "optQuickGather");
    // How long it took until nothing was going on; -1 when it never came to that.
    qint64 Stop();

    // The gathered list.
    QStringList List() const;
    // Since the last time.
    ShownPeople TakeShown();
    App& Program() { return m_program->app; }

    static constexpr int GenerousLimitMs = 40 * 1000;

private:
    void Act(std::function<void()> act);
    bool IsIdle() const { return m_program->app.state.CurrentAction.isEmpty(); }

public:
    SiteProcess site;

private:
    UsedProgram m_folders{site.Port()};
    std::optional<RunningProgram> m_program;
};

} // namespace qlm
