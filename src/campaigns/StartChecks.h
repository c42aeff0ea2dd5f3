// SPDX-License-Identifier: MIT
#pragma once

#include <QLatin1StringView>

namespace qlm {

class App;
struct Campaign;

// One reason that a campaign may not start. The definition of a campaign holds its own, in their order.
struct StartCheck {
    bool (*fails)(App&, const Campaign&);
    const char16_t* message;   // "%1" stands for what the campaign sends
    const char* focus = "";    // "" for none
    const char16_t* tab = u""; // to show; "" leaves the tab as it is
};

// Runs the checks in their order. The first that fails is told to the user, with its tab and field shown, and
// the answer is false.
bool CampaignMayStart(App& app, const Campaign& campaign);

// Rows that campaigns share.
extern const StartCheck WaitForLogin;
extern const StartCheck WaitForShuffle;
extern const StartCheck EmptyList;

// What their rows ask.
bool IsBlank(const App& app, QLatin1StringView field);
bool AmountIsNoNumber(App& app, const Campaign& campaign);
bool AmountIsBelowOne(App& app, const Campaign& campaign);
// Whether the texts are taken from the list. What a blank field means depends on it: only a single text is
// typed on the tab.
bool IsFromList(App& app, const Campaign& campaign);
bool LacksSubject(App& app, const Campaign& campaign);
bool LacksText(App& app, const Campaign& campaign);
bool ListLacksEntries(App& app, const Campaign& campaign);
bool ListLacksSelected(App& app, const Campaign& campaign);
// A log that can't be opened counts as empty, and the run tells; one that can be and says nothing would have
// everybody contacted again without a word.
// One that isn't looked at may say what it likes.
bool LogIsIllegible(App& app, const Campaign& campaign);

} // namespace qlm
