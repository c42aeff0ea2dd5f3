// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/ActivitySet.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/Activities.h"
#include "steps/FullListRules.h"
#include "steps/StepDispatcher.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int CommentConfirmPolls = 5;
constexpr int MessageConfirmPolls = 10;

using Questions = std::vector<Question>;
using enum Question::Match;

Question InLinks(ElementText which, const QString& value) {
    return {ElementSet::Links, {}, which, Contains, value.toLower()};
}

Question InTags(const QString& tag, ElementText which, Question::Match match, const QString& value) {
    return {ElementSet::ByTag, tag, which, match, value.toLower()};
}

Questions AboutLink(const RunState&, const QString& value) {
    return {InLinks(ElementText::InnerText, value), InLinks(ElementText::Href, value)};
}

Questions AboutImage(const RunState& state, const QString& value) {
    Questions questions = PageSigns::ImageQuestions(value);
    questions.push_back(InTags(u"input"_s, ElementText::Name, Contains, value));
    if (state.intComStep == CommentStep::Submit)
        questions.push_back(InTags(u"button"_s, ElementText::Value, EqualsTrimmed, u"post a comment"_s));
    return questions;
}

Questions AboutButton(const RunState&, const QString& value) {
    return {InTags(u"input"_s, ElementText::Value, EqualsTrimmed, value),
            InTags(u"button"_s, ElementText::Value, EqualsTrimmed, value),
            InTags(u"button"_s, ElementText::InnerText, EqualsTrimmed, value)};
}

Questions AboutNothing(const RunState&, const QString&) {
    return {};
}

bool IsAnyTrue(App& app, const Questions& questions) {
    const Document document = app.WebBrowser1().Document();
    return std::any_of(questions.begin(), questions.end(),
                       [&](const Question& question) { return document.Any(question); });
}

bool IsInText(App& app, const QString& value) {
    return app.Get<PageSigns>().IsTextInPage(value);
}

bool IsInMarkup(App& app, const QString& value) {
    return app.Get<PageSigns>().IsTextInPage(value, true);
}

bool IsNothingElse(App&, const QString&) {
    return false;
}

bool IdIsThere(App& app, const QString& value) {
    if (value == u"ListOfIDs"_s)
        return IsGatherPageComplete(app) || app.Get<StepDispatcher>().listStands();
    return !app.WebBrowser1().Document().GetElementById(value).IsNull();
}

// What strLinkType may say, and when strLinkValue is there: when one of the questions is answered with yes,
// or when the test holds.
struct LinkTypeRow {
    QLatin1StringView type;
    Questions (*questions)(const RunState&, const QString& value);
    bool (*isThere)(App&, const QString& value);
};

const std::vector<LinkTypeRow>& LinkTypes() {
    static const std::vector<LinkTypeRow> rows{
        {"Text"_L1, AboutNothing, IsInText},       {"TextHTML"_L1, AboutNothing, IsInMarkup},
        {"Link"_L1, AboutLink, IsNothingElse},     {"Image"_L1, AboutImage, IsNothingElse},
        {"Button"_L1, AboutButton, IsNothingElse}, {"ID"_L1, AboutNothing, IdIsThere},
    };
    return rows;
}

Questions AboutExpectation(const RunState& state) {
    for (const LinkTypeRow& row : LinkTypes())
        if (state.strLinkType == row.type)
            return row.questions(state, state.strLinkValue);
    return {};
}

bool IsCompleteWithoutCaptcha(App& app) {
    return ShownPage(app).IsComplete() && !app.Get<PageSigns>().IsCaptchaPage();
}

bool IsRequestSent(App& app) {
    return app.Get<PageSigns>().IsRequestSentPage();
}

bool IsRequestSentOrCaptcha(App& app) {
    return IsRequestSent(app) || app.Get<PageSigns>().IsCaptchaPage();
}

// A page that has taken the comment and says no more; the pages before it still have their button.
bool IsTakenForApproval(App& app) {
    const ShownPage page(app);
    return page.IsComplete() && !page.Shows(u"click the button below to confirm") &&
           !StepDispatcher::IsCommentFormBack(app) &&
           !IsAnyTrue(app, AboutButton(app.state, u"post a comment"_s));
}

// What counts as found in place of the awaited element.
struct StandInRow {
    ActivitySet activities;
    std::vector<qint16> steps; // none: all steps
    const char16_t* awaited;   // "" for whatever is waited for
    PageKinds kinds;           // the page is one of these; none: any page
    bool (*sign)(App&);        // and this holds; nullptr: nothing more is asked
};

const std::vector<StandInRow>& StandIns() {
    using namespace ActivityWord;
    using enum In;
    // Nothing to do on such a folder.
    static const PageKinds EmptyFolder{{{Text, u"there are 0 messages in this folder"}},
                                       {{Text, u"there are 0 requests in this folder"}},
                                       {{Text, u"You have no requests"}}};
    static const std::vector<StandInRow> rows{
        {{Accepting, DeletingPending}, {}, u"", EmptyFolder, nullptr},
        // A request page that is opened once more after a refused answer may send without its button, or ask
        // with another one.
        {FriendRequests, {FriendStep::Submit}, u"addFrdBtn", {}, IsRequestSentOrCaptcha},
        // The site may post without a page in between.
        {Comments, {CommentStep::Confirm}, u"", Says(u"your comment has been posted!"), nullptr},
        {Comments,
         {CommentStep::Confirm, CommentStep::AfterSend},
         u"",
         Says(u"this user requires all comments to be approved"),
         IsTakenForApproval},
    };
    return rows;
}

