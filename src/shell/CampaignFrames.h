// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>
#include <initializer_list>

class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QVBoxLayout;

namespace qlm {

class Commands;

// The frames that the panels of the campaigns share, built for the controls of one of them.

// What the placeholder of a text that goes to somebody does.
QLabel* NewNameNote();

// How many, and what that counts for.
QGroupBox* NewLimitFrame(QLatin1StringView limit, QLatin1StringView period);

struct CounterNames {
    QLatin1StringView sent;
    QLatin1StringView today;
    QLatin1StringView failed = {}; // empty where the campaign doesn't count them
    QLatin1StringView skipped = {};
};
QLayout* NewCounters(const CounterNames& names);

// How often, with which minutes between, and what belongs to that.
struct TimingNames {
    QLatin1StringView amount;
    QLatin1StringView from;
    QLatin1StringView to;
    std::initializer_list<QLatin1StringView> boxes;
};
QGroupBox* NewTimingFrame(const TimingNames& names);

// Start and stop; without a stop of its own the window's serves.
QHBoxLayout* NewRunRow(const Commands& commands, QLatin1StringView start, QLatin1StringView stop = {});
// The run band of a campaign that posts by the clock: start, stop, what has been posted, and when the next is
// due.
struct TimedRunNames {
    QLatin1StringView start;
    QLatin1StringView stop = {};
    QLatin1StringView sent;
    QLatin1StringView busy;
    QLatin1StringView due;
};
QVBoxLayout* NewTimedRunBand(const Commands& commands, const TimedRunNames& names);

// The run band of a campaign: start, stop and counters.
QVBoxLayout* NewRunBand(const Commands& commands, QLatin1StringView start, QLatin1StringView stop,
                        const CounterNames& counters);

// A text, and below it the line that shows how it reads to somebody.
QVBoxLayout* NewReadText(QLatin1StringView text, int leastLines, QLatin1StringView reads);

// An option, and small buttons for what it chooses.
QLayout* NewChoiceRow(const Commands& commands, QLatin1StringView choice,
                      std::initializer_list<QLatin1StringView> tools);

// What goes out: the text that is written here, or entries of a list.
struct ContentNames {
    QLatin1StringView single;
    QLatin1StringView fromList;
    QLatin1StringView list;
    QLatin1StringView subject; // empty where there is none
    QLatin1StringView body;
    QLatin1StringView subjectReads = {}; // how they read to somebody; empty where they go to nobody
    QLatin1StringView bodyReads = {};
    QLatin1StringView bodyCount = {}; // how many characters are left; empty where any number goes
    std::initializer_list<QLatin1StringView> singleTools = {}; // small buttons for the text
    std::initializer_list<QLatin1StringView> listTools = {};   // and for the list
};
QGroupBox* NewContentFrame(const Commands& commands, const ContentNames& names);

} // namespace qlm
