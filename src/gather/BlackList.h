// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The IDs that gathering never adds, the file they stand in and its window; and the pass that strikes the
// user's own friends out of the gathered list.
class BlackList {
public:
    explicit BlackList(App& app);

    QString Path() const;
    // Reads the file's lines into the array of that name; only "arrBlacklistIDs" is one. An empty path does
    // nothing.
    void FillArrayFromFile(const QString& arrayName, const QString& path);
    void picRemoveFriends_Click();

    // frmBlacklist. What is changed there reaches the scan when the window is closed.
    void piccmdBlackList_Click();
    // Adds the file's lines to the box of the window, and to the black list's file too if asked. An empty
    // path does nothing.
    void FillBlacklist(const QString& path, bool checkDuplicates, bool writeToFile);

private:
    void RegisterForm();
    void cmdAdd_Click();
    void cmdAddFromFile_Click();
    void cmdDelete_Click();
    void cmdClearList_Click();
    void DropLines(const QString& id);
    void WriteInParts(const QString& path, const QByteArray& bytes);
    void EnableForm(bool enable);

    App& m_app;
    bool m_windowIsOpen = false;
};

} // namespace qlm
