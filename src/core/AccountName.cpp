// SPDX-License-Identifier: MIT
#include "core/AccountName.h"

#include "core/AnsiText.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// In bytes, on every file system that a folder may stand on.
constexpr qsizetype LongestFileName = 255;
constexpr qsizetype KeptOfALongName = 150;

bool IsUnfit(QChar character) {
    return character < u' ' || character == u'\x7f' || u"\\/:*?\"<>|"_s.contains(character);
}

// Names that mean a folder or a device, whatever stands after their first dot.
bool IsReserved(const QString& name) {
    static const QRegularExpression reserved(
        u"^(?:\\.{1,2}|(?:con|prn|aux|nul|com[0-9]|lpt[0-9])(?:\\..*)?)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return reserved.match(name).hasMatch();
}

QString Escaped(QChar character) {
    return u'%' + QString::number(character.unicode(), 16).toUpper().rightJustified(2, u'0');
}

} // namespace

QString AccountNameProblem(const QString& email) {
    if (std::any_of(email.begin(), email.end(), IsUnfit) || email.contains(u';'))
        return u"An e-mail address can hold none of these signs: \\ / : * ? \" < > | ;"_s;
    if (IsReserved(email) || email.toUtf8().size() > LongestFileName)
        return u"This e-mail address cannot be used: an account's lists are kept in a folder of its name."_s;
    if (!FitsAnsi(email))
        return u"The e-mail address holds letters that the account list cannot keep. It keeps Western "
               u"European "
               "letters, digits and signs."_s;
    return {};
}

QString AccountFolderName(const QString& email) {
    QString name;
    for (const QChar character : email)
        name += IsUnfit(character) ? Escaped(character) : QString(character);
    if (IsReserved(name))
        name = Escaped(name.front()) + name.mid(1);
    if (name.toUtf8().size() <= LongestFileName)
        return name;
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1).toHex();
    QString beginning = name;
    while (beginning.toUtf8().size() > KeptOfALongName)
        beginning.truncate(std::min(beginning.size() - 1, KeptOfALongName));
    return beginning + u'%' + QString::fromLatin1(hash);
}

QString AccountProblem(const QString& email, const QString& password) {
    if (const QString problem = AccountNameProblem(email); !problem.isEmpty())
        return problem;
    if (!FitsAnsi(password))
        return u"The password holds letters that the account list cannot keep. It keeps Western European "
               u"letters, "
               "digits and signs."_s;
    if (email.size() + password.size() >= LongestAccountLine)
        return u"The password is too long."_s;
    return {};
}

} // namespace qlm
