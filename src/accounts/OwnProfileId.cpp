// SPDX-License-Identifier: MIT
#include "accounts/LoginFlow.h"
#include "browser/PageSigns.h"
#include "browser/ScriptValues.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int ProfileIDSeconds = 15;
} // namespace

void LoginFlow::ReadProfileID() {
    m_languageTold = false;
    QString& id = m_app.state.MyProfileID;
    id.clear();
    const qint64 startMs = m_app.Pump().NowMs();
    do {
        // A page that is being replaced under the reading is read again on the next pass.
        Diagnostics::IgnoreErrors([this, &id] {
            id = GetPageScriptValue(u"WebBrowser1"_s, u"UserId"_s);
            if (!IsNumeric(id) || id.size() < 3)
                id = GetUsersID2();
        });
        m_app.waiting.Turn();
    } while (!IsNumeric(id) && m_app.waiting.SecondsSince(startMs) < ProfileIDSeconds);
}

QString LoginFlow::GetPageScriptValue(const QString& browserName, const QString& key) {
    BrowserControl& browser = browserName == u"webHide"_s ? m_app.webHide() : m_app.WebBrowser1();
    const Document document = browser.Document();
    const QString name = key.isEmpty() ? u"DisplayFriendId"_s : key;
    QString value;
    for (const Element& script : document.Scripts()) {
        value = ValueBehindFirstKey(script.Read(ElementText::Text), name);
        if (!value.isNull())
            break;
    }
    return IsNumeric(value) ? value : ReportedUserId(document.BodyHTML());
}

QString LoginFlow::GetUsersID2() {
    const QString id = UserIdInPage(m_app.WebBrowser1().Document().BodyHTML());
    if (m_app.Get<PageSigns>().IsNotEnglishPage() && !m_languageTold) {
        // The ID is asked for many times a second; the user is told once.
        m_languageTold = true;
        Log(u"UID3 - LANG"_s);
        ShowLanguageMessage(m_app);
    }
    return id;
}

} // namespace qlm
