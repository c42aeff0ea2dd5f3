// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/ActivitySet.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/Activities.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int RepeatedPageLimit = 10;

bool AwaitsApproveButton(App& app) {
    return app.state.strLinkValue == u"spanapprovebottom"_s;
}

// The list that approving has emptied looks like the one before.
bool PassEmptyList(App& app) {
    if (!ShownPage(app).Shows(u"You have no requests"))
        return false;
    app.state.blnLinkFound = true;
    app.state.blnForceAdvance = true;
    return true;
}

bool CountRepeatedPage(App& app) {
    RunState& state = app.state;
    ++state.intGatherRetryTicks;
    if (!Has(state.strGatherStartURL, u"page/1001"_s) || state.intGatherRetryTicks < RepeatedPageLimit)
        return false;
    app.Get<StopResume>().StopAll(StopReason::PagesRepeat);
    if (!app.Get<StopResume>().DoFinishedExit())
        app.ShowMessage(u"MySpace only displays the first 1000 pages, "
                        "after which the same ID's just repeat page after page.\n\n"
                        "The gathering process has been stopped."_s);
    return false;
}

bool TellOfLastPage(App& app) {
    app.diagnostics.DebugForAction(u"STILL LAST PAGE - "_s + app.state.strLastPageText + u", "_s +
                                   QString::number(app.state.intPageClass));
    return false;
}

struct LastPageRow {
    ActivitySet activities;
    std::vector<qint16> steps; // none: all steps
    bool (*sign)(App&);        // nullptr: nothing more is asked
    bool (*act)(App&);         // answers whether the element counts as found
};

const std::vector<LastPageRow>& LastPageRules() {
    using namespace ActivityWord;
    static const std::vector<LastPageRow> rows{
        {Accepting, {AcceptStep::OpenList, AcceptStep::Approve}, AwaitsApproveButton, PassEmptyList},
        {Comments, {CommentStep::Confirm}, StepDispatcher::IsCommentFormBack, StepDispatcher::LeaveComment},
        {Gathering, {GatherStep::ScanPage}, nullptr, CountRepeatedPage},
        {{Comments, FriendRequests}, {}, nullptr, TellOfLastPage},
    };
    return rows;
}

} // namespace

Verdict JudgeLastPage(App& app) {
    RunState& state = app.state;
    state.blnLastPageTextSeen =
        app.Get<PageSigns>().IsTextInPage(state.strLastPageText, state.blnLastPageAsHTML);
    state.blnLastPageHrefSeen =
        app.Get<PageSigns>().HrefLoaded(state.strLastPageHref, state.blnLastPageAsHTML);
    if (!state.blnLastPageTextSeen && !state.blnLastPageHrefSeen)
        return std::nullopt;
    for (const LastPageRow& row : LastPageRules())
        if (IsRunning(app, row.activities, row.steps) && (!row.sign || row.sign(app)))
            return row.act(app);
    return false;
}

} // namespace qlm
