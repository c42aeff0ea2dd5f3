// SPDX-License-Identifier: MIT
#pragma once

#include "gather/StandingPage.h"
#include "steps/StepMachine.h"

#include <QString>
#include <functional>
#include <vector>

namespace qlm {

// The state machine of gathering: scan the page, turn to the next, until there is none; and the buttons of
// the tab.
class GatherDriver {
public:
    explicit GatherDriver(App& app);

    void picScanStart_Click();
    void picScanStop_Click();
    // The step routine: scans the page in the browser, and turns it. In the new layout it goes on over all
    // pages by itself; otherwise it returns and the tick enters it again.
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
    // Notes what says, until the next page has come, that the browser still shows this one.
    void SetMustNotHaveTexts();

    // Tells the user, while a login runs that has to be waited for.
    bool RefuseDuringLogin();
    // During any login, whether the program must wait for it or not.
    bool RefuseDuringAnyLogin();
    // Shows one of the prompts with a "Don't show again" box, unless it has been ticked. True when it was
    // shown.
    bool ShowPrompt(const QString& form);

private:
    static const StepMachine<GatherDriver>& Machine();
    QString Address() const;
    void BeginStep();

    Next ScanPage();
    void WaitForPageToCome();
    void WaitForMailPage();
    void GatherFromPage();
    void ReturnFromFilterPass();
    void AwaitList();
    Next TurnPage();
    void GrowInPlace();
    void FinishGathering();
    bool OpenNextPage();
    void ClickCaption();
    QString LastPageMarkup();
    bool WarnBeforeStart();
    QString OptionsTrace() const;

    // The waits of WaitPageLoad: a kind of page, known by what its address contains, and its way of waiting.
    struct PageWait {
        const char16_t* address;
        void (*wait)(GatherDriver& driver, const QString& oldURL);
    };
    static const std::vector<PageWait>& PageWaits();
    void WaitOnPage(const std::function<bool()>& stillWaiting);
    void WaitPageLoad(const QString& oldURL);
    void WaitForAddress(const QString& oldURL, const QString& markup, bool checkErrors);
    void WaitForBrowsePage();
    void WaitForChart(const QString& oldURL);
    void WaitForOtherPage();
    bool LastPageStands();

    void Trace(const QString& text);

    void RegisterButtons();
    void RegisterHelp(const QString& label, const QString& form);
    void GotoBrowse();
    void GotoProfilePage(const QString& page);
    void ClosePrompt(const QString& form);

    App& m_app;
    bool m_pageIsToCome = false;
    StandingPage m_standingPage;
    bool m_returnedToList = false; // and no step has run since
};

} // namespace qlm
