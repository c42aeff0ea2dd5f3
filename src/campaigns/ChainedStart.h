// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;
struct Campaign;

// What a click on the button of a campaign means where accounts are chained.
enum class ChainedStart {
    Alone,  // nothing
    GoesOn, // the account has just been logged in for it
    Begins  // the campaign begins with the first account, when that has been logged in; or nobody is chosen
};

// goesOn: an account has been switched to before the checks. byClock: nobody is there to be asked.
ChainedStart StartInChain(App& app, const Campaign& campaign, bool goesOn, bool byClock);

// The next account of a chain has been logged in: it goes on with the campaign of the one before it, in its
// own gathered list where it keeps one.
void GoOnInChain(App& app);

// The chain's next account may not start the campaign, which has been told.
void EndRefusedChain(App& app);

} // namespace qlm
