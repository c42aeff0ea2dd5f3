// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The gather mode that asks a public web search engine for profile pages that hold the user's words, and
// takes the IDs from the markup of the result pages; and its window, frmGoogleSearch. The result pages are
// fetched outside the browser.
class WebSearch {
public:
    explicit WebSearch(App& app);

    // Asks for the term, searches, and ends the gathering that has been begun for it.
    void Run();
    void ExtractGoogleProfiles(const QString& term);
    void ExtractIDsFromText(const QString& html);

private:
    void RegisterForm();
    // Shows the window with its search row alone; false when it was closed without a search.
    bool AskForTerm();
    void ShowProgress();
    void cmdOK_Click();
    void UserCloses();

    // The run is over, or a later one has taken over: no.
    bool IsOwn(qint32 entry) const;
    // Nor has the user stopped the search.
    bool Goes() const;
    void FilterWholeList();
    QString FetchProfile(const QString& address);
    void Finish();
    void Trace(const QString& text);

    App& m_app;
    qint32 m_entry = 0; // of the gather run that this search is
    bool m_searchPressed = false;
};

} // namespace qlm
