// SPDX-License-Identifier: MIT
// Commands of the user in the page that WebBrowser1 shows.
#include "Arguments.h"
#include "CommandTable.h"
#include "Stage.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Act> void InPage(const QString& what, Act&& act) {
    try {
        act();
    } catch (const BrowserError&) {
        Fail(u"the page has no %1"_s.arg(what));
    }
}

constexpr qint64 LongestLoadMs = 60 * 1000;

// Goes on when the page is there, or when nobody would wait for it any longer.
void Browse(Stage& stage, Arguments& arguments) {
    const QString url = arguments.Take("the address");
    if (stage.Browser(BrowserName::WebBrowser1).RefusesNavigations())
        return;
    stage.TheMachine().Browse(url);
    stage.play->SetGoal({[&stage] { return !stage.Browser(BrowserName::WebBrowser1).Busy(); }, false,
                         stage.NowMs() + LongestLoadMs, true, u"the page"_s});
}

void Follow(Stage& stage, Arguments& arguments) {
    const QString text = arguments.Take("the link's text");
    InPage(u"link \"%1\""_s.arg(text), [&] { stage.TheMachine().FollowLink(text); });
}

void PageClick(Stage& stage, Arguments& arguments) {
    const QString element = arguments.Take("the element");
    InPage(element, [&] { stage.TheMachine().PageClick(element); });
}

void PageType(Stage& stage, Arguments& arguments) {
    const QString element = arguments.Take("the element");
    const QString text = arguments.Take("the text");
    InPage(element, [&] { stage.TheMachine().PageType(element, text); });
}

void StatusText(Stage& stage, Arguments& arguments) {
    stage.TheMachine().ShowStatus(arguments.Take("the text"));
    stage.ThePump().PumpMessages();
}

void RightClick(Stage& stage, Arguments&) {
    stage.TheMachine().RightClick();
    stage.ThePump().PumpMessages();
}

} // namespace

const CommandRows& ActingInPageCommands() {
    static const CommandRows rows{
        {"browse", "word", Browse},          {"follow", "word", Follow},
        {"page-click", "word", PageClick},   {"page-type", "word word", PageType},
        {"status-text", "word", StatusText}, {"right-click", "", RightClick},
    };
    return rows;
}

} // namespace qlm::scenario
