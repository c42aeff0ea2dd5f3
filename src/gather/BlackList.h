// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The IDs that gathering never adds and the file they stand in, and the pass that strikes the user's own
// friends out of the gathered list.
class BlackList {
public:
    explicit BlackList(App& app);

    QString Path() const;
    // Reads the file's lines into the array of that name; only "arrBlacklistIDs" is one. An empty path does
    // nothing.
    void FillArrayFromFile(const QString& arrayName, const QString& path);
    void picRemoveFriends_Click();

private:
    App& m_app;
};

} // namespace qlm
