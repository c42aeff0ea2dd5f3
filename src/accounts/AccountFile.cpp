// SPDX-License-Identifier: MIT
#include "accounts/AccountFile.h"

#include "core/AccountName.h"
#include "core/AnsiText.h"
#include "core/App.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The number that the text begins with, as the digits of a damaged line are read too; 0 when it begins with
// none.
int LeadingHexNumber(QStringView text) {
    int value = 0;
    for (const QChar digit : text) {
        bool valid = false;
        const int digitValue = QString(digit).toInt(&valid, 16);
        if (!valid)
            break;
        value = value * 16 + digitValue;
    }
    return value;
}

QString EmailOf(const QString& plainLine) {
    return plainLine.left(plainLine.indexOf(u';'));
}

// What is longer is no account, and would hold up the screens.
bool IsTooLong(const QString& stored) {
    return stored.size() > 2 * LongestAccountLine;
}

bool SameEmail(const QString& left, const QString& right) {
    return left.toLower() == right.toLower();
}

bool IsOf(const QString& email, const QString& stored) {
    return !IsTooLong(stored) && SameEmail(EmailOf(DecodeAccountLine(stored)), email);
}

// The lines of a file without a mark at its beginning and with the usual ends.
QStringList PlainLines(const QByteArray& bytes) {
    QStringList lines = FromAnsi(bytes).replace(u"\r\n"_s, u"\n"_s).split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

// A line as it reads, written anew; one that is no account stays as it is.
QString Recoded(const QString& stored) {
    return IsTooLong(stored) ? stored : EncodeAccountLine(DecodeAccountLine(stored));
}

} // namespace

QString EncodeAccountLine(const QString& plain) {
    return QString::fromLatin1(ToAnsi(plain).toHex().toUpper());
}

QString DecodeAccountLine(const QString& digits) {
    QByteArray bytes;
    bytes.reserve((digits.size() + 1) / 2);
    for (qsizetype i = 0; i < digits.size(); i += 2)
        bytes.append(static_cast<char>(LeadingHexNumber(QStringView(digits).mid(i, 2))));
    return FromAnsi(bytes);
}

void MarkAddAccount(App& app, int number) {
    app.diagnostics.Debug(u"debuginitial.txt"_s, u"AddAcc"_s + QString::number(number));
}

QString AccountFile::Path() const {
    return m_app.ProgramFile(u"scalemodelight.txt"_s);
}

// A file that was brought from elsewhere may stand open to others.
void AccountFile::Ensure() {
    m_app.files.EnsureFile(Path(), Readers::OwnerAlone);
    m_app.files.CloseToOthers(Path());
}

QStringList AccountFile::Stored() {
    Ensure();
    return LinesOfText(m_app.files.ReadBytes(Path()));
}

QStringList AccountFile::Lines() {
    QStringList lines;
    for (const QString& stored : Stored())
        if (!IsTooLong(stored))
            lines.append(DecodeAccountLine(stored));
    return lines;
}

QString AccountFile::GetPasswordFromEmail(const QString& email) {
    for (QString line : Lines()) {
        const QString stored = EmailOf(line);
        if (!SameEmail(stored, email))
            continue;
        return line.contains(u';') ? line.remove(stored + u';') : QString();
    }
    return {};
}

QString AccountFile::GetAccountLine(const QString& email) {
    QString found;
    for (const QString& line : Lines())
        if (EmailOf(line).trimmed() == email)
            found = line;
    return found;
}

QStringList AccountFile::GetAccountDetails(const QString& email) {
    const QString line = GetAccountLine(email);
    return line.isEmpty() ? QStringList() : line.split(u';');
}

AccountFile::Listing AccountFile::Emails(const QString& path, bool encrypted, bool skipBlank) {
    if (path == Path())
        Ensure();
    else
        m_app.files.EnsureFile(path);
    Listing listing;
    for (const QString& line : LinesOfText(m_app.files.ReadBytes(path))) {
        listing.hadLines = true;
        if (IsTooLong(line))
            ++listing.tooLong;
        else if (!skipBlank || !line.trimmed().isEmpty())
            listing.emails.append(EmailOf(encrypted ? DecodeAccountLine(line) : line));
    }
    return listing;
}

