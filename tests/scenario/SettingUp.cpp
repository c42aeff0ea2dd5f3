// SPDX-License-Identifier: MIT
// Commands that prepare the machine: clock, chance, store, files, accounts, list, run state.
#include "Arguments.h"
#include "CommandTable.h"
#include "Stage.h"
#include "StateFields.h"
#include "accounts/AccountFile.h"
#include "core/AnsiText.h"
#include "gather/GatheredList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

void WriteFile(const QString& path, const QByteArray& bytes, QIODevice::OpenMode mode) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(mode) || file.write(bytes) != bytes.size())
        Fail(u"cannot write %1"_s.arg(path));
}

QByteArray AsLines(const QStringList& lines) {
    QByteArray bytes;
    for (const QString& line : lines)
        bytes += ToAnsi(line) + "\r\n";
    return bytes;
}

void Clock(Stage& stage, Arguments& arguments) {
    const QString date = arguments.Take("the date");
    const QString time = arguments.Take("the time");
    const QDateTime now = QDateTime::fromString(date + u' ' + time, u"yyyy-MM-dd hh:mm:ss"_s);
    if (!now.isValid())
        Fail(u"no date and time: %1 %2"_s.arg(date, time));
    stage.SetClock(now);
}

// The machine's own time zone, with its changes of the clock.
void Zone(Stage& stage, Arguments& arguments) {
    stage.SetZone(arguments.Take("the zone"));
}

void RandomNumbers(Stage& stage, Arguments& arguments) {
    std::vector<double> numbers;
    while (!arguments.IsEmpty()) {
        const QString word = arguments.Take("a number");
        bool isNumber = false;
        numbers.push_back(word.toDouble(&isNumber));
        if (!isNumber || numbers.back() < 0 || numbers.back() >= 1)
            Fail(u"no number from 0 up to 1: %1"_s.arg(word));
    }
    stage.world.random.SetNumbers(numbers);
}

void Setting(Stage& stage, Arguments& arguments) {
    const QString section = arguments.Take("the section");
    const QString key = arguments.Take("the key");
    stage.world.settings.SaveSetting(section, key, arguments.Take("the value"));
}

void File(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    WriteFile(path, AsLines(arguments.TakeLines()), QIODevice::WriteOnly);
}

void DeleteFile(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    if (!QFile::remove(path))
        Fail(u"cannot delete %1"_s.arg(path));
}

void Bytes(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    const QByteArray hex = arguments.TakeAll().join(QString()).toLatin1().toUpper();
    const QByteArray bytes = QByteArray::fromHex(hex);
    if (bytes.toHex().toUpper() != hex)
        Fail(u"no bytes: "_s + QString::fromLatin1(hex));
    WriteFile(path, bytes, QIODevice::WriteOnly);
}

void Account(Stage& stage, Arguments& arguments) {
    const QString email = arguments.Take("the e-mail");
    const QString line = EncodeAccountLine(email + u';' + arguments.Take("the password"));
    WriteFile(stage.Path(u"{ProgramFolder}/scalemodelight.txt"_s), AsLines({line}),
              QIODevice::WriteOnly | QIODevice::Append);
}

void LoggedIn(Stage& stage, Arguments& arguments) {
    const QString email = arguments.Take("the e-mail");
    stage.LogIn(email, arguments.Take("the account's own ID"));
}

void List(Stage& stage, Arguments& arguments) {
    App& app = stage.TheApp();
    const QStringList ids = arguments.TakeAll();
    app.state.arrFriendIDs = ids.isEmpty() ? IdList{QString()} : IdList(ids);
    app.Get<GatheredList>().ArrayToListBox(u"scenario"_s);
    app.Get<GatheredList>().SetScannedLabel();
}

void State(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the field");
    const QString text = arguments.IsEmpty() ? QString() : arguments.Take("the value");
    WriteStateField(stage.TheApp().state, name, text);
}

void ReadOnly(Stage& stage, Arguments& arguments) {
    stage.world.gate.readOnlyFolders << stage.Path(arguments.Take("the folder"));
}

// let NAME = text, let NAME = "text" or let NAME = <<END. A text without quotes around it stays as written,
// with whatever quotes it holds.
void Let(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the name");
    if (!arguments.TakeWord("="_L1))
        Fail(u"let NAME = text"_s);
    const Command& command = arguments.Source();
    const QString written = command.source.section(u'=', 1).trimmed();
    const QStringList words = arguments.TakeAll();
    const bool isOneQuotedWord = words.size() == 1 && written.startsWith(u'"') && written.endsWith(u'"');
    stage.names[name] = command.lastIsText || isOneQuotedWord ? words.join(u' ') : stage.Expand(written);
}

} // namespace

const CommandRows& SettingUpCommands() {
    static const CommandRows rows{
        {"clock", "word word", Clock},
        {"zone", "word", Zone},
        {"delete-file", "word", DeleteFile},
        {"bytes", "word word *", Bytes},
        {"random", "word *", RandomNumbers},
        {"setting", "word word word", Setting},
        {"file", "word word", File},
        {"account", "word word", Account},
        {"logged-in", "word word", LoggedIn},
        {"list", "*", List},
        {"state", "field word?", State},
        {"readonly", "word", ReadOnly},
        {"let", "word = *", Let},
    };
    return rows;
}

} // namespace qlm::scenario
