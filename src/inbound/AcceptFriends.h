// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"
#include "steps/ReportStream.h"
#include "steps/StepMachine.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace qlm {

struct Campaign;

// Approves the incoming friend requests page by page until the folder is empty. Each page may be followed by
// a message or a comment to the people on it: their IDs go to the steps of those campaigns, which give
// control back when they are through.
class AcceptFriends {
public:
    explicit AcceptFriends(App& app);
    ~AcceptFriends();

    // The step routine.
    void IterateAcceptFriends();

private:
    static const StepMachine<AcceptFriends>& Machine();
    void picCmdAutoApprove_Click();
    void piccmdAccStop_Click();
    void ShowChosenFields();
    bool MayStart();
    void BeginStep();
    void Trace(const QString& text);

    Next OpenList();
    Next WorkOnPage();
    Next Rest();
    Next Finish();
    Next OpenLastPage();
    bool IsFinished();
    bool IsInVain();
    void ChooseFollowUps();
    Next HandOver(const Campaign& campaign, const QString& mark);
    void SetLoadCheck();
    void WaitUntilIdle();
    bool IsOnSite();
    bool IsOnOlderList();

    Next ApproveFriendRequests();
    void ApproveInNewLayout();
    void ApproveInOldLayout();
    QStringList TickBoxes();
    QStringList TickOldBoxes();
    void Accept(const Element& button, const QString& id);
    void Refuse(const QString& id);
    QString NameOfRequest(const QString& id);
    void PrepareOldList();
    void DenyVanished();
    void Deny(const Element& deny);
    void StopWithMessage(const QString& message);

    App& m_app;
    int m_listener = 0;
    qint32 m_approvingRun = -1; // the run whose page is being approved
    qint32 m_requests = 0;      // of this run, counted for the names of those without an ID
    QStringList m_pressedFor;   // on the page that is being approved
    QSet<QString> m_followedUp; // in this run
    QStringList m_lastList;     // the boxes of the list that was approved last,
    int m_timesAlike = 0;       // and how often it has come back as it was
};

} // namespace qlm
