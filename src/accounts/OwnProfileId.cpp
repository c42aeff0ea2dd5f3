// SPDX-License-Identifier: MIT
#include "accounts/OwnProfileId.h"

#include "accounts/LoginFlow.h"
#include "browser/PageTests.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ProfileIDSeconds = 15;

// A null text when the mark isn't there.
QString Behind(const QString& text, const QString& mark, QChar end) {
    const qsizetype found = text.indexOf(mark, 0, Qt::CaseInsensitive);
    if (found < 0)
        return {};
    const qsizetype start = found + mark.size();
    const qsizetype stop = text.indexOf(end, start);
    return text.mid(start, stop < 0 ? -1 : stop - start);
}

} // namespace

QString ValueBehindFirstKey(const QString& script, const QString& key) {
    if (!Has(script, key + u':') && !Has(script, key + u"\":"_s))
        return {};
    return Behind(script, key, u',').remove(u':').remove(u'"').trimmed();
}

QString ReportedUserId(const QString& html) {
    return Behind(html, u"reportedUserId="_s, u'&').trimmed();
}

QString UserIdInPage(const QString& html) {
    return Behind(html, u"UserId:"_s, u',').remove(u'"').trimmed();
}

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
    } while (IsLoggingIn(4) && !IsNumeric(id) && m_app.waiting.SecondsSince(startMs) < ProfileIDSeconds);
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
    if (m_app.pageTests->IsNotEnglishPage() && !m_languageTold) {
        // The ID is asked for many times a second; the user is told once.
        m_languageTold = true;
        Log(u"UID3 - LANG"_s);
        ShowLanguageMessage();
    }
    return id;
}

} // namespace qlm
