// SPDX-License-Identifier: MIT
#include "StateFields.h"
#include "Arguments.h"

#include <QHash>
#include <variant>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

using Field = std::variant<QString RunState::*, QStringList RunState::*, IdList RunState::*, bool RunState::*,
                           qint16 RunState::*, qint32 RunState::*>;

const QHash<QString, Field>& Fields() {
    // clang-format off
    static const QHash<QString, Field> fields{
        {u"DataFolder"_s, &RunState::DataFolder},
        {u"ProgramFolder"_s, &RunState::ProgramFolder},
        {u"ErrorLogPath"_s, &RunState::ErrorLogPath},
        {u"ServerBaseURL"_s, &RunState::ServerBaseURL},
        {u"AccountEmail"_s, &RunState::AccountEmail},
        {u"AccountPassword"_s, &RunState::AccountPassword},
        {u"MyProfileID"_s, &RunState::MyProfileID},
        {u"blnLoggingEnabled"_s, &RunState::blnLoggingEnabled},
        {u"blnWaitForLoginFirst"_s, &RunState::blnWaitForLoginFirst},
        {u"blnNewVersionAvailable"_s, &RunState::blnNewVersionAvailable},
        {u"CurrentAction"_s, &RunState::CurrentAction},
        {u"intGatherStep"_s, &RunState::intGatherStep},
        {u"intFRStep"_s, &RunState::intFRStep},
        {u"intMsgStep"_s, &RunState::intMsgStep},
        {u"intComStep"_s, &RunState::intComStep},
        {u"intBulStep"_s, &RunState::intBulStep},
        {u"intAccStep"_s, &RunState::intAccStep},
        {u"intLoginStep"_s, &RunState::intLoginStep},
        {u"intDelPenStep"_s, &RunState::intDelPenStep},
        {u"strLinkType"_s, &RunState::strLinkType},
        {u"strLinkValue"_s, &RunState::strLinkValue},
        {u"blnLinkFound"_s, &RunState::blnLinkFound},
        {u"strLastPageText"_s, &RunState::strLastPageText},
        {u"strLastPageHref"_s, &RunState::strLastPageHref},
        {u"blnLastPageAsHTML"_s, &RunState::blnLastPageAsHTML},
        {u"blnForceAdvance"_s, &RunState::blnForceAdvance},
        {u"blnLastPageTextSeen"_s, &RunState::blnLastPageTextSeen},
        {u"blnLastPageHrefSeen"_s, &RunState::blnLastPageHrefSeen},
        {u"blnHoldLinkCheck"_s, &RunState::blnHoldLinkCheck},
        {u"blnLinkCheckFired"_s, &RunState::blnLinkCheckFired},
        {u"intBlankTicks"_s, &RunState::intBlankTicks},
        {u"intPageClass"_s, &RunState::intPageClass},
        {u"strCurrentID"_s, &RunState::strCurrentID},
        {u"blnSkipCurrentID"_s, &RunState::blnSkipCurrentID},
        {u"blnSkipRequested"_s, &RunState::blnSkipRequested},
        {u"blnInDelay"_s, &RunState::blnInDelay},
        {u"blnDailyLimitHit"_s, &RunState::blnDailyLimitHit},
        {u"blnWaitingForCaptcha"_s, &RunState::blnWaitingForCaptcha},
        {u"AccountsLoadedOnce"_s, &RunState::AccountsLoadedOnce},
        {u"blnLoginCacheRetry"_s, &RunState::blnLoginCacheRetry},
        {u"blnNewLayout"_s, &RunState::blnNewLayout},
        {u"blnChaining"_s, &RunState::blnChaining},
        {u"ChainedCampaign"_s, &RunState::ChainedCampaign},
        {u"SwitchingAccount"_s, &RunState::SwitchingAccount},
        {u"blnExitWhenFinished"_s, &RunState::blnExitWhenFinished},
        {u"blnClosing"_s, &RunState::blnClosing},
        {u"blnNoSaveOnExit"_s, &RunState::blnNoSaveOnExit},
        {u"blnUserNavigated"_s, &RunState::blnUserNavigated},
        {u"strFocusWindow"_s, &RunState::strFocusWindow},
        {u"blnCheckLog"_s, &RunState::blnCheckLog},
        {u"lngSkippedCount"_s, &RunState::lngSkippedCount},
        {u"lngFilteredCount"_s, &RunState::lngFilteredCount},
        {u"lngSessionFR"_s, &RunState::lngSessionFR},
        {u"lngSessionMsg"_s, &RunState::lngSessionMsg},
        {u"lngSessionCom"_s, &RunState::lngSessionCom},
        {u"lngSessionBul"_s, &RunState::lngSessionBul},
        {u"lngSessionStatus"_s, &RunState::lngSessionStatus},
        {u"lngDailyFR"_s, &RunState::lngDailyFR},
        {u"lngDailyMsg"_s, &RunState::lngDailyMsg},
        {u"lngDailyCom"_s, &RunState::lngDailyCom},
        {u"lngDailyBul"_s, &RunState::lngDailyBul},
        {u"lngDailyStatus"_s, &RunState::lngDailyStatus},
        {u"lngDailyAccepted"_s, &RunState::lngDailyAccepted},
        {u"lngDailyEventInvites"_s, &RunState::lngDailyEventInvites},
        {u"lngDailyGroupInvites"_s, &RunState::lngDailyGroupInvites},
        {u"strAcceptMode"_s, &RunState::strAcceptMode},
        {u"strFRResumeURL"_s, &RunState::strFRResumeURL},
        {u"intFRLimitHits"_s, &RunState::intFRLimitHits},
        {u"intCaptchaSkips"_s, &RunState::intCaptchaSkips},
        {u"intConfirmPolls"_s, &RunState::intConfirmPolls},
        {u"blnMsgAfterFR"_s, &RunState::blnMsgAfterFR},
        {u"blnFRSkipMessage"_s, &RunState::blnFRSkipMessage},
        {u"blnCommentUsedEditor"_s, &RunState::blnCommentUsedEditor},
        {u"blnBulletinDeleting"_s, &RunState::blnBulletinDeleting},
        {u"blnCommentFormShown"_s, &RunState::blnCommentFormShown},
        {u"blnBulletinWaiting"_s, &RunState::blnBulletinWaiting},
        {u"blnStatusWaiting"_s, &RunState::blnStatusWaiting},
        {u"intMessageListIndex"_s, &RunState::intMessageListIndex},
        {u"intCommentListIndex"_s, &RunState::intCommentListIndex},
        {u"intBulletinListIndex"_s, &RunState::intBulletinListIndex},
        {u"intStatusListIndex"_s, &RunState::intStatusListIndex},
        {u"lngTimeDelayFrom"_s, &RunState::lngTimeDelayFrom},
        {u"lngTimeDelayTo"_s, &RunState::lngTimeDelayTo},
        {u"arrFriendIDs"_s, &RunState::arrFriendIDs},
        {u"intCurrentIDIndex"_s, &RunState::intCurrentIDIndex},
        {u"blnFillingList"_s, &RunState::blnFillingList},
        {u"arrBlacklistIDs"_s, &RunState::arrBlacklistIDs},
        {u"strNextPageLink"_s, &RunState::strNextPageLink},
        {u"blnClickNextLink"_s, &RunState::blnClickNextLink},
        {u"strGatherStartURL"_s, &RunState::strGatherStartURL},
        {u"blnComparingIDs"_s, &RunState::blnComparingIDs},
        {u"blnRetryGatherPage"_s, &RunState::blnRetryGatherPage},
        {u"lngPageScanOffset"_s, &RunState::lngPageScanOffset},
        {u"intGatherRetryTicks"_s, &RunState::intGatherRetryTicks},
        {u"arrSeenLinks"_s, &RunState::arrSeenLinks},
        {u"lstAlreadyFullGatheredPageIDs"_s, &RunState::lstAlreadyFullGatheredPageIDs},
        {u"blnRememberLink"_s, &RunState::blnRememberLink},
        {u"blnStopGoogle"_s, &RunState::blnStopGoogle},
        {u"blnFilterTypeOff"_s, &RunState::blnFilterTypeOff},
        {u"blnFilterBands"_s, &RunState::blnFilterBands},
        {u"blnFilterComedy"_s, &RunState::blnFilterComedy},
        {u"blnFilterFilm"_s, &RunState::blnFilterFilm},
        {u"blnFilterPeople"_s, &RunState::blnFilterPeople},
        {u"blnFilterGenderOff"_s, &RunState::blnFilterGenderOff},
        {u"blnFilterMale"_s, &RunState::blnFilterMale},
        {u"blnFilterFemale"_s, &RunState::blnFilterFemale},
        {u"blnFilterLocationOff"_s, &RunState::blnFilterLocationOff},
        {u"blnFilterLocation"_s, &RunState::blnFilterLocation},
        {u"strFilterLocation"_s, &RunState::strFilterLocation},
        {u"optFilterWhenGathering"_s, &RunState::optFilterWhenGathering},
        {u"optFilterWhenSending"_s, &RunState::optFilterWhenSending},
        {u"blnFilterAgeOff"_s, &RunState::blnFilterAgeOff},
        {u"blnFilterAgeOn"_s, &RunState::blnFilterAgeOn},
        {u"strFilterAge1"_s, &RunState::strFilterAge1},
        {u"strFilterAge2"_s, &RunState::strFilterAge2},
        {u"blnFilterLastLoginOff"_s, &RunState::blnFilterLastLoginOff},
        {u"optFilterOnlineNow"_s, &RunState::optFilterOnlineNow},
        {u"blnFilterLastLoginOn"_s, &RunState::blnFilterLastLoginOn},
        {u"intFilterLastLoginDays"_s, &RunState::intFilterLastLoginDays},
        {u"IssueAlertTab"_s, &RunState::IssueAlertTab},
        {u"IssueAlertText"_s, &RunState::IssueAlertText},
        {u"strWaitingFor"_s, &RunState::strWaitingFor},
        {u"ClosePopupResult"_s, &RunState::ClosePopupResult},
        {u"lngFailedCount"_s, &RunState::lngFailedCount},
        {u"lngRemovedCount"_s, &RunState::lngRemovedCount},
        {u"lngTargetNumber"_s, &RunState::lngTargetNumber},
        {u"blnErrorRedirectTold"_s, &RunState::blnErrorRedirectTold},
        {u"blnSubmittingComment"_s, &RunState::blnSubmittingComment},
    };
    // clang-format on
    return fields;
}

