// SPDX-License-Identifier: MIT
#include "core/ProductServer.h"

#include "core/App.h"
#include "core/MainForm.h"
#include "core/Text.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The value of an "[alert]" file's key, in any letter case.
QString IniValue(const QString& ini, const QString& key) {
    const QRegularExpression line(u"^\\s*"_s + QRegularExpression::escape(key) + u"\\s*=\\s*(.*?)\\s*$"_s,
                                  QRegularExpression::MultilineOption |
                                      QRegularExpression::CaseInsensitiveOption);
    return line.match(ini).captured(1);
}

} // namespace

std::optional<QDate> ParseDate(const QString& text) {
    static const QRegularExpression iso(u"^\\s*(\\d{4})-(\\d{1,2})-(\\d{1,2})(?:[ T].*)?$"_s,
                                        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression slashes(u"^\\s*(\\d{1,2})/(\\d{1,2})/(\\d{4})(?:\\s.*)?$"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    QDate date;
    if (const auto match = iso.match(text); match.hasMatch())
        date = QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    else if (const auto other = slashes.match(text); other.hasMatch())
        date = QDate(other.captured(3).toInt(), other.captured(1).toInt(), other.captured(2).toInt());
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QString ProductServer::HTTPGet(const QString& url) {
    const std::optional<QString> answer = m_app.platform.Http().Get(url);
    if (answer)
        return *answer;
    m_app.ShowMessage(
        u"There seems to be a temporary Internet connection problem. Please check your internet "
        "connection, or try again later. If the problem persists over a period of time, please make "
        "sure Quillmere is specified as a trusted application in your firewall software."_s);
    m_app.mainForm->Unload();
    throw ProgramEnding();
}

QString ProductServer::TestGet(const QString& url) {
    return m_app.platform.Http().Get(url).value_or(u"try alternate server"_s);
}

void ProductServer::CheckVersion() {
    const QString answer = HTTPGet(m_app.state.ServerBaseURL + u"/version.htm"_s);
    auto number = [](QString text) {
        text.remove(u"version "_s, Qt::CaseInsensitive).remove(u'\n').remove(u'\r').remove(u' ').remove(u'.');
        return ToLong(text);
    };
    const std::optional<qint32> theirs = number(answer);
    const std::optional<qint32> ours = number(m_app.Version());
    if (!theirs || !ours) {
        m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"CV Err"_s);
        return;
    }
    if (*ours < *theirs)
        m_app.state.blnNewVersionAvailable = true;
}

void ProductServer::CheckIssueAlert() {
    const QString path = m_app.DataFile(u"issuealert.ini"_s);
    m_app.files.DeleteFile(path);
    const QString answer = HTTPGet(m_app.state.ServerBaseURL + u"/issuealert.ini"_s);
    if (!Has(answer, u"[alert]"_s)) {
        m_app.platform.Settings().SaveSetting(u"General"_s, u"AlertDontShowAgain"_s, u"0"_s);
        return;
    }
    m_app.files.WriteLines(path, answer.split(QRegularExpression(u"\r?\n"_s)));
    m_app.state.IssueAlertTab = IniValue(answer, u"Tab"_s).replace(u"/n"_s, u"\n"_s);
    m_app.state.IssueAlertText = IniValue(answer, u"Description"_s).replace(u"/n"_s, u"\n"_s);
}

void ProductServer::CheckLoginMessage() {
    const QString answer = HTTPGet(m_app.state.ServerBaseURL + u"/login/showloginmessage.htm"_s);
    m_app.state.blnWaitForLoginFirst = answer.isEmpty();
}

std::optional<QDate> ProductServer::GetServerDate() {
    const bool alternate = m_app.state.ServerBaseURL == m_app.Expand(u"{ProductServerAlternate}"_s);
    const QString url = alternate ? m_app.Expand(u"{ProductServerAlternate}/dateandtime.htm"_s)
                                  : m_app.Expand(u"{ProductServer}/dateandtime.php"_s);
    return ParseDate(HTTPGet(url));
}

} // namespace qlm
