// SPDX-License-Identifier: MIT
#include "campaigns/Counters.h"

#include "browser/Cover.h"
#include "campaigns/Campaigns.h"
#include "campaigns/SendRuns.h"
#include "core/App.h"
#include "core/ProductServer.h"
#include "core/SettingsFields.h"
#include "core/Text.h"
#include "steps/StopResume.h"

#include <limits>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Those that belong to no campaign.
const std::vector<DailyCounter>& OtherCounters() {
    static const std::vector<DailyCounter> rows{
        {"Daily Event Invites Count", "Daily Event Invites Count", &RunState::lngDailyEventInvites,
         "lblEventInvitesToday"_L1},
        {"Daily Group Invites Count", "Daily Group Invites Count", &RunState::lngDailyGroupInvites,
         "lblGroupInvitesToday"_L1},
        {"Daily Friend Request Accept Count",
         "Daily Friend Request Accept Count",
         &RunState::lngDailyAccepted,
         {}},
    };
    return rows;
}

std::vector<DailyCounter> DailyCounters() {
    std::vector<DailyCounter> counters = OtherCounters();
    for (const Campaign* campaign : Campaigns())
        counters.push_back(campaign->today);
    return counters;
}

const QString DayKey = u"Daily Limit - Date"_s;

QString CountersSection(const App& app) {
    return u"Counters\\"_s + app.state.AccountEmail;
}

QString DaySection(const App& app) {
    return u"Daily Tracking\\"_s + app.state.AccountEmail;
}

void ShowToday(App& app, const DailyCounter& counter) {
    if (!counter.label.isEmpty())
        app.controls.SetText(counter.label, u"Total Today: "_s + QString::number(app.state.*counter.count));
}

constexpr qint32 MostCounted = std::numeric_limits<qint32>::max();

void RaiseByOne(qint32& count) {
    if (count < MostCounted)
        ++count;
}

// More than can be counted is as much as can be: it must not let a limit for the day begin anew.
qint32 ToCount(const QString& stored) {
    if (!IsNumeric(stored) || stored.trimmed().startsWith(u'-'))
        return 0;
    return ToLong(stored).value_or(MostCounted);
}

// A campaign without targets tells how many there are to be.
QString SentText(const App& app, const Campaign& campaign, const char* words) {
    const QString text = QString::fromLatin1(words) + QString::number(app.state.*campaign.session);
    return campaign.HasTargets() ? text : text + u'/' + app.controls.Text(campaign.amount);
}

} // namespace

void Counters::Restore() {
    auto log = [this](const QString& mark) { m_app.diagnostics.Debug(u"debuginitial.txt"_s, mark); };
    log(u"RestAccS1 - STD:"_s);
    const std::optional<QDate> today = m_app.Get<ProductServer>().GetServerDate();
    const QString stored = m_app.platform.Settings().GetSetting(DaySection(m_app), DayKey, {});
    const std::optional<QDate> storedDay = ParseDate(stored);
    log(u"RestAccS4.1"_s);
    if (today && storedDay && *storedDay < *today)
        Clear();
    else
        Read();
    log(u"RestAccS5"_s);
    if (today) {
        m_app.platform.Settings().SaveSetting(DaySection(m_app), DayKey, today->toString(u"yyyy-MM-dd"_s));
        m_app.Get<SettingsFields>().Sync();
    }
    log(u"RestAccS7 - "_s + stored);
}

void Counters::Clear() {
    for (const DailyCounter& counter : DailyCounters()) {
        m_app.state.*counter.count = 0;
        m_app.platform.Settings().SaveSetting(CountersSection(m_app), QString::fromLatin1(counter.resetKey),
                                              u"0"_s);
        ShowToday(m_app, counter);
    }
}

void Counters::Read() {
    const SettingsStore& settings = m_app.platform.Settings();
    for (const DailyCounter& counter : DailyCounters()) {
        const QString value =
            settings.GetSetting(CountersSection(m_app), QString::fromLatin1(counter.key), u"0"_s);
        m_app.state.*counter.count = ToCount(value);
        ShowToday(m_app, counter);
    }
}

