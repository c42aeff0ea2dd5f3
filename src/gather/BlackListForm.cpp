// SPDX-License-Identifier: MIT
#include "core/AnsiText.h"
#include "core/App.h"
#include "gather/BlackList.h"
#include "gather/ListFiles.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Box = "frmBlacklist.lstFriendIDs"_L1;
constexpr auto IdField = "frmBlacklist.txtID"_L1;
constexpr qsizetype LinesInAnAppend = 5000;
constexpr qsizetype BytesInAPart = 1 << 20;
constexpr int RowsBetweenTurns = 10000;

} // namespace

void BlackList::RegisterForm() {
    Commands& commands = m_app.commands;
    commands.Add(u"piccmdBlackList_Click"_s, [this] { piccmdBlackList_Click(); });
    commands.Add(u"frmBlacklist.cmdAdd_Click"_s, "cmdAdd_Click", [this] { cmdAdd_Click(); });
    commands.Add(u"frmBlacklist.cmdAddFromFile_Click"_s, "cmdAddFromFile_Click",
                 [this] { cmdAddFromFile_Click(); });
    commands.Add(u"frmBlacklist.cmdDelete_Click"_s, "cmdDelete_Click", [this] { cmdDelete_Click(); });
    commands.Add(u"frmBlacklist.cmdClearList_Click"_s, "cmdClearList_Click",
                 [this] { cmdClearList_Click(); });
    commands.Add(u"frmBlacklist.cmdClose_Click"_s,
                 [this] { m_app.platform.Dialogs().CloseForm(u"frmBlacklist"_s); });
}

void BlackList::piccmdBlackList_Click() {
    // The message loop turns while the window is being filled.
    if (m_windowIsOpen)
        return;
    m_windowIsOpen = true;
    const auto closed = qScopeGuard([this] { m_windowIsOpen = false; });
    m_app.diagnostics.Trap("piccmdBlackList_Click", [this] {
        m_app.controls.SetText(IdField, {});
        FillBlacklist(Path(), false, false);
        m_app.platform.Dialogs().ShowModal(u"frmBlacklist"_s);
        // A window that is closed keeps no rows.
        m_app.controls.SetItems(Box, {});
        FillArrayFromFile(u"arrBlacklistIDs"_s, Path());
    });
}

// The box shows the rows when all have been read.
void BlackList::FillBlacklist(const QString& path, bool checkDuplicates, bool writeToFile) {
    if (path.isEmpty())
        return;
    auto enable = [this](bool on) {
        for (const auto name :
             {"frmBlacklist.cmdAdd"_L1, "frmBlacklist.cmdAddFromFile"_L1, "frmBlacklist.cmdClose"_L1})
            m_app.controls.SetEnabled(name, on);
    };
    enable(false);
    const auto enableAgain = qScopeGuard([&enable] { enable(true); });
    const auto pointer = ShowWaitPointer(m_app);
    m_app.diagnostics.Trap("FillBlacklist", [&] {
        m_app.files.EnsureFile(path);
        QStringList rows = m_app.controls.Items(Box);
        IdList known;
        for (int i = 0; checkDuplicates && i < rows.size(); ++i) {
            if (i % RowsBetweenTurns == 0)
                m_app.waiting.Pump();
            known.append(rows.at(i));
        }
        QStringList unwritten;
        auto write = [&] {
            if (!unwritten.isEmpty())
                m_app.files.AppendLines(Path(), unwritten);
            unwritten.clear();
        };
        // What could not be written doesn't show either.
        const auto show = qScopeGuard([&] {
            rows.resize(rows.size() - unwritten.size());
            m_app.controls.SetItems(Box, rows);
        });
        ForEachId(m_app, path, [&](const QString& id) {
            if (checkDuplicates) {
                if (known.contains(id))
                    return;
                known.append(id);
            }
            rows.append(id);
            if (writeToFile)
                unwritten.append(id);
            if (unwritten.size() >= LinesInAnAppend)
                write();
        });
        write();
    });
}

void BlackList::EnableForm(bool enable) {
    for (const auto name :
         {"frmBlacklist.txtID"_L1, "frmBlacklist.cmdAdd"_L1, "frmBlacklist.cmdAddFromFile"_L1,
          "frmBlacklist.cmdDelete"_L1, "frmBlacklist.cmdClearList"_L1, "frmBlacklist.cmdClose"_L1})
        m_app.controls.SetEnabled(name, enable);
}

void BlackList::cmdAdd_Click() {
    const QString id = m_app.controls.Text(IdField);
    if (id.isEmpty()) {
        m_app.ShowMessage(u"Please specify an ID to add to the blacklist"_s);
        m_app.controls.SetFocus(IdField);
        return;
    }
    m_app.files.AppendLine(Path(), id);
    m_app.controls.AddItem(Box, id);
    m_app.controls.SetText(IdField, {});
}

void BlackList::cmdAddFromFile_Click() {
    const QString path = m_app.platform.Dialogs().ChooseFileToOpen({}, TextFilesFilter());
    if (path.isEmpty())
        return;
    const Dialogs::Answer answer = AskForDuplicates(m_app);
    EnableForm(false);
    const auto enableAgain = qScopeGuard([this] { EnableForm(true); });
    if (answer == Dialogs::Answer::Yes || answer == Dialogs::Answer::No)
        FillBlacklist(path, answer == Dialogs::Answer::Yes, true);
}

void BlackList::cmdDelete_Click() {
    const int row = m_app.controls.Selected(Box);
    if (row < 0)
        return;
    EnableForm(false);
    const auto enableAgain = qScopeGuard([this] { EnableForm(true); });
    DropLines(m_app.controls.SelectedText(Box));
    m_app.controls.RemoveItem(Box, row);
}

// Every line that is exactly the ID goes; the work copy stays behind.
void BlackList::DropLines(const QString& id) {
    const QString copy = m_app.ProgramFile(u"blacklistedids_temp.txt"_s);
    m_app.files.EnsureFile(Path());
    const QByteArray dropped = ToAnsi(id);
    QByteArray kept;
    m_app.files.ForEachLine(Path(), [&](QByteArrayView line) {
        if (line != dropped) {
            kept += line;
            kept += "\r\n";
        }
        return true;
    });
    WriteInParts(copy, kept);
    WriteInParts(Path(), kept);
}

void BlackList::WriteInParts(const QString& path, const QByteArray& bytes) {
    qsizetype done = 0;
    m_app.files.WriteParts(path, [&](QByteArray& part) {
        m_app.waiting.Pump();
        part = bytes.mid(done, BytesInAPart);
        done += part.size();
        return done < bytes.size();
    });
}

void BlackList::cmdClearList_Click() {
    if (!m_app.AskYesNo(u"You are about to clear all ID's from the Black List. Are you sure you want to "
                        "continue?"_s))
        return;
    m_app.files.CreateFile(Path());
    m_app.controls.SetItems(Box, {});
}

} // namespace qlm
