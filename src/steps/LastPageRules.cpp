// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/StepDispatcher.h"
#include "steps/StopResume.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int RepeatedPageLimit = 10;

bool AwaitsApproveButton(App& app) {
    const RunState& state = app.state;
    return state.CurrentAction == u"ACC"_s && (state.intAccStep == 2 || state.intAccStep == 3) &&
           state.strLinkValue == u"spanapprovebottom"_s;
}

// The list that approving has emptied looks like the one before.
bool PassEmptyList(App& app) {
    if (!app.Get<PageSigns>().IsTextInPage(u"You have no requests"_s))
        return false;
    app.state.blnLinkFound = true;
    app.state.blnForceAdvance = true;
    return true;
}

bool IsThrownBackToForm(App& app) {
    return app.state.CurrentAction == u"COM"_s && app.state.intComStep == 11 &&
           StepDispatcher::IsCommentFormBack(app);
}

bool BeginCommentAnew(App& app) {
    app.diagnostics.DebugForAction(u"GONE BACK - "_s + app.WebBrowser1().Document().BodyText());
    app.state.intComStep = 4;
    app.state.blnLinkFound = true;
    return true;
}

bool IsTurningListPages(App& app) {
    return app.state.CurrentAction == u"SCANNING"_s && app.state.intGatherStep == 3;
}

bool CountRepeatedPage(App& app) {
    RunState& state = app.state;
    ++state.intGatherRetryTicks;
    if (!Has(state.strGatherStartURL, u"page/1001"_s) || state.intGatherRetryTicks < RepeatedPageLimit)
        return false;
    app.Get<StopResume>().StopAll(u"LF2"_s);
    if (!app.Get<StopResume>().DoFinishedExit())
        app.ShowMessage(
            u"MySpace only displays the first 1000 pages, after which the same ID's just repeat page "
            "after page.\n\nThe gathering process has been stopped."_s);
    return false;
}

bool TellsOfLastPage(App& app) {
    return app.state.CurrentAction == u"COM"_s || app.state.CurrentAction == u"FR"_s;
}

bool TellOfLastPage(App& app) {
    app.diagnostics.DebugForAction(u"STILL LAST PAGE - "_s + app.state.strLastPageText + u", "_s +
                                   QString::number(app.state.intPageClass));
    return false;
}

struct LastPageRow {
    bool (*applies)(App&);
    bool (*act)(App&); // answers whether the element counts as found
};

const std::vector<LastPageRow>& LastPageRules() {
    static const std::vector<LastPageRow> rows{
        {AwaitsApproveButton, PassEmptyList},
        {IsThrownBackToForm, BeginCommentAnew},
        {IsTurningListPages, CountRepeatedPage},
        {TellsOfLastPage, TellOfLastPage},
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
        if (row.applies(app))
            return row.act(app);
    return false;
}

} // namespace qlm
