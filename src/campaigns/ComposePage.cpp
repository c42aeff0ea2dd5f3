// SPDX-License-Identifier: MIT
#include "campaigns/ComposePage.h"

#include <optional>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString SpanId = u"spanbtnSend"_s;
#define COMPOSE u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_"

struct ComposeFields {
    QString subject;
    std::vector<QString> bodies;
};

// By name, one row a design.
const std::vector<ComposeFields>& Designs() {
    static const std::vector<ComposeFields> rows{
        {u"Subject"_s, {u"Mailbody"_s}},
        {u"ctl00_ctl00_Main_Main_sendMessageControl_subjectTextBox"_s,
         {u"ctl00_ctl00_Main_Main_sendMessageControl_bodyTextBox"_s}},
        {u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$subjectTextBox"_s,
         {u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$bodyTextBox"_s}},
        {u"ctl00$ctl00$Main$messagingMain$SendMessage$subjectTextBox"_s,
         {u"ctl00$ctl00$Main$messagingMain$SendMessage$bodyTextBox"_s}},
        {u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$subjectTextBox"_s,
         {u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$bodyTextBox"_s}},
        {COMPOSE u"txtSubject"_s, {COMPOSE u"ctl00"_s, COMPOSE u"ctl01"_s}},
    };
    return rows;
}

const std::vector<QString>& EditorFrames() {
    static const std::vector<QString> rows{COMPOSE u"ctl00_f"_s, COMPOSE u"ctl01_f"_s};
    return rows;
}
#undef COMPOSE

const QString EditorsSubject = u"cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject"_s;

// The editor that can show its source is named after the page's last text area.
std::optional<QString> EditorOf(const Document& page) {
    page.Foresee({{}, {{ElementSet::ByTag, u"textarea"_s, ElementText::Name}}, false});
    const std::vector<Element> areas = page.GetElementsByTagName(u"textarea"_s);
    return areas.empty() ? std::nullopt : std::optional(areas.back().Name());
}

std::vector<Writing> IntoFields(const SubjectAndBody& text) {
    using enum Writing::Kind;
    std::vector<Writing> writings;
    for (const ComposeFields& design : Designs()) {
        writings.push_back({ElementSet::ByName, design.subject, Value, text.subject});
        for (const QString& body : design.bodies)
            writings.push_back({ElementSet::ByName, body, Value, text.body});
    }
    for (const QString& frame : EditorFrames())
        writings.push_back({ElementSet::Named, frame, FrameMarkup, text.body});
    return writings;
}

// What the press opens may take the page a moment.
void TypeSource(const Document& page, const QString& editor, const QString& text) {
    page.Write(
        {{ElementSet::ById, editor + u"_editsourcearea"_s, Writing::Kind::InnerText, ForRichEditor(text)}});
}

} // namespace

void TypeIntoEditor(const Document& page, const QString& text) {
    const std::optional<QString> editor = EditorOf(page);
    if (!editor)
        return;
    page.Write({{ElementSet::ById, *editor + u"_editsource"_s, Writing::Kind::PressInside}});
    TypeSource(page, *editor, text);
}

void TypeMessage(const Document& page, const SubjectAndBody& text, bool newLayout) {
    using enum Writing::Kind;
    std::vector<Writing> writings = IntoFields(text);
    const std::optional<QString> editor = newLayout ? EditorOf(page) : std::nullopt;
    if (newLayout)
        writings.push_back({ElementSet::ById, EditorsSubject, Value, text.subject});
    if (editor)
        writings.push_back({ElementSet::ById, *editor + u"_editsource"_s, PressInside});
    page.Write(writings);
    if (editor)
        TypeSource(page, *editor, text.body);
}

SendButton FindSendButton(const Document& page) {
    for (const Element& input : page.GetElementsByTagName(u"input"_s)) {
        const QString caption = input.Value().toLower();
        if (caption == u"-send-" || caption == u"send")
            return {input, false};
    }
    const Element span = page.GetElementById(SpanId);
    return {span, !span.IsNull()};
}

void PressWokenSpan(const Document& page) {
    const Element button = page.GetElementById(u"butbtnSend"_s);
    if (button && button.GetAttribute(u"disabled"_s).isEmpty())
        page.GetElementById(SpanId).Click();
}

} // namespace qlm
