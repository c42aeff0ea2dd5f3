// SPDX-License-Identifier: MIT
#include "campaigns/BulletinDots.h"

#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Section = u"Bulletins"_s;
const QString MessageKey = u"First Post Message"_s;
const QString TimeKey = u"First Post DateTime"_s;
const QString CountKey = u"DotCount"_s;
const QString TimeFormat = u"yyyy-MM-dd hh:mm:ss"_s;
constexpr qint32 MostPosts = 1000;
constexpr qint64 SecondsOfADay = 24 * 60 * 60;

QDateTime WithoutZone(const QDateTime& time) {
    return {time.date(), time.time(), Qt::UTC};
}
} // namespace

QString GetBulletinDots(App& app) {
    SettingsStore& settings = app.platform.Settings();
    const QString message = app.controls.Text("txtBulMessage"_L1);
    const QString firstMessage = settings.GetSetting(Section, MessageKey, {});
    const QDateTime firstPost =
        WithoutZone(QDateTime::fromString(settings.GetSetting(Section, TimeKey, {}), TimeFormat));
    // More than anybody posts is no count.
    const qint32 stored = ToLong(settings.GetSetting(Section, CountKey, u"0"_s)).value_or(0);
    qint32 count = stored < MostPosts ? std::max(stored, 0) : 0;
    const QDateTime now = WithoutZone(app.Pump().Now());
    const bool expired = !firstPost.isValid() || firstPost.secsTo(now) >= SecondsOfADay;
    if (firstMessage.isEmpty() || expired || message != firstMessage) {
        count = 0;
        settings.SaveSetting(Section, TimeKey, now.toString(TimeFormat));
        settings.SaveSetting(Section, MessageKey, message);
    }
    ++count;
    settings.SaveSetting(Section, CountKey, QString::number(count));
    app.Get<SettingsFields>().Sync();
    return count == 1 ? QString() : QString(count - 1, u'.') + u"\r\n"_s;
}

} // namespace qlm
