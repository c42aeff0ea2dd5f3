// SPDX-License-Identifier: MIT
#include "CommandTable.h"

#include <QHash>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostWordsInAName = 3;

using Index = QHash<QString, const CommandRow*>;

Index BuildIndex() {
    Index index;
    for (const CommandRows* rows :
         {&SettingUpCommands(), &SettingUpSiteCommands(), &ActingCommands(), &ActingInPageCommands(),
          &RunningCommands(), &ExpectingWindowCommands(), &ExpectingControlCommands(),
          &ExpectingSiteCommands(), &ExpectingStoreCommands()})
        for (const CommandRow& row : *rows)
            index.insert(QString::fromLatin1(row.name), &row);
    return index;
}

} // namespace

FoundCommand FindCommand(const QStringList& words) {
    static const Index index = BuildIndex();
    for (int count = std::min<int>(MostWordsInAName, static_cast<int>(words.size())); count > 0; --count)
        if (const CommandRow* row = index.value(QStringList(words.first(count)).join(u' ')))
            return {row, count};
    return {};
}

void RunCommand(Stage& stage, Arguments& arguments) {
    const QStringList& words = arguments.Source().words;
    const FoundCommand found = FindCommand(words);
    if (!found.row)
        Fail(u"there is no such command"_s);
    for (int i = 0; i < found.words; ++i)
        arguments.TakeWord(QLatin1StringView(words[i].toLatin1()));
    found.row->run(stage, arguments);
    arguments.End();
}

} // namespace qlm::scenario
