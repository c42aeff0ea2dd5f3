// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/FriendCategories.h"

#include <QString>

namespace qlm {

class App;

// Walks the gathered list and requests each target as a friend. The site's request page sends the request by
// being visited; reaching the words "Request Sent!" is the success. Runs while CurrentAction is "FR".
//
// Every wait turns the message loop, and Skip, Stop or a new start may come in there and move the run on. A
// step therefore notes its target before it waits and leaves at once when another is current behind the wait.
class FriendRequester {
public:
    explicit FriendRequester(App& app);

    FriendCategories& Categories() { return m_categories; }

    // The step routine: 5 next target, 6 end, 7 filter decision, 8 submit, 9 after send.
    void IterateAddFriends();
    // The site has redirected to its error page although the request went out: tells the user, at most once a
    // run.
    void NoticeErrorRedirect();
    // The page confirms the request to the current target. The log line comes with the step; whatever cuts in
    // before it, the note stays.
    void NoteConfirmation();

private:
    // What a step leaves behind: a page or timer is awaited, or the next step runs at once.
    enum class Next { Wait, Again };
    struct State {
        qint16 step;
        Next (FriendRequester::*run)();
    };
    static const State States[];

    Next RunStep();
    bool WaitForBusyBrowser();
    bool IsCurrent(qint32 target) const;
    void Await(const QString& type, const QString& value);

    Next TakeNextTarget(); // 5
    Next OpenTarget();
    void OpenProfile();
    void OpenRequestPage();
    Next EndRun();       // 6
    Next DecideFilter(); // 7
    Next AfterSend();    // 9
    void CloseReport();
    Next GoOnBehindTarget();
    Next SendMessageBehind();

    Next SubmitFriend(); // 8
    bool RequestWasSent();
    Next LookAgain(qint32 target);
    bool AwaitsProfile() const;
    Next GoOnBehindSubmit(qint32 target);
    bool MayPutTargetOff();
    Next PutTargetOff(qint32 target);
    void MoveTargetToEnd();
    Next WaitForAnswer(qint32 target);
    void WaitNoting(qint32 target, int seconds);
    void NoteWhenConfirmed();

    App& m_app;
    FriendCategories m_categories;
    bool m_movedToEnd = false; // the current target comes again, so it hasn't failed
    qint32 m_confirmed = -1;   // number of the last target whose confirmation was seen
};

} // namespace qlm
