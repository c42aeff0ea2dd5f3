// SPDX-License-Identifier: MIT
#include "core/ProductServer.h"

#include "core/App.h"
#include "core/IniFile.h"
#include "core/Text.h"

#include <QRegularExpression>
#include <cmath>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

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

// The user may have closed the program while it waited.
std::optional<QString> ProductServer::Ask(const QString& url) {
    std::optional<QString> answer = m_app.platform.Http().Get(url);
    if (m_app.state.blnClosing)
        throw ProgramEnding();
    return answer;
}

QString ProductServer::HTTPGet(const QString& url) {
    const std::optional<QString> answer = Ask(url);
    if (answer)
        return *answer;
    m_app.ShowMessage(
        u"There seems to be a temporary Internet connection problem. Please check your internet "
        "connection, or try again later. If the problem persists over a period of time, please make "
        "sure Quillmere is specified as a trusted application in your firewall software."_s);
    // The account may be half restored: nothing of it may be written over what is stored.
    m_app.state.blnNoSaveOnExit = true;
    m_app.Close();
    throw ProgramEnding();
}

QString ProductServer::TestGet(const QString& url) {
    return Ask(url).value_or(u"try alternate server"_s);
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
    const clsINI alert(m_app, path);
    m_app.state.IssueAlertTab = alert.ReadIni(u"Alert"_s, u"Tab"_s).replace(u"/n"_s, u"\n"_s);
    m_app.state.IssueAlertText = alert.ReadIni(u"Alert"_s, u"Description"_s).replace(u"/n"_s, u"\n"_s);
}

void ProductServer::CheckLoginMessage() {
    const QString answer = HTTPGet(m_app.state.ServerBaseURL + u"/login/showloginmessage.htm"_s);
    m_app.state.blnWaitForLoginFirst = answer.isEmpty();
}

QString ProductServer::DateAndTime() {
    const bool alternate = m_app.state.ServerBaseURL == m_app.Expand(u"{ProductServerAlternate}"_s);
    return HTTPGet(alternate ? m_app.Expand(u"{ProductServerAlternate}/dateandtime.htm"_s)
                             : m_app.Expand(u"{ProductServer}/dateandtime.php"_s));
}

std::optional<QDate> ProductServer::GetServerDate() {
    return ParseDate(DateAndTime());
}

qint32 ProductServer::TimeDiff() {
    static const QRegularExpression clock(u"\\s(\\d{1,2}):(\\d{2})(?::(\\d{2}))?(?:\\s*([AP])M)?\\s*$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    const QString answer = DateAndTime();
    const std::optional<QDate> date = ParseDate(answer);
    const QRegularExpressionMatch match = clock.match(answer);
    const QString half = match.captured(4).toUpper();
    const int hour = match.captured(1).toInt();
    const QTime time(half.isEmpty() ? hour : hour % 12 + (half == u"P"_s ? 12 : 0), match.captured(2).toInt(),
                     match.captured(3).toInt());
    if (!date || !match.hasMatch() || !time.isValid()) {
        m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"TimeDiff - err"_s);
        return 0;
    }
    // Both clocks without a zone: the difference is what is asked for.
    const QDateTime server(*date, time, Qt::UTC);
    const QDateTime now = m_app.Pump().Now();
    const double hours =
        static_cast<double>(QDateTime(now.date(), now.time(), Qt::UTC).secsTo(server)) / 3600;
    const auto whole = static_cast<qint32>(std::nearbyint(hours));
    m_app.diagnostics.Debug(u"debuginitial.txt"_s, u"TimeDiff - "_s + QString::number(whole));
    return whole;
}

} // namespace qlm
