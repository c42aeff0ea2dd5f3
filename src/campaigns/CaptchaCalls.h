// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace qlm {

class App;

// A CAPTCHA is the user's: this calls him. Nothing here reads or answers one.
class CaptchaCalls {
public:
    explicit CaptchaCalls(App& app);

    // Sound, flash, status line, box, restore and focus, in that order, as the menu says. The box turns the
    // message loop: the caller has to look afterwards whether its activity is still there.
    void CallUser();
    // Puts the input focus into the field for the answer, if the page has one.
    void FocusAnswerField();
    // The messenger's step 9: a CAPTCHA stands before a message, or the message has gone out behind one.
    void MessagingCAPTCHAReached();

private:
    void mnuSkipProfileCAPTCHAs_Click();
    void WaitForUser();

    App& m_app;
};

} // namespace qlm
