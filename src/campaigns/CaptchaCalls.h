// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

class App;

// A CAPTCHA is the user's: this calls him. Nothing here reads or answers one.
class CaptchaCalls {
public:
    explicit CaptchaCalls(App& app);

    // Sound, flash, status line, box, restore and focus, in that order, as the menu says. The box turns the
    // message loop: the caller has to look afterwards whether its activity is still there.
    void CallUser();
    // Puts the input focus into the page and there into the field for the answer: once for each page that
    // loads, since the user may go elsewhere from there.
    void FocusAnswerField();
    // The messenger's step 9: a CAPTCHA stands before a message, or the message has gone out after one.
    void MessagingCAPTCHAReached();

private:
    void mnuSkipProfileCAPTCHAs_Click();
    void WaitForUser();

    App& m_app;
    Document m_focusedPage;
};

} // namespace qlm
