// SPDX-License-Identifier: MIT
#include "CommandTable.h"

#include <QHash>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostWordsInAName = 3;

using Index = QHash<QString, void (*)(Stage&, Arguments&)>;

Index BuildIndex() {
    Index index;
    for (const CommandRows* rows :
         {&SettingUpCommands(), &SettingUpSiteCommands(), &ActingCommands(), &ActingInPageCommands(),
          &RunningCommands(), &ExpectingWindowCommands(), &ExpectingControlCommands(),
          &ExpectingSiteCommands(), &ExpectingStoreCommands()})
        for (const CommandRow& row : *rows)
            index.insert(QString::fromLatin1(row.name), row.run);
    return index;
}

} // namespace

void RunCommand(Stage& stage, Arguments& arguments) {
    static const Index index = BuildIndex();
    const QStringList& words = arguments.Source().words;
    for (int count = std::min<int>(MostWordsInAName, static_cast<int>(words.size())); count > 0; --count) {
        const auto run = index.value(QStringList(words.first(count)).join(u' '));
        if (!run)
            continue;
        for (int i = 0; i < count; ++i)
            arguments.TakeWord(QLatin1StringView(words[i].toLatin1()));
        run(stage, arguments);
        arguments.End();
        return;
    }
    Fail(u"there is no such command"_s);
}

} // namespace qlm::scenario
