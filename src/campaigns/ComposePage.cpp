// SPDX-License-Identifier: MIT
#include "campaigns/ComposePage.h"

#include "core/Diagnostics.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString SpanId = u"spanbtnSend"_s;
#define COMPOSE u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_"

struct ComposeFields {
    const char16_t* subject;
    std::vector<const char16_t*> bodies;
};

// By name, one row a design.
const std::vector<ComposeFields>& Designs() {
    static const std::vector<ComposeFields> rows{
        {u"Subject", {u"Mailbody"}},
        {u"ctl00_ctl00_Main_Main_sendMessageControl_subjectTextBox",
         {u"ctl00_ctl00_Main_Main_sendMessageControl_bodyTextBox"}},
        {u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$subjectTextBox",
         {u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$bodyTextBox"}},
        {u"ctl00$ctl00$Main$messagingMain$SendMessage$subjectTextBox",
         {u"ctl00$ctl00$Main$messagingMain$SendMessage$bodyTextBox"}},
        {u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$subjectTextBox",
         {u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$bodyTextBox"}},
        {COMPOSE u"txtSubject", {COMPOSE u"ctl00", COMPOSE u"ctl01"}},
    };
    return rows;
}

const std::vector<const char16_t*>& EditorFrames() {
    static const std::vector<const char16_t*> rows{COMPOSE u"ctl00_f", COMPOSE u"ctl01_f"};
    return rows;
}
#undef COMPOSE

void SetValues(const Document& page, const char16_t* name, const QString& text) {
    for (const Element& field : page.GetElementsByName(QString::fromUtf16(name)))
        field.SetValue(text);
}

} // namespace

void TypeIntoEditor(const Document& page, const QString& text) {
    const std::vector<Element> areas = page.GetElementsByTagName(u"textarea"_s);
    if (areas.empty())
        return;
    const QString editor = areas.back().Name();
    if (const Element view = page.GetElementById(editor + u"_editsource"_s))
        if (const std::vector<Element> children = view.Tags(u"*"_s); !children.empty())
            children.front().Click();
    if (const Element source = page.GetElementById(editor + u"_editsourcearea"_s))
        source.SetInnerText(ForRichEditor(text));
}

void TypeMessage(const Document& page, const SubjectAndBody& text, bool newLayout) {
    for (const ComposeFields& design : Designs()) {
        SetValues(page, design.subject, text.subject);
        for (const char16_t* body : design.bodies)
            SetValues(page, body, text.body);
    }
    for (const char16_t* name : EditorFrames())
        Diagnostics::IgnoreErrors([&] {
            if (const Document frame = page.FrameDocument(QString::fromUtf16(name)))
                frame.Body().SetInnerHTML(text.body);
        });
    if (!newLayout)
        return;
    if (const Element subject =
            page.GetElementById(u"cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject"_s))
        subject.SetValue(text.subject);
    TypeIntoEditor(page, text.body);
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
