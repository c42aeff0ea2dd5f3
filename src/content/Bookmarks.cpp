// SPDX-License-Identifier: MIT
#include "content/Bookmarks.h"

#include "content/ContentLine.h"
#include "core/App.h"
#include "core/SettingsFields.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString BookmarkMarker = u"&Bookmark="_s;
const QString SemicolonWord = u"%cln%"_s;

} // namespace

Bookmark BookmarkOf(const QString& line) {
    const qsizetype place = line.indexOf(BookmarkMarker, 0, Qt::CaseInsensitive);
    Bookmark bookmark;
    bookmark.name = QString(place < 0 ? line : line.left(place)).replace(SemicolonWord, u";"_s);
    if (place >= 0)
        bookmark.location = UnescapeLine(line.mid(place + BookmarkMarker.size()));
    return bookmark;
}

QString BookmarkLine(const Bookmark& bookmark) {
    QString line = bookmark.name + BookmarkMarker + bookmark.location;
    return line.replace(u';', SemicolonWord);
}

Bookmarks::Bookmarks(App& app) : m_app(app) {
    app.commands.Add(u"mnuBookmarksItem_Click"_s, [this](int item) { GoTo(item); });
    RegisterForms();
}

ListFile Bookmarks::File() const {
    const QString folder = FileSystem::Join(m_app.state.ProgramFolder,
                                            m_app.Get<SettingsFields>().AccountDataPath(u"BookmarksList"_s));
    return {m_app.files, folder, u"BookmarksList.txt"_s};
}

void Bookmarks::LoadBookmarksMenu() {
    m_app.diagnostics.Trap("LoadBookmarksMenu", [this] {
        m_menu.clear();
        QStringList captions;
        for (const QString& line : File().Lines()) {
            if (line.trimmed().isEmpty())
                continue;
            m_menu.push_back(BookmarkOf(line));
            captions.append(m_menu.back().name);
        }
        m_app.controls.SetItems("mnuBookmarks"_L1, captions);
    });
}

// As the buttons beside the address do.
void Bookmarks::GoTo(int item) {
    if (item < 0 || item >= static_cast<int>(m_menu.size()))
        return;
    const QString location = m_menu[static_cast<size_t>(item)].location.trimmed();
    if (location.isEmpty())
        return;
    m_app.state.blnUserNavigated = true;
    m_app.webHide().ZOrder(1);
    m_app.WebBrowser1().Navigate(location);
}

} // namespace qlm
