// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
class Element;
class InviteRun;

// InviteGroupNewLayout: the group's page with a grid of boxes, ten friends a page and twenty-five at a time.
class GroupGrid {
public:
    GroupGrid(App& app, InviteRun& run, int startPage) : m_app(app), m_run(run), m_startPage(startPage) {}

    void Run();

private:
    void GoToStartPage();
    void FillBatch();
    void WaitForGrid();
    int TickBoxes();
    void GoToNextPage();
    void WaitForUser();
    void GoBackTo(const QString& address);
    bool IsFull() const;

    App& m_app;
    InviteRun& m_run;
    int m_startPage;           // of the next batch
    bool m_isFinished = false; // nobody comes after this batch
};

} // namespace qlm
