// SPDX-License-Identifier: MIT
// Expectations about files, debug files and stored settings.
#include "Arguments.h"
#include "CommandTable.h"
#include "Expect.h"
#include "Stage.h"
#include "core/AnsiText.h"

#include <QFile>
#include <QFileInfo>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray ReadFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(u"there is no file %1"_s.arg(path));
    return file.readAll();
}

QStringList ReadLines(const QString& path) {
    QString text = FromAnsi(ReadFile(path));
    text.remove(u'\r');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

void File(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    ExpectLines(QFileInfo(path).fileName(), arguments.TakeLines(), ReadLines(path));
}

void NoFile(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    if (QFile::exists(path))
        Fail(u"%1 exists, %2 bytes"_s.arg(path).arg(QFileInfo(path).size()));
}

void Bytes(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    const QString expected = arguments.TakeAll().join(QString()).toUpper();
    ExpectText(u"the content of "_s + path, expected, QString::fromLatin1(ReadFile(path).toHex().toUpper()));
}

// The names in an archive, in order.
void ArchiveNames(Stage& stage, Arguments& arguments) {
    const QString path = stage.Path(arguments.Take("the path"));
    const auto archive = stage.TheApp().platform.Archive().Read(ReadFile(path));
    QStringList names;
    for (const ArchiveEntry& entry : archive->Entries())
        names.append(entry.name);
    ExpectLines(QFileInfo(path).fileName(), arguments.TakeLines(), names);
}

QStringList DebugLines(Stage& stage, const QString& name) {
    const QString path = stage.Path(u"{DataFolder}/"_s + name);
    return QFile::exists(path) ? ReadLines(path) : QStringList();
}

bool OneHolds(const QStringList& lines, const QString& text) {
    return std::any_of(lines.begin(), lines.end(), [&](const QString& line) { return line.contains(text); });
}

void Debug(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the debug file");
    const QStringList lines = DebugLines(stage, name);
    if (!OneHolds(lines, arguments.Take("the text")))
        Fail(u"no line of %1 holds that; its last: %2"_s.arg(name,
                                                             lines.mid(lines.size() - 5).join(u" | "_s)));
}

void NoDebug(Stage& stage, Arguments& arguments) {
    const QString name = arguments.Take("the debug file");
    if (OneHolds(DebugLines(stage, name), arguments.Take("the text")))
        Fail(u"a line of %1 holds that"_s.arg(name));
}

void Setting(Stage& stage, Arguments& arguments) {
    const QString section = arguments.Take("the section");
    const QString key = arguments.Take("the key");
    const QString expected = arguments.Take("the value");
    if (!stage.world.settings.HasSetting(section, key))
        Fail(u"%1, %2 is not stored"_s.arg(section, key));
    ExpectText(section + u", "_s + key, expected, stage.world.settings.GetSetting(section, key, {}));
}

void NoSetting(Stage& stage, Arguments& arguments) {
    const QString section = arguments.Take("the section");
    const QString key = arguments.Take("the key");
    if (stage.world.settings.HasSetting(section, key))
        Fail(u"%1, %2 is stored: %3"_s.arg(section, key, stage.world.settings.GetSetting(section, key, {})));
}

} // namespace

const CommandRows& ExpectingStoreCommands() {
    static const CommandRows rows{
        {"expect file", "word word", File},
        {"expect no file", "word", NoFile},
        {"expect bytes", "word word *", Bytes},
        {"expect archive", "word word", ArchiveNames},
        {"expect debug", "word word", Debug},
        {"expect no debug", "word word", NoDebug},
        {"expect setting", "word word word", Setting},
        {"expect no setting", "word word", NoSetting},
    };
    return rows;
}

} // namespace qlm::scenario
