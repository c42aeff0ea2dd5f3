// SPDX-License-Identifier: MIT
#pragma once

#include "core/IdList.h"

#include <QString>
#include <functional>

namespace qlm {

class App;

// The work list: arrFriendIDs is the truth, lstFriendIDs a capped view of it. Every change that keeps the two
// in step is an Add or a Remove.
class GatheredList {
public:
    explicit GatheredList(App& app);

    bool IsEmpty() const;
    // Upper bound of the array: 0 for the empty list too.
    qint32 UBound() const;

    // caller is a trace word. A row that the view doesn't show can't be removed.
    void Add(const QString& id, const QString& caller);
    void Remove(qint32 index, const QString& caller);
    // In arrFriendIDs, while accepting friends in lstAcceptIDs; with the flag among the addresses fetched
    // already.
    bool IsInList(const QString& id, bool fullGatherList);

    // An empty path means the account's own file, read only while "Save on exit" is ticked. The message loop
    // turns every few hundred lines.
    void FillScannedList(const QString& path, bool clearFirst, bool checkDuplicates);
    // Does nothing for the file that is just being read into the list: it holds more than the list does.
    // False when the file could not be written.
    bool SaveScannedList(const QString& path);
    void SetScannedLabel();
    // Fills lstFriendIDs anew from the array, up to the cap.
    void ArrayToListBox(const QString& caller);
    // Path of "Gathered.txt" in the scope of the account.
    QString ScopedPath();

    // The buttons, keys and menu of the list. Clear refuses while the list is being filled.
    void Clear();
    void Shuffle();
    void Import();
    void SaveToFile();
    void lstFriendIDs_KeyDown(int keyCode);
    void mnuContextIDsListItem_Click(int row);
    void GoToIDsPage();

private:
    void ProcessArrayAndList(const QString& caller, const std::function<void()>& change);
    void Append(const QString& id);
    void RemoveAt(qint32 index);
    void ReadLinesInto(const QString& path, bool checkDuplicates);
    // The list as it is now; with turns, the message loop turns between two parts of it.
    bool WriteList(const QString& path, bool turns);
    bool RefuseWhileFilling();

    App& m_app;
    QString m_readFrom; // while the list is being filled
};

// Exact test, as for the black list and the links of a page.
inline bool IsInArray(const QString& value, const IdList& array) {
    return array.contains(value);
}

} // namespace qlm
