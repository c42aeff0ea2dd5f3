// SPDX-License-Identifier: MIT
#pragma once

#include "core/IdList.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace qlm {

// What the step expects on the next page, and what says that the browser still shows the previous one.
struct Expectation {
    QString strLinkType;
    QString strLinkValue;
    bool blnLinkFound = false;
    QString strLastPageText;
    QString strLastPageHref;
    bool blnLastPageAsHTML = false;
    bool blnForceAdvance = false;
};

// What belongs to a run: a stop clears all of it in one assignment.
struct RunFields : Expectation {
    // The running activity and its step. Values 16 bit, 0 at rest.
    QString CurrentAction;
    qint16 intGatherStep{};
    qint16 intFRStep{};
    qint16 intMsgStep{};
    qint16 intComStep{};
    qint16 intBulStep{};
    qint16 intAccStep{};
    qint16 intLoginStep{};
    qint16 intDelPenStep{};

    // Decisions about the profile being worked on.
    QString strCurrentID;
    bool blnSkipCurrentID = false; // the page or a step has decided that it is done with
    bool blnSkipRequested = false; // the user pressed Skip
    bool blnInDelay = false;

    // Gathering.
    QString strNextPageLink;
    bool blnClickNextLink = false;
    bool blnComparingIDs = false;
    bool blnRetryGatherPage = false;
    qint32 lngPageScanOffset = 0;
    qint16 intGatherRetryTicks = 0;

    // Accepting.
    bool PageApproved = false; // the page that is coming shows what an approval has left
    bool AcceptStopRequested = false;
    QString AcceptReturnURL; // where the follow-up of a page began

    // Sending.
    QString strFRResumeURL; // the request page to go back to after a message
    qint16 intFRLimitHits = 0;
    qint16 intConfirmPolls = 0;
    bool blnCommentFormShown = false;
    bool SwitchingAccount = false; // the next start of a campaign goes on after a change of account

    // What the tick waits for, for the line that tells of a long wait.
    QString strWaitingFor;
};

// The campaigns that wait for their minute while others run. The own end of another activity spares it; any
// other stop clears it.
struct TimedFields {
    bool blnBulletinWaiting = false;
    bool blnStatusWaiting = false;
    qint32 lngBulMinutesElapsed = 0; // since the last post
    qint32 lngBulWaitMinutes = 0;    // drawn for this wait
    qint32 lngStatusMinutesElapsed = 0;
    qint32 lngStatusWaitMinutes = 0;
    bool blnBulletinDeleted = false; // the last bulletin is gone from the board
    // The campaign that has lent the browser, and the address to go back to.
    bool varResumeFR = false;
    bool blnResumeMsg = false;
    bool blnResumeCom = false;
    QString strResumeURL;
};

// The run state of the program: plain fields, read and written by every step. One instance, owned by the App;
// there is no other copy of any of it.
struct RunState : RunFields, TimedFields {
    // Folders and the account in use.
    QString DataFolder;
    QString ProgramFolder; // the installation folder when it is writable, otherwise DataFolder
    QString ErrorLogPath;
    QString ServerBaseURL;
    QString AccountEmail; // trimmed and lower case
    QString AccountPassword;
    QString MyProfileID; // digits; empty until read
    bool blnLoggingEnabled = false;
    bool blnWaitForLoginFirst = false;
    bool blnNewVersionAvailable = false;

    // Which step waits: a wait that comes back to another number belongs to nobody any more.
    qint32 lngRunNumber = 0;    // counts starts and stops
    qint32 lngTargetNumber = 0; // counts the targets begun
    qint32 lngEntryNumber = 0;  // counts how often a machine was entered

    bool blnLastPageTextSeen = false; // what the last check found of the two markers
    bool blnLastPageHrefSeen = false;

    bool blnHoldLinkCheck = false; // the page check and the DocumentComplete shortcut do nothing
    bool blnLinkCheckFired = false;
    qint16 intBlankTicks = 0;
    qint16 intPageClass = 0; // class of the last classified page, 0 a normal one

