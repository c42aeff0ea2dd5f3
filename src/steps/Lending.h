// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunState.h"

#include <optional>

namespace qlm {

class App;
class ReportStream;
struct Activity;

// A bulletin or status update that falls due takes the browser from a campaign that runs, and gives it back:
// the lender finds what it waited for, and its page. A delay of the lender lasts at least until then.
class Lending {
public:
    enum class Page { Kept, GivenUp };

    explicit Lending(App& app) : m_app(app) {}

    // Nothing runs, or a campaign that lends the browser, or one that waits for its next post.
    bool MayTake() const;
    bool IsLent() const { return m_loan.has_value(); }
    // borrower becomes the running activity, with nothing expected yet. A page that is kept is loaded again
    // at the return; within a delay and between two targets there is none: it belongs to a target that is
    // done with, and a page that asks by being opened would ask again. So would the page of a target whose
    // confirmation has come.
    void Take(QLatin1StringView borrower, Page page);
    // Makes the lender the running activity again. False when nothing was lent; then nothing is done.
    bool GiveBack();
    // The lender's run is over.
    void Forget();

private:
    struct Loan {
        const Activity* lender;
        Expectation expectation;
        ReportStream* report;
        bool asksForCaptcha;
        bool isInDelay;
        bool isParked; // its step goes on at the return
        bool isDone;   // with its page
        bool isHeld;
        bool linkTimer;
        bool watchdog;
    };
    void Lend(const Activity& lender, Page page);

    App& m_app;
    std::optional<Loan> m_loan;
};

} // namespace qlm
