// SPDX-License-Identifier: MIT
#include "SimulatedProgram.h"
#include "core/AccountName.h"
#include "core/SettingsFields.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QStringList& Unfit() {
    static const QStringList names{u"../x"_s,
                                   u"..\\x"_s,
                                   u"/etc/x"_s,
                                   u"."_s,
                                   u".."_s,
                                   u"a/../../x"_s,
                                   u"a\0b"_s,
                                   u"C:x"_s,
                                   u"a\nb"_s,
                                   u"NUL"_s,
                                   u"con.txt"_s,
                                   u"lpt1"_s,
                                   u"a*b"_s,
                                   u"a?b"_s,
                                   u"a\"b"_s,
                                   u"a|b"_s,
                                   u"<a>"_s,
                                   QString(300, u'a'),
                                   QString(100, u'\u20ac')};
    return names;
}

TEST(AccountName, AnOrdinaryAddressIsItsOwnFolder) {
    for (const QString& email : {u"a@example.com"_s, u"o'neil+x%y=z!#$&{}^~@ex-am.ple"_s, u"..x"_s,
                                 u"console"_s, u"nul@example.com"_s, u"\u00e9@example.com"_s}) {
        EXPECT_EQ(AccountNameProblem(email), QString()) << email.toStdString();
        EXPECT_EQ(AccountFolderName(email), email);
    }
}

TEST(AccountName, WhatIsNoNameOfAFolderIsRefused) {
    for (const QString& email : Unfit())
        EXPECT_NE(AccountNameProblem(email), QString()) << email.toStdString();
    EXPECT_NE(AccountNameProblem(u"a;b"_s), QString());
    EXPECT_NE(AccountNameProblem(u"\u043f@example.com"_s), QString());
}

TEST(AccountName, AFolderIsOneOfItsOwnWhateverTheAccountIsCalled) {
    QSet<QString> folders;
    for (const QString& email : Unfit()) {
        const QString name = AccountFolderName(email);
        EXPECT_FALSE(name.contains(u'/') || name.contains(u'\\') || name.contains(QChar(0)))
            << name.toStdString();
        EXPECT_FALSE(name.isEmpty() || name == u"."_s || name == u".."_s);
        EXPECT_LE(name.toUtf8().size(), 255);
        folders.insert(name);
    }
    EXPECT_EQ(folders.size(), Unfit().size());
    EXPECT_EQ(AccountFolderName(u"../x"_s), u"..%2Fx"_s);
    EXPECT_EQ(AccountFolderName(u".."_s), u"%2E."_s);
}

class AccountFolderTest : public SimulatedProgram {};

// An account that was stored by somebody else.
TEST_F(AccountFolderTest, ListsOfAnAccountStayInTheFolderOfAllAccounts) {
    StartOn({});
    world.settings.SaveSetting(u"General"_s, u"blnUseGlobalLogs"_s, u"False"_s);
    app->state.AccountEmail = u"../../outside"_s;
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    const QString path = app->Get<SettingsFields>().AccountDataPath(u"Log"_s);
    EXPECT_EQ(path, u"\\ACCOUNTS\\..%2F..%2Foutside"_s);
    EXPECT_EQ(
        QDir(app->ProgramFile(u"ACCOUNTS"_s)).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{u"..%2F..%2Foutside"_s});
}

} // namespace
} // namespace qlm
