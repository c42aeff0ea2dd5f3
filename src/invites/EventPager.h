// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
class InviteRun;

// EventInviteNewLayout1: a list whose pages are fetched in place. The user sends whoever has been chosen on
// all of them, or before the site lets the list expire; then the run goes on where it was.
class EventPager {
public:
    EventPager(App& app, InviteRun& run, int startPage) : m_app(app), m_run(run), m_page(startPage) {}

    bool Fits() const;
    void Run();

private:
    bool IsLoaded() const;
    bool IsExpired() const;
    bool IsLastPage() const;
    void GoToPage(const QString& status);
    void FillBatch();
    void ChooseOnPage();
    void WaitForUser();
    void GoBackToList();

    App& m_app;
    InviteRun& m_run;
    int m_page;
    bool m_isFinished = false;
};

} // namespace qlm
