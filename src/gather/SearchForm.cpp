// SPDX-License-Identifier: MIT
#include "core/App.h"
#include "gather/WebSearch.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Form = u"frmGoogleSearch"_s;
constexpr auto Term = "frmGoogleSearch.txtGoogleTerm"_L1;
constexpr auto Button = "frmGoogleSearch.cmdOK"_L1;
constexpr auto InProgress = "frmGoogleSearch.lblInProgress"_L1;
constexpr auto FullGathering = "frmGoogleSearch.lblFullGatheringID"_L1;
const QString Section = u"Field Entries"_s;
const QString Key = u"txtGoogleTerm"_s;
const QString Search = u"Search"_s;
const QString Stop = u"Stop"_s;

} // namespace

void WebSearch::RegisterForm() {
    m_app.commands.Add(u"frmGoogleSearch.cmdOK_Click"_s, "cmdOK_Click", [this] { cmdOK_Click(); });
    m_app.commands.Add(u"frmGoogleSearch_QueryUnload"_s, [this] { UserCloses(); });
}

bool WebSearch::AskForTerm() {
    // The window of a search that has been given up for this one goes first.
    m_app.platform.Dialogs().CloseForm(Form);
    m_searchPressed = false;
    m_app.controls.SetText(Term, m_app.platform.Settings().GetSetting(Section, Key, {}));
    m_app.controls.SetText(Button, Search);
    m_app.controls.SetEnabled(Term, true);
    m_app.controls.SetVisible(InProgress, false);
    m_app.controls.SetVisible(FullGathering, false);
    m_app.platform.Dialogs().ShowModal(Form);
    m_app.platform.Settings().SaveSetting(Section, Key, m_app.controls.Text(Term));
    return m_searchPressed;
}

// The same window again, beside the work now.
void WebSearch::ShowProgress() {
    m_app.controls.SetText(Button, Stop);
    m_app.controls.SetEnabled(Term, false);
    m_app.controls.SetText(FullGathering, u"Full-Gathering ID's..."_s);
    m_app.controls.SetVisible(InProgress, true);
    m_app.controls.SetVisible(FullGathering, m_app.controls.Ticked("optFullGather"_L1));
    m_app.platform.Dialogs().ShowForm(Form);
}

void WebSearch::cmdOK_Click() {
    const QString caption = m_app.controls.Text(Button);
    if (caption == Stop) {
        m_app.controls.SetText(Button, u"Finishing..."_s);
        m_app.state.blnStopGoogle = true;
    } else if (caption == Search && m_app.controls.Text(Term).trimmed().isEmpty()) {
        m_app.ShowMessage(u"Please specify a Google search term"_s);
        m_app.controls.SetFocus(Term);
    } else if (caption == Search) {
        m_searchPressed = true;
        m_app.platform.Dialogs().CloseForm(Form);
    }
}

// The cross of a window that asks gives the search up; of one that shows the progress it is its Stop.
void WebSearch::UserCloses() {
    if (m_app.controls.Text(Button) == Search)
        m_app.platform.Dialogs().CloseForm(Form);
    else
        cmdOK_Click();
}

} // namespace qlm
