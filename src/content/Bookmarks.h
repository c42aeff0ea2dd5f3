// SPDX-License-Identifier: MIT
#pragma once

#include "content/ListFile.h"

#include <optional>
#include <vector>

namespace qlm {

class App;

struct Bookmark {
    QString name; // "-" alone is a separator
    QString location;
    bool IsSeparator() const { return name == u"-"; }
};

// The pages that the user likes to come back to, kept per account or once for all: the menu of them, and the
// two forms on which they are edited.
class Bookmarks {
public:
    explicit Bookmarks(App& app);
    ~Bookmarks();

    // The menu as the file says.
    void LoadBookmarksMenu();

private:
    // BookmarkScreens.cpp: the two forms.
    void RegisterForms();
    void mnuManageBookmarks_Click();
    void FillList();
    void EnableMoves();
    bool RefuseWithoutBookmark(bool takesSeparators, const QString& words);
    void Edit();
    void Delete();
    void Move(int step);
    void ShowBookmark(const std::optional<QString>& editedLine, const QString& location);
    void cmdSave_Click();

    ListFile File() const;
    void GoTo(int item);

    App& m_app;
    int m_listener = 0;
    std::vector<Bookmark> m_menu; // as it shows
    bool m_isManaging = false;
    ListFile m_file;                     // where the open form saves
    std::optional<QString> m_editedLine; // the line that frmBookmark edits; none while it adds
};

// One line of the file. A text without its marker is a name without an address.
Bookmark BookmarkOf(const QString& line);
QString BookmarkLine(const Bookmark& bookmark);

} // namespace qlm