// The temporary file stays behind, as the copy that a failed rewrite can be mended from.
void AccountFile::Rewrite(const QStringList& stored, const QString& temporaryPath) {
    m_app.files.WriteLines(temporaryPath, stored, Readers::OwnerAlone);
    m_app.files.CopyFile(temporaryPath, Path(), Readers::OwnerAlone);
}

namespace {

// The dialog's temporary file has no extension, unlike the one of Delete.
QString DialogTemporaryPath(const QString& accountFilePath) {
    return QString(accountFilePath).replace(u".txt"_s, u"_Temp"_s);
}

} // namespace

void AccountFile::Add(const QString& email, const QString& password) {
    const QString temporary = DialogTemporaryPath(Path());
    MarkAddAccount(m_app, 8);
    Ensure();
    MarkAddAccount(m_app, 9);
    m_app.files.EnsureFile(temporary, Readers::OwnerAlone);
    MarkAddAccount(m_app, 10);
    const QString line = (email + u';' + password).toLower();
    MarkAddAccount(m_app, 11);
    // Not appended in place: half a line would be an account that nobody has. What stands there stays as it
    // is, unless it is written in a way in which nothing can be added to it.
    QByteArray bytes = m_app.files.ReadBytes(Path());
    if (const QStringList lines = LinesOfText(bytes); lines != PlainLines(bytes))
        bytes = lines.join(u"\r\n"_s).toLatin1();
    if (!bytes.isEmpty() && !bytes.endsWith('\n'))
        bytes += "\r\n";
    m_app.files.WriteBytes(Path(), bytes + EncodeAccountLine(line).toLatin1() + "\r\n", Readers::OwnerAlone);
    MarkAddAccount(m_app, 12);
}

void AccountFile::Edit(const QString& oldEmail, const QString& email, const QString& password) {
    const QString temporary = DialogTemporaryPath(Path());
    MarkAddAccount(m_app, 8);
    m_app.files.EnsureFile(temporary, Readers::OwnerAlone);
    MarkAddAccount(m_app, 9);
    QStringList lines = Stored();
    MarkAddAccount(m_app, 13);
    for (QString& line : lines)
        line = IsOf(oldEmail, line) ? EncodeAccountLine(email + u';' + password) : Recoded(line);
    MarkAddAccount(m_app, 14);
    Rewrite(lines, temporary);
    MarkAddAccount(m_app, 15);
}

void AccountFile::Delete(const QString& email) {
    QStringList kept = Stored();
    kept.removeIf([&email](const QString& stored) { return IsOf(email, stored); });
    std::transform(kept.begin(), kept.end(), kept.begin(), Recoded);
    Rewrite(kept, m_app.ProgramFile(u"scalemodelight_Temp.txt"_s));
}

void AccountFile::Clear() {
    m_app.files.DeleteFile(Path());
}

void AccountFile::Export(const QString& path, const QStringList& emails) {
    QStringList lines;
    for (const QString& email : emails)
        lines.append(email + u';' + GetPasswordFromEmail(email));
    m_app.files.WriteLines(path, lines, Readers::OwnerAlone);
}

QString AccountFile::ImportProblem(const QString& path) const {
    int number = 0;
    for (const QString& line : LinesOfText(m_app.files.ReadBytes(path))) {
        ++number;
        const QString email = EmailOf(line).trimmed();
        const QString problem = AccountProblem(email, line.mid(EmailOf(line).size() + 1));
        if (!problem.isEmpty())
            return u"Line %1 cannot be imported, and the list stays as it was.\n\n%2"_s.arg(number).arg(
                problem);
    }
    return {};
}

void AccountFile::Import(const QString& path) {
    QStringList encoded;
    for (const QString& line : LinesOfText(m_app.files.ReadBytes(path)))
        encoded.append(EncodeAccountLine(line));
    m_app.files.WriteLines(Path(), encoded, Readers::OwnerAlone);
}

} // namespace qlm
