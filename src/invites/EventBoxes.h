// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;
class Element;
class InviteRun;

// EventInviteNewLayout2: friends are chosen by a click on their block, on all pages of the list, and sent to
// at the end of them.
class EventBoxes {
public:
    EventBoxes(App& app, InviteRun& run) : m_app(app), m_run(run) {}

    bool Fits() const;
    void Run();

private:
    void ChooseOnPage();
    bool GoToNextPage();
    void Submit();

    App& m_app;
    InviteRun& m_run;
};

} // namespace qlm