Field FieldOf(const QString& name) {
    const auto found = Fields().constFind(name);
    if (found == Fields().constEnd())
        Fail(u"the run state has no field %1"_s.arg(name));
    return *found;
}

struct Reader {
    const RunState& state;
    QString operator()(QString RunState::*field) const { return state.*field; }
    QString operator()(QStringList RunState::*field) const { return (state.*field).join(u'\n'); }
    QString operator()(IdList RunState::*field) const { return (state.*field).ToStringList().join(u'\n'); }
    QString operator()(bool RunState::*field) const { return state.*field ? u"True"_s : u"False"_s; }
    QString operator()(qint16 RunState::*field) const { return QString::number(state.*field); }
    QString operator()(qint32 RunState::*field) const { return QString::number(state.*field); }
};

struct Writer {
    RunState& state;
    const QString& text;
    void operator()(QString RunState::*field) const { state.*field = text; }
    void operator()(QStringList RunState::*field) const { state.*field = text.split(u'\n'); }
    void operator()(IdList RunState::*field) const { state.*field = IdList(text.split(u'\n')); }
    void operator()(bool RunState::*field) const {
        if (text.compare(u"True", Qt::CaseInsensitive) != 0 &&
            text.compare(u"False", Qt::CaseInsensitive) != 0)
            Fail(u"True or False, not %1"_s.arg(text));
        state.*field = text.compare(u"True", Qt::CaseInsensitive) == 0;
    }
    void operator()(qint16 RunState::*field) const { state.*field = static_cast<qint16>(Number()); }
    void operator()(qint32 RunState::*field) const { state.*field = Number(); }
    int Number() const {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (!isNumber)
            Fail(u"not a number: %1"_s.arg(text));
        return number;
    }
};

} // namespace

bool HasStateField(const QString& name) {
    return Fields().contains(name);
}

QString ReadStateField(const RunState& state, const QString& name) {
    return std::visit(Reader{state}, FieldOf(name));
}

void WriteStateField(RunState& state, const QString& name, const QString& text) {
    std::visit(Writer{state, text}, FieldOf(name));
}

bool SameStateText(const RunState& state, const QString& name, const QString& expected) {
    const bool isFlag = std::holds_alternative<bool RunState::*>(FieldOf(name));
    return ReadStateField(state, name).compare(expected, isFlag ? Qt::CaseInsensitive : Qt::CaseSensitive) ==
           0;
}

} // namespace qlm::scenario