bool Counters::IsPerDay(const Campaign& campaign) const {
    return !campaign.period.isEmpty() && m_app.controls.Text(campaign.period) == u"per day"_s;
}

bool Counters::LimitReached(const Campaign& campaign) const {
    const std::optional<qint32> limit = ToLong(m_app.controls.Text(campaign.amount));
    if (!limit || campaign.period.isEmpty())
        return false;
    return m_app.state.*(IsPerDay(campaign) ? campaign.today.count : campaign.session) >= *limit;
}

bool Counters::LimitIsUncounted(const Campaign& campaign) const {
    return !m_isStored && IsPerDay(campaign) && ToLong(m_app.controls.Text(campaign.amount));
}

bool Counters::IsLimitDue(const Campaign& campaign) const {
    return LimitReached(campaign) || LimitIsUncounted(campaign);
}

bool Counters::StopUncounted() {
    const Campaign* campaign = FindCampaign(m_app.state.CurrentAction);
    if (!campaign || !LimitIsUncounted(*campaign))
        return false;
    m_app.Get<StopResume>().StopAll(StopReason::Uncounted);
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Quillmere can't save how many you have sent today, "
                          "so it can't keep your limit per day. The run has been stopped."_s);
    return true;
}

bool Counters::StopAtLimit(const Campaign& campaign) {
    if (!LimitReached(campaign))
        return false;
    if (!campaign.limitComesFirst) {
        m_app.WebBrowser1().Stop();
        m_app.Get<Cover>().Hide();
    }
    // It has been sent to, and is no target of the next account.
    if (m_app.state.blnChaining)
        m_app.Get<SendRuns>().RemoveUsedTarget(u"LoginNextCycleAccount"_s);
    m_app.Get<StopResume>().StopAll(*campaign.reasons.limitMet);
    if (m_app.Get<StopResume>().HandOverInChain())
        return true;
    m_app.ShowTab(u"Gather ID's"_s);
    if (!m_app.Get<StopResume>().DoFinishedExit())
        m_app.ShowMessage(u"Your specified limit has been reached"_s);
    return true;
}

void Counters::ShowSentAtStart(const Campaign& campaign) {
    m_app.controls.SetText(campaign.sentLabel, SentText(m_app, campaign, campaign.sentAtStart));
}

void Counters::CountAccepted(qint32 number) {
    Raise(&RunState::lngDailyAccepted, number);
}

void Counters::CountInvited(qint32 RunState::*today, qint32 number) {
    Raise(today, number);
}

void Counters::Raise(qint32 RunState::*today, qint32 number) {
    qint32& count = m_app.state.*today;
    count = count < MostCounted - number ? count + number : MostCounted;
    for (const DailyCounter& counter : OtherCounters()) {
        if (counter.count != today)
            continue;
        ShowToday(m_app, counter);
        m_app.platform.Settings().SaveSetting(CountersSection(m_app), QString::fromLatin1(counter.key),
                                              QString::number(count));
    }
    m_app.Get<SettingsFields>().Sync();
}

bool Counters::Count(const Campaign& campaign) {
    RunState& state = m_app.state;
    if (campaign.isPartOfAnother && campaign.isPartOfAnother(state))
        return true;
    if (campaign.limitComesFirst && StopAtLimit(campaign))
        return false;
    RaiseByOne(state.*campaign.today.count);
    ShowToday(m_app, campaign.today);
    m_app.platform.Settings().SaveSetting(CountersSection(m_app), QString::fromLatin1(campaign.today.key),
                                          QString::number(state.*campaign.today.count));
    m_isStored = m_app.Get<SettingsFields>().Sync();
    RaiseByOne(state.*campaign.session);
    m_app.controls.SetText(campaign.sentLabel, SentText(m_app, campaign, campaign.sentSoFar));
    return true;
}

} // namespace qlm
