// SPDX-License-Identifier: MIT
#pragma once

#include "content/EntryScreens.h"

#include <vector>

namespace qlm {

// The four screens on which the user keeps the lists of prepared texts, opened from the tabs. All go by their
// rows (ContentScreens.h); one is open at a time, since each is modal.
class ListScreens {
public:
    explicit ListScreens(App& app);
    ~ListScreens();

    // Shows the screen of that kind; returns when it has been closed and the tab shows the list.
    void Open(ContentKind kind);

private:
    void Register(const ContentScreen& screen);
    void OpenScreen(const ContentScreen& screen);
    void RestoreOrder();
    void StoreOrder();
    // FillBulletinsList and so on.
    void FillList();
    void FillWith(const QStringList& lines, int chosenRow);
    void OfferToClear(const QString& error);
    void ShowRows(const QStringList& lines, int chosenRow);
    void FillDetails();
    void EnableMoves();
    bool IsNothingSelected() const;
    bool RefuseWithoutEntry(const char16_t* words);

    void Add();
    void Edit();
    void Delete();
    void UndoDelete();
    void Move(Direction direction);
    void Drop(int place);
    void ChangeSelectedState(int row, bool ticked);
    void Preview();
    void KeyDown(int key);

    QLatin1StringView Box() const { return QLatin1StringView(m_screen->list); }
    QByteArray ControlNamed(const char* name) const;

    App& m_app;
    int m_listener = 0;
    EntryScreens m_entries;
    // Of the open screen.
    const ContentScreen* m_screen = nullptr;
    const QStringList* m_linesAtHand = nullptr; // while the list is being filled with them
    std::optional<ContentList> m_list;
    QString m_section;                               // of its order options
    std::vector<std::vector<RemovedLine>> m_deleted; // the last one comes back first
};

} // namespace qlm
