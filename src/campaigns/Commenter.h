// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/ContentChoice.h"
#include "steps/StepMachine.h"

#include <QString>
#include <optional>

namespace qlm {

// Posts a comment on the profile of each target through the site's comment form. Two callers: its own run,
// and the comment to a friend just accepted (strAcceptMode).
class Commenter {
public:
    explicit Commenter(App& app) : m_app(app) {}

    // The step routine.
    void IterateSendComments();
    // Presses the button of the page between form and post.
    void ConfirmComment();

private:
    static const StepMachine<Commenter>& Machine();
    void BeginStep();
    void Await(const QString& type, const QString& value);

    Next TakeNextTarget();
    void OpenCommentPage();
    Next EndRun();
    Next DecideFilter();
    Next AfterSend();
    void CloseReport();
    Next LeaveStranger();
    Next GiveTargetUp(const QString& why, const QString& caller);
    Next GoOn(const QString& caller);
    bool IsSkipped() const;
    bool IsLogged() const;
    void LogPress();
    void CountFailure();
    void CountOnce();
    bool LimitIsMet();

    // CommentSubmission.cpp
    Next SubmitComment();
    std::optional<QString> TextOfTarget();
    void WaitUntilComplete(int limitSeconds);
    Next SkipTarget(const QString& why);
    Next LookAgain();
    Next SubmitForm();
    void WaitForForm();
    bool TypeIntoEditor(const QString& text);
    Next PressForm();
    Next AwaitConfirmPage();

    // CommentPosting.cpp
    Next SubmitBox();
    bool WaitForGrownBox();
    void TypeIntoBox(const QString& text);
    Next PressPost();
    void PressPostAgain(const QString& typed, int pressed);
    void WaitForAnswer();
    Next TakePosted();

    // CommentConfirmation.cpp
    Next Confirm();
    void WaitForConfirmPage();
    Next PressConfirm();
    Next TakeConfirmed();
    Next CallForCaptcha();
    void AwaitCaptchaAnswer();
    Next AwaitPosted(const QString& status);
    bool IsPosted();

    // What is known of the present target.
    struct Target {
        bool isOpen = false;
        bool isPressed = false; // whatever leads back to its form, nobody gets the same comment twice
        bool isCounted = false;
        bool isLimitTested = false;
        // Chosen once, however often the page is tried: the next line of the list is the next target's.
        std::optional<CommentChoice> comment{};
    };

    App& m_app;
    Target m_target;
};

} // namespace qlm
