// SPDX-License-Identifier: MIT
#pragma once

#include "content/ContentList.h"
#include "content/ContentScreens.h"

#include <optional>

namespace qlm {

class App;

// frmMessage, frmComment, frmBulletin and frmStatus: one entry of a list, as the user writes it. One at a
// time, since each is modal.
class EntryScreens {
public:
    explicit EntryScreens(App& app);
    ~EntryScreens();

    // Shows the screen; returns when it has been closed. edited is the entry that is edited, null for a new
    // one.
    void Show(const ContentScreen& screen, const ContentList& list, const ContentFields* edited);

private:
    void Register(const ContentScreen& screen);
    void ShowFields(const ContentScreen& screen, const ContentFields& fields);
    ContentFields FieldsOn(const ContentScreen& screen) const;
    void cmdSave_Click(const ContentScreen& screen);
    void CountCharacters();

    App& m_app;
    int m_listener = 0;
    QString strMode; // "ADD" or "EDIT"
    std::optional<ContentList> m_list;
    ContentFields m_edited; // as it came
};

} // namespace qlm
