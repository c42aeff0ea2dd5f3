// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/FriendCategories.h"
#include "steps/StepMachine.h"

#include <QString>

namespace qlm {

// Walks the gathered list and requests each target as a friend. The site's request page sends the request by
// being visited; reaching the words "Request Sent!" is the success.
class FriendRequester {
public:
    explicit FriendRequester(App& app);

    FriendCategories& Categories() { return m_categories; }

    // The step routine.
    void IterateAddFriends();
    // The site has redirected to its error page although the request went out: tells the user, at most once a
    // run.
    void NoticeErrorRedirect();
    // The page confirms the request to the current target. The log line comes with the step; whatever cuts in
    // before it, the note stays.
    void NoteConfirmation();
    // The site has confirmed the request to the present target, whether or not its step has seen it yet.
    bool IsConfirmed() const;

private:
    static const StepMachine<FriendRequester>& Machine();
    void BeginStep();
    bool WaitForBusyBrowser();
    void Await(const QString& type, const QString& value);

    Next TakeNextTarget();
    Next OpenTarget();
    void OpenProfile();
    void OpenRequestPage();
    Next EndRun();
    Next DecideFilter();
    Next AfterSend(); // 9
    void CloseReport();
    Next GoOnAfterTarget();
    Next SendMessageAfter();

    Next SubmitFriend();
    bool RequestWasSent();
    Next LookAgain();
    bool AwaitsProfile() const;
    Next GoOnAfterSubmit();
    bool MayPutTargetOff();
    Next PutTargetOff();
    void MoveTargetToEnd();
    Next WaitForAnswer();
    void WaitNoting(int seconds);
    void NoteWhenConfirmed();

    App& m_app;
    FriendCategories m_categories;
    bool m_movedToEnd = false; // the current target comes again, so it hasn't failed
    qint32 m_confirmed = -1;   // number of the last target whose confirmation was seen
};

} // namespace qlm
