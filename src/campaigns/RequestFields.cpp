// SPDX-License-Identifier: MIT
#include "campaigns/RequestFields.h"

#include "browser/PageSigns.h"
#include "campaigns/SentLog.h"
#include "campaigns/TargetName.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString UpdatesTick = u"ctl00_ctl00_ctl00_cpMain_cpMain_cpfMainBody_EditFullName_subscribeActivities"_s;
const QString NewNote = u"extraText"_s;
const QString OldNotes[] = {
    u"ctl00$cpMain$NoteToFriend$Note"_s,
    u"ctl00_ctl00_ctl00_cpMain_cpMain_cpfMainBody_NoteToFriend_Note"_s,
};

bool IsRequestButton(const Element& input) {
    const QString value = input.Value().toLower();
    const QString text = input.InnerText();
    return value == u"add to friends"_s || value == u"addtofriends"_s ||
           text.toLower() == u"add to friends"_s || text.contains(u"Friend"_s);
}

} // namespace

void RequestFields::EnterNote() {
    m_app.diagnostics.Trap("EnterNote", [this] {
        const Document document = m_app.WebBrowser1().Document();
        const QString note = ReplaceTargetName(m_app, m_app.controls.Text("txtFRNote"_L1),
                                               document.BodyHTML(), u"Friend Request"_s);
        auto enter = [&document, &note](const QString& name) {
            for (const Element& field : document.GetElementsByName(name))
                field.SetValue(note);
        };
        if (IsNewerPage(m_app)) {
            enter(NewNote);
            return;
        }
        for (const QString& name : OldNotes) {
            enter(name);
            if (const Element field = document.GetElementById(name))
                field.SetValue(note);
        }
    });
}

void RequestFields::Apply(QLatin1StringView option) {
    const Element tick = m_app.WebBrowser1().Document().GetElementById(UpdatesTick);
    if (tick && !tick.GetAttribute(u"checked"_s).isEmpty() != m_app.controls.Ticked(option))
        tick.Click();
}

void RequestFields::ApplyFriendUpdatesOption() {
    m_app.diagnostics.Trap("ApplyFriendUpdatesOption", [this] { Apply("chkFRAddToUpdates"_L1); });
}

void RequestFields::ApplyFullNameOption() {
    m_app.diagnostics.Trap("ApplyFullNameOption", [this] { Apply("chkFRFullName"_L1); });
}

void RequestFields::ApplyCategory() {
    if (!m_app.controls.Ticked("chkFRAddToCategory"_L1))
        return;
    m_app.diagnostics.Trap("ApplyCategory", [this] {
        const RunState& state = m_app.state;
        const qint32 target = state.lngTargetNumber;
        auto isStillAt = [&] {
            return state.CurrentAction == ActivityWord::FriendRequests &&
                   state.intFRStep == FriendStep::Submit && state.lngTargetNumber == target;
        };
        m_app.SetStatus(u"Waiting for categories to load on page..."_s);
        m_app.Get<PageSigns>().ClickLink(u"OuterHTML"_s, u"ShowHideCatsLnk"_s);
        m_app.waiting.WaitFor(u"the categories on the page"_s, [&] {
            return isStillAt() && !m_app.Get<PageSigns>().IsTextInPage(u"catNameColumn"_s, true);
        });
        if (!isStillAt())
            return;
        const QString mark = m_app.controls.Text("cboFRCategories"_L1) + u" ("_s;
        for (const Element& input : m_app.WebBrowser1().Document().GetElementsByTagName(u"input"_s))
            if (input.Read(ElementText::Type) == u"checkbox"_s &&
                Has(input.ParentElement().InnerHTML(), mark))
                input.Click();
    });
}

bool RequestFields::ClickRequestButton() {
    bool clicked = false;
    m_app.diagnostics.Trap("ClickRequestButton", [&] {
        for (const Element& input : m_app.WebBrowser1().Document().GetElementsByTagName(u"input"_s)) {
            if (!IsRequestButton(input))
                continue;
            m_app.state.intFRStep = FriendStep::AfterSend;
            RunningLog(m_app).WriteLogEntry();
            input.Click();
            clicked = true;
            return;
        }
    });
    return clicked;
}

} // namespace qlm
