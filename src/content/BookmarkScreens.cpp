// SPDX-License-Identifier: MIT
#include "content/Bookmarks.h"
#include "content/ContentList.h"
#include "core/App.h"

#include <QScopeGuard>
#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Box = "frmManageBookmarks.lstBookmarks"_L1;
constexpr auto MoveUp = "frmManageBookmarks.cmdMoveUp"_L1;
constexpr auto MoveDown = "frmManageBookmarks.cmdMoveDown"_L1;
constexpr auto Name = "frmBookmark.txtName"_L1;
constexpr auto Location = "frmBookmark.txtLocation"_L1;
const QString Manager = u"frmManageBookmarks"_s;
const QString Editor = u"frmBookmark"_s;
const QString Placeholder = u"Add a Bookmark..."_s;
const QString NamePrompt = u"Enter a name for this bookmark"_s;

constexpr int DeleteKey = 46;
constexpr int ReturnKey = 13;

QStringList EntriesOf(const ListFile& file) {
    QStringList lines = file.Lines();
    lines.removeIf([](const QString& line) { return line.trimmed().isEmpty(); });
    return lines;
}

} // namespace

void Bookmarks::RegisterForms() {
    Commands& commands = m_app.commands;
    commands.Add(u"mnuBookmarkThisPage_Click"_s, [this] {
        m_file = File();
        ShowBookmark({}, m_app.WebBrowser1().LocationURL());
    });
    commands.Add(u"mnuManageBookmarks_Click"_s, [this] { mnuManageBookmarks_Click(); });
    commands.Add(Manager + u".cmdAddBookmark_Click"_s, [this] { ShowBookmark({}, {}); });
    commands.Add(Manager + u".cmdEditBookmark_Click"_s, [this] { Edit(); });
    commands.Add(Manager + u".cmdDeleteBookmark_Click"_s, [this] { Delete(); });
    commands.Add(Manager + u".cmdMoveUp_Click"_s, [this] { Move(-1); });
    commands.Add(Manager + u".cmdMoveDown_Click"_s, [this] { Move(1); });
    commands.Add(Manager + u".Command1_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(Manager); });
    commands.Add(Manager + u".lstBookmarks_DblClick"_s, [this] { Edit(); });
    commands.Add(Manager + u".lstBookmarks_KeyDown"_s, [this](int key) {
        if (key == DeleteKey)
            Delete();
        else if (key == ReturnKey)
            Edit();
    });
    commands.Add(Editor + u".cmdSave_Click"_s, "cmdSave_Click - frmBookmark", [this] { cmdSave_Click(); });
    commands.Add(Editor + u".cmdCancel_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(Editor); });
    m_listener = m_app.controls.AddListener([this](const Control& control, Controls::Change change, int) {
        if (control.name == Box && change == Controls::Change::Selected)
            EnableMoves();
    });
}

Bookmarks::~Bookmarks() {
    m_app.controls.RemoveListener(m_listener);
}

void Bookmarks::mnuManageBookmarks_Click() {
    if (m_isManaging)
        return;
    m_isManaging = true;
    const auto closed = qScopeGuard([this] { m_isManaging = false; });
    m_file = File();
    FillList();
    m_app.platform.Dialogs().ShowModal(Manager);
    m_app.controls.SetItems(Box, {});
}

void Bookmarks::FillList() {
    m_app.diagnostics.Trap("FillList - frmManageBookmarks", [this] {
        m_app.controls.SetItems(Box, {});
        QStringList names;
        for (const QString& line : EntriesOf(m_file))
            names.append(BookmarkOf(line).name);
        m_app.controls.SetItems(Box, names.isEmpty() ? QStringList{Placeholder} : names);
        m_app.controls.SetSelected(Box, 0);
    });
}

void Bookmarks::EnableMoves() {
    const int row = m_app.controls.Selected(Box);
    m_app.controls.SetEnabled(MoveUp, row > 0);
    m_app.controls.SetEnabled(MoveDown, row >= 0 && row + 1 < m_app.controls.Items(Box).size());
}

bool Bookmarks::RefuseWithoutBookmark(bool takesSeparators, const QString& words) {
    const QString row = m_app.controls.SelectedText(Box);
    const bool isNone = m_app.controls.Selected(Box) < 0 ||
                        row.contains(u"Add a Bookmark"_s, Qt::CaseInsensitive) ||
                        (!takesSeparators && Bookmark{row, {}}.IsSeparator());
    if (isNone)
        m_app.ShowMessage(words);
    return isNone;
}

void Bookmarks::Edit() {
    if (RefuseWithoutBookmark(false, u"Select a Bookmark to edit"_s))
        return;
    const QString line = EntriesOf(m_file).value(m_app.controls.Selected(Box));
    ShowBookmark(line, BookmarkOf(line).location);
}

void Bookmarks::Delete() {
    if (RefuseWithoutBookmark(true, u"Select a Bookmark to delete"_s) || !m_app.AskYesNo(u"Are you sure?"_s))
        return;
    m_app.diagnostics.Trap("cmdDeleteBookmark_Click - frmManageBookmarks", [this] {
        const QString name = m_app.controls.SelectedText(Box);
        QStringList lines = EntriesOf(m_file);
        lines.removeIf([&name](const QString& line) { return BookmarkOf(line).name == name; });
        m_file.Rewrite(lines);
        LoadBookmarksMenu();
        FillList();
    });
}

void Bookmarks::Move(int step) {
    m_app.diagnostics.Trap(step < 0 ? "MoveUp - frmManageBookmarks" : "MoveDown - frmManageBookmarks", [&] {
        const int row = m_app.controls.Selected(Box);
        QStringList lines = EntriesOf(m_file);
        if (row < 0 || row >= lines.size() || row + step < 0 || row + step >= lines.size())
            return;
        lines.swapItemsAt(row, row + step);
        m_file.Rewrite(lines);
        LoadBookmarksMenu();
        FillList();
        m_app.controls.SetSelected(Box, row + step);
    });
}

void Bookmarks::ShowBookmark(const std::optional<QString>& editedLine, const QString& location) {
    m_editedLine = editedLine;
    m_app.controls.SetText(Name, editedLine ? BookmarkOf(*editedLine).name : NamePrompt);
    m_app.controls.SetText(Location, location);
    m_app.platform.Dialogs().ShowModal(Editor);
}

void Bookmarks::cmdSave_Click() {
    const Bookmark bookmark{m_app.controls.Text(Name), m_app.controls.Text(Location)};
    auto refuse = [this](const QString& words, QLatin1StringView field) {
        m_app.ShowMessage(words);
        m_app.controls.SetFocus(field);
    };
    if (bookmark.name.trimmed().isEmpty() || bookmark.name == NamePrompt)
        return refuse(u"Please enter a name for the Bookmark"_s, Name);
    if (bookmark.location.trimmed().isEmpty())
        return refuse(u"Please enter the page address (URL)"_s, Location);
    if (!MayLoseLetters(m_app, bookmark.name + bookmark.location))
        return;
    const QString line = BookmarkLine(bookmark);
    if (m_editedLine) {
        QStringList lines = EntriesOf(m_file);
        std::ranges::replace(lines, *m_editedLine, line);
        m_file.Rewrite(lines);
    } else {
        m_file.Append(line);
    }
    LoadBookmarksMenu();
    if (m_isManaging)
        FillList();
    m_app.platform.Dialogs().CloseForm(Editor);
}

} // namespace qlm
