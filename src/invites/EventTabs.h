// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;
class InviteRun;

// EventInviteNewLayout3: everybody stands on one page below tabs, with a box each.
class EventTabs {
public:
    EventTabs(App& app, InviteRun& run, bool isPublic) : m_app(app), m_run(run), m_isPublic(isPublic) {}

    bool Fits() const;
    void Run();

private:
    void TickBoxes();
    void SubmitPrivate();
    void SubmitPublic();
    void Trace(const QString& text);

    App& m_app;
    InviteRun& m_run;
    bool m_isPublic;
};

} // namespace qlm
