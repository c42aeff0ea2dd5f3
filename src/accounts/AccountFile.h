// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm {

class App;

// A line of the account file, "email;password", as hexadecimal text of its Windows-1252 bytes, and back.
// Decoding checks nothing: what is no hexadecimal number decodes to garbage.
QString EncodeAccountLine(const QString& plain);
QString DecodeAccountLine(const QString& digits);

// The store of accounts, "scalemodelight.txt" in ProgramFolder, readable by its owner alone. Nothing is
// cached: every operation opens, reads and closes the file, and creates it empty when it is missing. At
// whatever write an operation is cut off, the old or the new list stands whole. Throws FileError.
class AccountFile {
public:
    struct Listing {
        QStringList emails;
        bool hadLines = false; // also when all of them were left out
        int tooLong = 0;       // lines that are no accounts; they are left out, and stay in the file
    };

    explicit AccountFile(App& app) : m_app(app) {}

    QString Path() const;
    // Of the first line whose e-mail matches in any letter case; empty when there is none.
    QString GetPasswordFromEmail(const QString& email);
    // The last line whose e-mail matches exactly, split at every ";"; empty when there is none.
    QStringList GetAccountDetails(const QString& email);
    // That line as a whole.
    QString GetAccountLine(const QString& email);
    // E-mails in file order. skipBlank leaves out lines that are blank after trimming.
    Listing Emails(const QString& path, bool encrypted, bool skipBlank);

    // What is added goes into the file in lower case, the password too; an edited line keeps the case as
    // typed.
    void Add(const QString& email, const QString& password);
    // Replaces every line of oldEmail.
    void Edit(const QString& oldEmail, const QString& email, const QString& password);
    // Removes every line of that e-mail.
    void Delete(const QString& email);
    void Clear();
    // Plain text, the format that Import takes.
    void Export(const QString& path, const QStringList& emails);
    // Why that plain file can't be imported, in words for the user; empty when it can.
    QString ImportProblem(const QString& path) const;
    // Replaces the whole list by the lines of a plain file, as they stand.
    void Import(const QString& path);

private:
    void Ensure();
    // The lines as they are stored.
    QStringList Stored();
    QStringList Lines();
    void Rewrite(const QStringList& stored, const QString& temporaryPath);

    App& m_app;
};

// A mark of the trail that locates a failed save.
void MarkAddAccount(App& app, int number);

} // namespace qlm