bool IsAwaited(const App& app, const char16_t* awaited) {
    return !awaited[0] ||
           app.state.strLinkValue.compare(QString::fromUtf16(awaited), Qt::CaseInsensitive) == 0;
}

bool HasStandIn(App& app) {
    const ShownPage page(app);
    return std::any_of(StandIns().begin(), StandIns().end(), [&](const StandInRow& row) {
        return IsRunning(app, row.activities, row.steps) && IsAwaited(app, row.awaited) &&
               page.IsOneOf(row.kinds) && (!row.sign || row.sign(app));
    });
}

// The page between form and post wants a second click, once it has stood complete for a while.
bool ConfirmComment(App& app, bool found) {
    RunState& state = app.state;
    const bool unconfirmed =
        !found && ShownPage(app).Shows(u"click the button below to confirm") && IsCompleteWithoutCaptcha(app);
    state.intConfirmPolls = unconfirmed ? static_cast<qint16>(state.intConfirmPolls + 1) : qint16(0);
    if (state.intConfirmPolls < CommentConfirmPolls)
        return false;
    state.intConfirmPolls = 0;
    if (const auto& confirm = app.Get<StepDispatcher>().confirmComment)
        confirm();
    return false;
}

// An advertiser's profile has no such line.
bool AcceptAdvertiser(App& app, bool found) {
    return !found && (app.Get<PageSigns>().IsAdvertiserProfile() || ShownPage(app).Shows(u"view my:"));
}

bool LeaveComment(App& app, bool found) {
    return !found && StepDispatcher::IsCommentFormBack(app) && StepDispatcher::LeaveComment(app);
}

// A message that the site doesn't confirm on one complete page after another counts as failed.
bool GiveMessageUp(App& app, bool found) {
    RunState& state = app.state;
    if (found || !IsCompleteWithoutCaptcha(app))
        return false;
    if (++state.intConfirmPolls < MessageConfirmPolls)
        return false;
    state.intConfirmPolls = 0;
    state.blnSkipCurrentID = true;
    app.Get<StopResume>().ResumeNext();
    return false;
}

// Pages on which a text test is not the whole story.
struct TextRiderRow {
    ActivitySet activities;
    std::vector<qint16> steps;           // none: all steps
    const char16_t* awaited;             // "" for whatever is waited for
    bool (*judge)(App& app, bool found); // answers whether it counts as found after all
};

const std::vector<TextRiderRow>& TextRiders() {
    using namespace ActivityWord;
    static const std::vector<TextRiderRow> rows{
        {Comments, {CommentStep::AfterSend}, u"your comment has been posted", ConfirmComment},
        {ActivitySet::Any(), {}, u"last login:", AcceptAdvertiser},
        {Comments, {CommentStep::AfterSend}, u"", LeaveComment},
        {Messages, {MessageStep::AfterSend}, u"your message has been sent", GiveMessageUp},
    };
    return rows;
}

bool AskTextRiders(App& app, bool found) {
    for (const TextRiderRow& row : TextRiders())
        if (IsRunning(app, row.activities, row.steps) && IsAwaited(app, row.awaited))
            found = row.judge(app, found) || found;
    return found;
}

// The step that logs it comes 400 ms later, and Stop, Skip or the end of the process may come before.
bool IsRequestConfirmed(App& app) {
    return IsRunning(app, ActivityWord::FriendRequests, {FriendStep::Submit}) && IsRequestSent(app);
}

} // namespace

// On a list page that is whatever the recognition of profile links asks of each link.
Foresight WhatACheckAsks(const RunState& state) {
    Foresight ahead;
    ahead.questions = AboutExpectation(state);
    if (!state.strLastPageHref.isEmpty())
        ahead.questions.push_back(PageSigns::HrefQuestion(state.strLastPageHref, state.blnLastPageAsHTML));
    if (state.strLinkType != u"ID"_s || state.strLinkValue != u"ListOfIDs"_s)
        return ahead;
    ahead.tree = true;
    for (const auto which : {ElementText::Href, ElementText::HostName, ElementText::InnerText})
        ahead.readings.push_back({ElementSet::Links, {}, which});
    for (const int level : {1, 2})
        ahead.readings.push_back({ElementSet::Links, {}, ElementText::InnerText, level});
    return ahead;
}

bool FindExpectedElement(App& app) {
    RunState& state = app.state;
    if (state.blnLinkFound)
        return false;
    const auto isType = [&state](const LinkTypeRow& row) { return state.strLinkType == row.type; };
    const auto type = std::find_if(LinkTypes().begin(), LinkTypes().end(), isType);
    bool found = IsAnyTrue(app, AboutExpectation(state)) ||
                 (type != LinkTypes().end() && type->isThere(app, state.strLinkValue)) || HasStandIn(app);
    if (state.strLinkType == u"Text"_s)
        found = AskTextRiders(app, found);
    if (!found)
        return false;
    state.blnLinkFound = true;
    if (IsRequestConfirmed(app))
        NoteConfirmation(app);
    return true;
}

} // namespace qlm
