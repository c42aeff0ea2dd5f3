// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// frmGroupInviteOptions: whom to invite, and from which page of the list on.
class InviteOptions {
public:
    explicit InviteOptions(App& app);

    // Comes back when the form has been closed. False when the user has cancelled it.
    bool Ask(bool showNotice);
    bool SendsToGatheredIDs() const;
    // 1 for whatever is no number.
    int StartPage() const;

private:
    void cmdSave_Click();
    void Load();

    App& m_app;
    bool blnCancel = true;
};

} // namespace qlm
