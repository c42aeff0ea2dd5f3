// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm {

class App;

// The categories that the account sorts its friends into: fetched from the site in the hidden browser, shown
// in cboFRCategories, and kept in a file of the account.
class FriendCategories {
public:
    explicit FriendCategories(App& app);

    // Fills the box from the account's file; a missing one leaves it empty.
    void Load();

private:
    void piccmdFRRefreshCategories_Click();
    QStringList Fetch(int entry);
    QStringList NamesOnPage();
    bool HasNextPage();
    void OpenPage(int page, int entry);
    bool IsCurrent(int entry) const;
    void LeaveUnlessCurrent(int entry) const; // throws RunEnded
    QString Path();

    App& m_app;
    int m_entry = 0; // counts the fetches begun; a later one takes over
    QString m_email; // of the account whose categories are fetched
};

} // namespace qlm
