// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/ContentChoice.h"
#include "steps/StepMachine.h"

#include <QString>

namespace qlm {

// Sends a private message to each target by filling the site's compose page. Three callers: its own run, the
// message after a friend request (blnMsgAfterFR), and the one to a friend just accepted (strAcceptMode).
class Messenger {
public:
    explicit Messenger(App& app) : m_app(app) {}

    // The step routine.
    void IterateSendMessages();
    // The message to the present target has been pressed; its confirmation is awaited, or a CAPTCHA answered,
    // whose page no address brings back.
    bool HasSent() const;

private:
    static const StepMachine<Messenger>& Machine();
    void BeginStep();
    void Await(const QString& type, const QString& value);
    void LookAgain();

    Next TakeNextTarget();
    void OpenComposePage();
    Next EndRun();
    Next DecideFilter();
    Next AfterSend();
    void CloseReport();
    Next ReturnToRequests();
    Next ReturnToPage();
    Next CallForCaptcha();

    // Through a group, to who takes mail from its members alone. No step leads here.
    Next JoinGroup();
    Next OpenGroupInvite();
    Next InviteToGroup();
    Next OpenGroupResign();
    Next ResignFromGroup();
    Next LeaveGroupPage(bool isPressed);
    Next OpenGroupPage(const QString& address, const QString& button);

    Next SubmitMessage();
    const SubjectAndBody& TextOfTarget();
    void WaitUntilComplete();
    bool WaitForComposePage();
    void TypeText();
    Next LeaveStranger();
    Next GiveUpTarget();
    void CountAndLog();
    void PressSpanAgain();
    Next AwaitConfirmation();
    bool LimitIsMet();
    bool IsSubmitted() const;
    bool IsLogged() const;

    App& m_app;
    SubjectAndBody m_text;
    qint32 m_textOf = -1;     // number of the target whose text that is
    qint32 m_submitted = -1;  // number of the last target whose message went out
    bool m_isCounted = false; // a send was counted, and the limit is not tested yet
};

} // namespace qlm