    bool blnDailyLimitHit = false;
    bool blnWaitingForCaptcha = false;

    // Login.
    bool AccountsLoadedOnce = false;
    bool blnLoginCacheRetry = false; // never cleared before the program ends
    bool blnNewLayout = false;

    // Chaining of accounts.
    bool blnChaining = false;
    QString ChainedCampaign; // its word; empty without one

    // Ending the program.
    bool blnExitWhenFinished = false;
    bool blnClosing = false;
    bool blnNoSaveOnExit = false;

    bool blnUserNavigated = false; // the next navigation comes from Back, Forward, Home or Stop
    QString strFocusWindow;        // the window that had the input focus before the comment form took it

    // Send runs.
    bool blnCheckLog = false;
    qint32 lngSkippedCount = 0;
    qint32 lngFilteredCount = 0;
    qint32 lngFailedCount = 0;  // targets given up without success in this run
    qint32 lngRemovedCount = 0; // entries that this run has taken off the list
    bool blnErrorRedirectTold = false;
    qint32 lngSessionFR = 0;
    qint32 lngSessionMsg = 0;
    qint32 lngSessionCom = 0;
    qint32 lngSessionBul = 0;
    qint32 lngSessionStatus = 0;
    qint32 lngDailyFR = 0;
    qint32 lngDailyMsg = 0;
    qint32 lngDailyCom = 0;
    qint32 lngDailyBul = 0;
    qint32 lngDailyStatus = 0;
    qint32 lngDailyAccepted = 0;
    qint32 lngDailyEventInvites = 0;
    qint32 lngDailyGroupInvites = 0;
    QString strAcceptMode; // not empty while an accept run borrows the message or comment steps
    qint16 intCaptchaSkips = 0;
    bool blnMsgAfterFR = false;
    bool blnFRSkipMessage = false;
    bool blnFRWaitRequestSent = false; // the request page to go back to is still to confirm
    bool blnCommentUsedEditor = false;
    bool blnSubmittingComment = false; // SubmitComment is on the stack
    // Last line used of each content list. Never reset: a new run goes on where the last one stopped.
    qint16 intMessageListIndex = 0;
    qint16 intCommentListIndex = 0;
    qint16 intBulletinListIndex = 0;
    qint16 intStatusListIndex = 0;
    qint32 lngTimeDelayFrom = 0; // seconds
    qint32 lngTimeDelayTo = 0;

    // The work list. Empty is one entry "".
    IdList arrFriendIDs{QString()};
    qint32 intCurrentIDIndex = 0;
    bool blnFillingList = false;
    IdList arrBlacklistIDs{QString()};

    // Gathering.
    QString strGatherStartURL;
    IdList arrSeenLinks;
    QStringList lstAlreadyFullGatheredPageIDs;
    bool blnRememberLink = false;
    bool blnStopGoogle = false; // the user has pressed Stop in the search window

    // Filters, as read back from the filter window.
    bool blnFilterTypeOff = true;
    bool blnFilterBands = false;
    bool blnFilterComedy = false;
    bool blnFilterFilm = false;
    bool blnFilterPeople = false;
    bool blnFilterGenderOff = true;
    bool blnFilterMale = false;
    bool blnFilterFemale = false;
    bool blnFilterLocationOff = true;
    bool blnFilterLocation = false;
    QString strFilterLocation;
    bool optFilterWhenGathering = false;
    bool optFilterWhenSending = true;
    bool blnFilterAgeOff = true;
    bool blnFilterAgeOn = false;
    QString strFilterAge1;
    QString strFilterAge2;
    bool blnFilterLastLoginOff = true;
    bool optFilterOnlineNow = false;
    bool blnFilterLastLoginOn = false;
    qint16 intFilterLastLoginDays = 0;

    // Notices of the product server.
    QString IssueAlertTab;
    QString IssueAlertText;

    QString ClosePopupResult;
};

} // namespace qlm
