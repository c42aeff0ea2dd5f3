// SPDX-License-Identifier: MIT
#pragma once

#include "gather/StandingPage.h"

#include <QString>
#include <functional>
#include <vector>

namespace qlm {

class App;

// The state machine of "SCANNING": scan the page, turn to the next, until there is none; and the buttons of
// the tab.
class GatherDriver {
public:
    explicit GatherDriver(App& app);

    void picScanStart_Click();
    void picScanStop_Click();
    // The step routine: 3 scans the page in the browser, 4 turns it. In the new layout it goes on over all
    // pages by itself; otherwise it returns and the tick enters it again. A later entry takes over from one
    // that still waits.
    void IterateGatherProfiles();
    // The same once the page is there that the browser has just been sent to; what it shows until then is
    // not scanned.
    void ScanPageToCome();
    // What the step after this waits for by the tick: a list page that is full, or that stands.
    void AwaitListOfIDs();
    bool ListOfIDsStands() { return m_standingPage.Stands(); }
    // The session was lost in front of a list, and the login has led away from it: back to the list that was
    // read last. When that happens again before a list has come, the gather is stopped.
    void ReturnToList();
    // True when the filters ask for a visit to each gathered profile.
    bool FilterPassWanted() const;
    // The label that names the visible slice of the list in WebBrowser1; "" when there is none.
    QString GetListingText();

    // Tells the user, while a login runs that has to be waited for.
    bool RefuseDuringLogin();
    // During any login, whether the program must wait for it or not.
    bool RefuseDuringAnyLogin();
    // For a gather that doesn't go over the pages in the browser: takes over from whatever still waits.
    int BeginEntry() { return ++m_lastEntry; }
    // False when the run is over or a later entry has taken over.
    bool Goes(int entry) const;
    // Shows one of the prompts with a "Don't show again" box, unless it has been ticked. True when it was
    // shown.
    bool ShowPrompt(const QString& form);

private:
    // What a step answers: whether the next is to follow at once.
    enum class Next { Return, GoOn };

    Next RunStep(int entry);
    Next ScanPage(int entry);
    bool WaitForPageToCome(int entry);
    bool WaitForMailPage(int entry);
    Next ReturnFromFilterPass();
    void AwaitList();
    Next TurnPage(int entry);
    void GrowInPlace(int entry);
    void FinishGathering();
    bool OpenNextPage(int entry);
    bool ClickCaption(int entry);
    void SetMustNotHaveTexts();
    QString LastPageMarkup();
    bool WarnBeforeStart();
    QString OptionsTrace() const;

    // The waits of WaitPageLoad: a kind of page, known by what its address contains, and its way of waiting.
    struct PageWait {
        const char16_t* address;
        void (*wait)(GatherDriver& driver, int entry, const QString& oldURL);
    };
    static const std::vector<PageWait>& PageWaits();
    void WaitOnPage(int entry, const std::function<bool()>& stillWaiting);
    void WaitPageLoad(int entry, const QString& oldURL);
    void WaitForAddress(int entry, const QString& oldURL, const QString& markup, bool checkErrors);
    void WaitForBrowsePage(int entry);
    void WaitForChart(int entry, const QString& oldURL);
    void WaitForOtherPage(int entry);
    bool LastPageStands();

    void Trace(const QString& text);

    void RegisterButtons();
    void RegisterHelp(const QString& label, const QString& form);
    void GotoBrowse();
    void GotoProfilePage(const char* procedure, const QString& page);
    void ClosePrompt(const QString& form);

    App& m_app;
    int m_lastEntry = 0;
    bool m_pageIsToCome = false;
    StandingPage m_standingPage;
    bool m_returnedToList = false; // and no step has run since
};

} // namespace qlm
