// SPDX-License-Identifier: MIT
#include "campaigns/Pacing.h"

#include "browser/Cover.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/StopResume.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

#include <cmath>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsOn(const RunState& state) {
    return state.lngTimeDelayFrom != 0 || state.lngTimeDelayTo != 0;
}

} // namespace

qint32 RandomBetween(App& app, qint32 upper, qint32 lower) {
    const double span = static_cast<double>(upper) - lower + 1;
    return static_cast<qint32>(std::nearbyint(app.platform.Random().Next() * span + lower));
}

QString RandomLowerAlnum(App& app, qint32 length) {
    static const QString letters = u"0123456789abcdefghijklmnopqrstuvwxyz"_s;
    QString text;
    for (qint32 i = 0; i < length; ++i)
        text += letters.at(
            static_cast<qsizetype>(app.platform.Random().Next() * static_cast<double>(letters.size())));
    return text;
}

Pacing::Pacing(App& app) : m_app(app), m_dialog(app) {
    app.commands.Add(u"mnuTimeDelay_Click"_s, [this] {
        m_dialog.Show();
        ReadBounds();
        UpdateTimeDelayLabel();
    });
}

void Pacing::ReadBounds() {
    const SettingsStore& settings = m_app.platform.Settings();
    auto seconds = [&settings](const QString& key) {
        return ToLong(settings.GetSetting(u"General"_s, key, u"0"_s)).value_or(0);
    };
    m_app.state.lngTimeDelayFrom = seconds(u"TimeDelayFrom"_s);
    m_app.state.lngTimeDelayTo = seconds(u"TimeDelayTo"_s);
}

void Pacing::UpdateTimeDelayLabel() {
    m_app.controls.SetTimeDelay({IsOn(m_app.state), {}});
}

void Pacing::DoDelay() {
    RunState& state = m_app.state;
    m_app.diagnostics.Trap("DoDelay", [this, &state] {
        const auto label = qScopeGuard([this] { UpdateTimeDelayLabel(); });
        state.blnInDelay = true;
        m_app.diagnostics.DebugForAction(u"Delay start - "_s + QString::number(state.lngTimeDelayFrom) +
                                         u", "_s + QString::number(state.lngTimeDelayTo));
        if (IsOn(state))
            WaitCovered();
    });
    m_app.Get<StopResume>().ResumeLinkCheck();
    m_app.diagnostics.DebugForAction(u"Delay finished"_s);
    state.blnInDelay = false;
}

void Pacing::WaitCovered() {
    const RunState& state = m_app.state;
    m_app.Get<StopResume>().PauseLinkCheck();
    m_app.Get<Cover>().Show();
    m_app.SetStatus(m_app.Status() + u"... time delay active."_s);
    CountDown(RandomBetween(m_app, state.lngTimeDelayTo - 1, state.lngTimeDelayFrom) + qint64(1));
}

void Pacing::CountDown(qint64 lengthSeconds) {
    const qint64 startMs = m_app.Pump().NowMs();
    qint64 shown = -1;
    qint64 remaining = lengthSeconds;
    const QScopedValueRollback pausing(m_app.Get<Cover>().isPausing, true);
    do {
        m_app.waiting.Turn();
        remaining = lengthSeconds - m_app.waiting.SecondsSince(startMs);
        if (remaining != shown && remaining >= 0)
            m_app.controls.SetTimeDelay({IsOn(m_app.state), remaining});
        shown = remaining;
    } while (remaining >= 1 && m_app.state.blnInDelay);
}

} // namespace qlm
