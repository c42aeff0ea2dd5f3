// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QString>
#include <functional>
#include <optional>

namespace qlm {

class App;
struct RunState;

// The page class of the site's error page, which comes although the request has gone out.
inline constexpr qint16 ErrorRedirectClass = 32;

// What a stage of the check answers: nothing when it doesn't apply, else the result of the whole check.
using Verdict = std::optional<bool>;

// The judge of every page: is the element there that the step expects, and if not, what page is this and what
// helps? One cascade of stages; the first that acts ends it.
class StepDispatcher {
public:
    explicit StepDispatcher(App& app) : m_app(app) {}

    // Changes step variables and may resume, skip, stop or log in. Its own errors are ignored: the next tick
    // tries again. Throws RunEnded when the run or the target is another one after one of its waits.
    bool CheckLinkFound();

    // Signs in to the site again with the account in use, on the page now shown. Set by the login.
    std::function<void()> logInAgain;

    // Whether a list of people stands in the browser that needs no more waiting for. Set by the gathering.
    std::function<bool()> listStands;
    // Presses the second button of a comment. Set by the machine that sends them.
    std::function<void()> confirmComment;

    // The comment form that had been sent already stands on the page again: the post has failed.
    static bool IsCommentFormBack(App& app);
    // Leaves its target; the commenter's next step knows that it is done with.
    static bool LeaveComment(App& app);
    // Gives the current target of the friend requester up: after-send step, message left out.
    static void GiveUpRequest(App& app, bool skipCurrentID);

private:
    bool RunStages();
    Verdict ErrorPage();

    App& m_app;
};

// Does the previous page still stand in the browser? Then nothing on it counts, but for what the rules of
// some steps say.
Verdict JudgeLastPage(App& app);

// Session losses, detours and interstitials by the markers of their pages, in order; the first row that
// applies acts.
Verdict TakeDetour(App& app, bool captchaPage);

// What a check will ask of the page besides text and markup.
Foresight WhatACheckAsks(const RunState& state);

// Is strLinkValue there, as strLinkType says? Once a wait: a find sets blnLinkFound.
bool FindExpectedElement(App& app);

} // namespace qlm
