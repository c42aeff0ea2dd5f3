// SPDX-License-Identifier: MIT
#include "core/Diagnostics.h"

#include "core/App.h"
#include "core/Registry.h"

#include <QRegularExpression>
#include <QScopedValueRollback>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qsizetype UncleanedLength = 20000;

QString WithGroups(const QString& replacement, const QRegularExpressionMatch& match) {
    QString filled;
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        const QChar next = i + 1 < replacement.size() ? replacement[i + 1] : QChar();
        if (replacement[i] == u'$' && next >= u'1' && next <= u'9') {
            filled += match.captured(next.digitValue());
            ++i;
        } else {
            filled += replacement[i];
        }
    }
    return filled;
}

// The numbers by which support knows the kinds of errors: the browser's, a file's, any other.
int ErrorNumber(const std::exception& error) {
    if (dynamic_cast<const BrowserError*>(&error))
        return 440;
    if (dynamic_cast<const FileError*>(&error))
        return 75;
    return 5;
}

QString BrowserVersion(App& app) {
    return modRegistry(app.platform.Settings())
        .ReadString(modRegistry::Root::CurrentUser, u"Software\\Microsoft\\Internet Explorer"_s, u"Version"_s,
                    u"x"_s);
}
} // namespace

// The class keeps letters, digits, the blank and the printable signs; ")-_" in it is a range that takes in
// "*" to "^".
QString Diagnostics::CleanText(const QString& text) {
    static const QRegularExpression unwanted(
        uR"([^A-Za-z 0-9 \.,\?'"!@#\$%\^&\*\(\)-_=\+;:<>\/\\\|\}\{\[\]`~]*)"_s);
    QString cleaned = text;
    return cleaned.remove(unwanted);
}

QString Diagnostics::Numbered(const std::exception& error) {
    return QString::number(ErrorNumber(error)) + u", "_s + QString::fromUtf8(error.what());
}

QString Diagnostics::Masked(const QString& text) {
    m_mask.Learn(m_app.state.AccountPassword);
    return m_mask.Masked(text);
}

QString Diagnostics::WithoutPasswords(const QString& address) {
    m_mask.Learn(m_app.state.AccountPassword);
    return m_mask.MaskedAddress(address);
}

void Diagnostics::AppendToFile(const QString& path, const QString& text, bool startNew, bool onlyIfLogging,
                               const QString& onlyForAction) {
    if (onlyIfLogging && !m_app.state.blnLoggingEnabled)
        return;
    if (!onlyForAction.isEmpty() && onlyForAction != m_app.state.CurrentAction)
        return;
    const bool clean = onlyIfLogging || text.size() > UncleanedLength;
    const QString line = clean ? CleanText(Masked(text)) : Masked(text);
    IgnoreErrors([&] {
        if (startNew)
            m_app.files.CreateFile(path);
        m_app.files.AppendLine(path, line, Readers::Everyone, Durability::Quick);
    });
    if (onLine)
        onLine(line);
}

void Diagnostics::Debug(const QString& fileName, const QString& text, bool startNew) {
    AppendToFile(FileSystem::Join(m_app.state.DataFolder, fileName), text, startNew, true, {});
}

void Diagnostics::DebugForAction(const QString& text) {
    if (const QString trail = trailOf ? trailOf(m_app.state.CurrentAction) : QString(); !trail.isEmpty())
        Debug(trail, text);
}

QString Diagnostics::RegExpReplace(const QString& text, const QString& pattern, const QString& replacement) {
    const QRegularExpression expression(pattern);
    if (!expression.isValid()) {
        Debug(u"debuginitial.txt"_s,
              u"ERROR IN RegExpReplace: "_s + QStringList{text, pattern, replacement}.join(u", "_s));
        return text;
    }
    QString replaced;
    qsizetype end = 0;
    for (auto matches = expression.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        replaced += text.mid(end, match.capturedStart() - end) + WithGroups(replacement, match);
        end = match.capturedEnd();
    }
    return replaced + text.mid(end);
}

void Diagnostics::ReportError(const QString& procedure, const std::exception& error, const QString& line,
                              const QString& data) {
    // An error while reporting must not report itself again.
    if (m_reporting)
        return;
    const QScopedValueRollback reporting(m_reporting, true);
    QString address;
    IgnoreErrors([&] { address = m_app.WebBrowser1().LocationURL(); });
    const QStringList block{u"Product: QLM"_s,
                            u"Time: "_s + m_app.NowText(),
                            u"Version: "_s + m_app.Version(),
                            u"PI: "_s + CleanText(Masked(address)),
                            u"IEV: "_s + CleanText(BrowserVersion(m_app)),
                            u"Error: "_s + QString::number(ErrorNumber(error)) + u"  -  "_s +
                                CleanText(Masked(QString::fromUtf8(error.what()))),
                            u"Proc: "_s + procedure,
                            u"Line: "_s + line,
                            u"Data: "_s + CleanText(Masked(data))};
    try {
        for (const QString& text : block)
            m_app.files.AppendLine(m_app.state.ErrorLogPath, text);
        TellUser(Masked(QString::fromUtf8(error.what())));
    } catch (const FileError&) {
        m_app.ShowMessage(
            u"An error has occurred while trying to write to the log file. This usually indicates a "
            "Windows permissions issue, please ensure your Windows user account has permission to write "
            "to this folder: "_s +
            m_app.platform.InstallationFolder() + u"\nError: ln "_s + line);
    }
}

void Diagnostics::LeaveFurther() const {
    if (m_app.waiting.IsOwned())
        throw;
}

void Diagnostics::TellUser(const QString& error) {
    if (m_shown) {
        const QString line =
            u"Another error at "_s + m_app.Pump().Now().toString(u"hh:mm:ss"_s) + u": "_s + error;
        m_app.controls.SetText("lblLaterErrors"_L1, line);
        m_app.controls.SetToolTip("lblLaterErrors"_L1, line + u'\n' + m_app.state.ErrorLogPath);
        return;
    }
    m_shown = true;
    m_app.controls.SetText("frmError.lblErrorLogPath"_L1, m_app.state.ErrorLogPath);
    m_app.platform.Dialogs().ShowForm(u"frmError"_s);
}

} // namespace qlm
