// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The fields and the button of the older request page. No step uses them: the newer page has no fields, and
// is the request by being visited. They stand ready for the submitting step, should the site show such a page
// again; until then the options are kept and have no effect.
class RequestFields {
public:
    explicit RequestFields(App& app) : m_app(app) {}

    // txtFRNote, with the target's name in the place of "&NAME&".
    void EnterNote();
    // The page's tick for news of the new friend is made to follow chkFRAddToUpdates.
    void ApplyFriendUpdatesOption();
    // The same tick, for chkFRFullName.
    void ApplyFullNameOption();
    // With chkFRAddToCategory ticked, ticks the category of cboFRCategories. Waits while step 8 lasts until
    // the page shows its categories.
    void ApplyCategory();
    // Presses the page's button. The request is logged first: after the press it can't be taken back. False
    // when the page has no such button.
    bool ClickRequestButton();

private:
    void Apply(QLatin1StringView option);

    App& m_app;
};

} // namespace qlm
