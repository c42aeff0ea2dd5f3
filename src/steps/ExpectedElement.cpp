// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/Activities.h"
#include "steps/FullListRules.h"
#include "steps/StepDispatcher.h"
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
    if (state.intComStep == 7)
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

bool IsNothingElse(App&, const QString&) {
    return false;
}

const std::vector<LinkTypeRow>& LinkTypes() {
    static const std::vector<LinkTypeRow> rows{
        {"Text"_L1, AboutNothing,
         [](App& app, const QString& value) { return app.Get<PageSigns>().IsTextInPage(value); }},
        {"TextHTML"_L1, AboutNothing,
         [](App& app, const QString& value) { return app.Get<PageSigns>().IsTextInPage(value, true); }},
        {"Link"_L1, AboutLink, IsNothingElse},
        {"Image"_L1, AboutImage, IsNothingElse},
        {"Button"_L1, AboutButton, IsNothingElse},
        {"ID"_L1, AboutNothing, IdIsThere},
    };
    return rows;
}

Questions AboutExpectation(const RunState& state) {
    for (const LinkTypeRow& row : LinkTypes())
        if (state.strLinkType == row.type)
            return row.questions(state, state.strLinkValue);
    return {};
}

// Nothing to do on such a folder, whatever is waited for there.
const std::vector<const char16_t*>& EmptyFolderTexts() {
    static const std::vector<const char16_t*> rows{
        u"there are 0 messages in this folder",
        u"there are 0 requests in this folder",
        u"You have no requests",
    };
    return rows;
}

bool IsFolderEmpty(App& app) {
    return (app.state.CurrentAction == u"ACC"_s || app.state.CurrentAction == u"DEL PEN"_s) &&
           std::any_of(EmptyFolderTexts().begin(), EmptyFolderTexts().end(), [&app](const char16_t* text) {
               return app.Get<PageSigns>().IsTextInPage(QString::fromUtf16(text));
           });
}

bool Awaits(const RunState& state, const QString& value) {
    return state.strLinkValue.compare(value, Qt::CaseInsensitive) == 0;
}

bool IsCompleteWithoutCaptcha(App& app) {
    return app.WebBrowser1().ReadyState() == 4 && !app.Get<PageSigns>().IsCaptchaPage();
}

// The page between form and post wants a second click, once it has stood complete for a while.
bool ConfirmComment(App& app, bool found) {
    RunState& state = app.state;
    if (state.CurrentAction != u"COM"_s || state.intComStep != 8 ||
        !Awaits(state, u"your comment has been posted"_s))
        return false;
    const bool unconfirmed = !found &&
                             app.Get<PageSigns>().IsTextInPage(u"click the button below to confirm"_s) &&
                             IsCompleteWithoutCaptcha(app);
    state.intConfirmPolls = unconfirmed ? static_cast<qint16>(state.intConfirmPolls + 1) : qint16(0);
    if (state.intConfirmPolls < CommentConfirmPolls)
        return false;
    state.intConfirmPolls = 0;
    app.commands.Run(u"ConfirmComment"_s);
    return false;
}

// An advertiser's profile has no such line.
bool AcceptAdvertiser(App& app, bool found) {
    return !found && Awaits(app.state, u"last login:"_s) &&
           (app.Get<PageSigns>().IsAdvertiserProfile() || app.Get<PageSigns>().IsTextInPage(u"view my:"_s));
}

bool BeginCommentAnew(App& app, bool found) {
    RunState& state = app.state;
    if (found || state.CurrentAction != u"COM"_s || state.intComStep != 8 ||
        !StepDispatcher::IsCommentFormBack(app))
        return false;
    state.intComStep = 4;
    return true;
}

// A message that the site doesn't confirm on one complete page after another counts as failed.
bool GiveMessageUp(App& app, bool found) {
    RunState& state = app.state;
    if (found || state.CurrentAction != u"MSG"_s || state.intMsgStep != 8 ||
        !Awaits(state, u"your message has been sent"_s) || !IsCompleteWithoutCaptcha(app))
        return false;
    if (++state.intConfirmPolls < MessageConfirmPolls)
        return false;
    state.intConfirmPolls = 0;
    state.blnSkipCurrentID = true;
    app.Get<StopResume>().ResumeNext();
    return false;
}

// Pages on which a text test is not the whole story. Each answers whether it counts as found after all.
using TextRider = bool (*)(App&, bool found);

const std::vector<TextRider>& TextRiders() {
    static const std::vector<TextRider> rows{ConfirmComment, AcceptAdvertiser, BeginCommentAnew,
                                             GiveMessageUp};
    return rows;
}

// A request page that is opened once more behind a refused answer may send without its button, or ask with
// another one.
bool AsksOrSendsWithoutButton(App& app) {
    return app.state.CurrentAction == u"FR"_s && app.state.intFRStep == 8 &&
           Awaits(app.state, u"addFrdBtn"_s) &&
           (app.Get<PageSigns>().IsRequestSentPage() || app.Get<PageSigns>().IsCaptchaPage());
}

// The step that logs it comes 400 ms later, and Stop, Skip or the end of the process may come before.
bool IsRequestConfirmed(App& app) {
    return app.state.CurrentAction == u"FR"_s && app.state.intFRStep == 8 &&
           app.Get<PageSigns>().IsRequestSentPage();
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
                 (type != LinkTypes().end() && type->isThere(app, state.strLinkValue)) ||
                 IsFolderEmpty(app) || AsksOrSendsWithoutButton(app);
    if (state.strLinkType == u"Text"_s)
        for (const TextRider rider : TextRiders())
            found = rider(app, found) || found;
    if (!found)
        return false;
    state.blnLinkFound = true;
    if (IsRequestConfirmed(app))
        NoteConfirmation(app);
    return true;
}

} // namespace qlm
