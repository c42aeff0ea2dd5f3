// SPDX-License-Identifier: MIT
#include "browser/GatherPageTest.h"
#include "browser/PageTests.h"
#include "browser/StepDispatcher.h"
#include "core/App.h"
#include "core/StopResume.h"
#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int CommentConfirmPolls = 5;
constexpr int MessageConfirmPolls = 10;

bool SameWord(const QString& text, const QString& value) {
    return text.trimmed().toLower() == value.toLower();
}

template <typename Test> bool Any(const std::vector<Element>& elements, const Test& test) {
    return std::any_of(elements.begin(), elements.end(), test);
}

bool LinkIsThere(App& app, const QString& value) {
    return Any(app.WebBrowser1().Document().Links(), [&value](const Element& link) {
        return Has(link.InnerText(), value) || Has(link.Href(), value);
    });
}

bool ImageIsThere(App& app, const QString& value) {
    const Document document = app.WebBrowser1().Document();
    auto bearsName = [&value](const Element& input) { return Has(input.Name(), value); };
    auto postsComment = [](const Element& button) { return SameWord(button.Value(), u"post a comment"_s); };
    return app.pageTests->ImageExists(value) || Any(document.GetElementsByTagName(u"input"_s), bearsName) ||
           (app.state.intComStep == 7 && Any(document.GetElementsByTagName(u"button"_s), postsComment));
}

bool ButtonIsThere(App& app, const QString& value) {
    const Document document = app.WebBrowser1().Document();
    auto asInput = [&value](const Element& input) { return SameWord(input.Value(), value); };
    auto asButton = [&value](const Element& button) {
        return SameWord(button.Value(), value) || SameWord(button.InnerText(), value);
    };
    return Any(document.GetElementsByTagName(u"input"_s), asInput) ||
           Any(document.GetElementsByTagName(u"button"_s), asButton);
}

bool IdIsThere(App& app, const QString& value) {
    if (value == u"ListOfIDs"_s)
        return IsGatherPageComplete(app);
    return !app.WebBrowser1().Document().GetElementById(value).IsNull();
}

// What strLinkType may say, and when strLinkValue is there.
struct LinkTypeRow {
    QLatin1StringView type;
    bool (*isThere)(App&, const QString& value);
};

const std::vector<LinkTypeRow>& LinkTypes() {
    static const std::vector<LinkTypeRow> rows{
        {"Text"_L1, [](App& app, const QString& value) { return app.pageTests->IsTextInPage(value); }},
        {"TextHTML"_L1,
         [](App& app, const QString& value) { return app.pageTests->IsTextInPage(value, true); }},
        {"Link"_L1, LinkIsThere},
        {"Image"_L1, ImageIsThere},
        {"Button"_L1, ButtonIsThere},
        {"ID"_L1, IdIsThere},
    };
    return rows;
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
               return app.pageTests->IsTextInPage(QString::fromUtf16(text));
           });
}

bool Awaits(const RunState& state, const QString& value) {
    return state.strLinkValue.compare(value, Qt::CaseInsensitive) == 0;
}

bool IsCompleteWithoutCaptcha(App& app) {
    return app.WebBrowser1().ReadyState() == 4 && !app.pageTests->IsCaptchaPage();
}

// The page between form and post wants a second click, once it has stood complete for a while.
bool ConfirmComment(App& app, bool found) {
    RunState& state = app.state;
    if (state.CurrentAction != u"COM"_s || state.intComStep != 8 ||
        !Awaits(state, u"your comment has been posted"_s))
        return false;
    const bool unconfirmed = !found && app.pageTests->IsTextInPage(u"click the button below to confirm"_s) &&
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
           (app.pageTests->IsAdvertiserProfile() || app.pageTests->IsTextInPage(u"view my:"_s));
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
    app.stopResume->ResumeNext();
    return false;
}

// Pages on which a text test is not the whole story. Each answers whether it counts as found after all.
using TextRider = bool (*)(App&, bool found);

const std::vector<TextRider>& TextRiders() {
    static const std::vector<TextRider> rows{ConfirmComment, AcceptAdvertiser, BeginCommentAnew,
                                             GiveMessageUp};
    return rows;
}

} // namespace

bool FindExpectedElement(App& app) {
    RunState& state = app.state;
    if (state.blnLinkFound)
        return false;
    const auto isType = [&state](const LinkTypeRow& row) { return state.strLinkType == row.type; };
    const auto type = std::find_if(LinkTypes().begin(), LinkTypes().end(), isType);
    bool found = (type != LinkTypes().end() && type->isThere(app, state.strLinkValue)) || IsFolderEmpty(app);
    if (state.strLinkType == u"Text"_s)
        for (const TextRider rider : TextRiders())
            found = rider(app, found) || found;
    if (found)
        state.blnLinkFound = true;
    return found;
}

} // namespace qlm
