// SPDX-License-Identifier: MIT
#include "gather/ListFiles.h"

#include "core/AnsiText.h"
#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Often enough to answer the user at once, seldom enough not to be felt.
constexpr int LinesBetweenTurns = 256;
constexpr qsizetype LongestLine = 65536;

} // namespace

QString TextFilesFilter() {
    return u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;
}

Dialogs::Answer AskForDuplicates(App& app) {
    return app.platform.Dialogs().ShowMessage(
        u"Do you want Quillmere to check the list for duplicate ID's? This is recommended, but may take a "
        "while if you are importing a large list."_s,
        {}, Dialogs::Buttons::YesNoCancel);
}

void ForEachId(App& app, const QString& path, const std::function<void(const QString& id)>& visit) {
    int lines = 0;
    app.files.ForEachLine(path, [&](QByteArrayView line) {
        if (++lines % LinesBetweenTurns == 0)
            app.waiting.Pump();
        if (line.size() > LongestLine)
            return true;
        if (const QString id = FromAnsi(line).trimmed(); !id.isEmpty())
            visit(id);
        return true;
    });
}

} // namespace qlm
