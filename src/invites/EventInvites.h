// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QString>

namespace qlm {

class App;
class InviteRun;

// Invites friends to an event, from the event's page on. The site has had several pages for that; which one
// it is the page tells.
class EventInvites {
public:
    explicit EventInvites(App& app);

private:
    void cmdEventInvite_Click();
    void piccmdInvClearLog_Click();
    bool Run();
    QString EventId();
    bool OpenPublicList(InviteRun& run, const QString& id);
    bool HasPublicWords(const InviteRun& run) const;
    bool IsListOpen(InviteRun& run);
    bool OpenLog(InviteRun& run);
    bool GotoInviteMorePeople(InviteRun& run);
    bool Walk(InviteRun& run, const QString& id, bool isPublic);
    bool WalkBlocks(InviteRun& run, const QString& id);
    void GiveUp(const QString& message = {});
    void Trace(const QString& text);

    App& m_app;
};

} // namespace qlm
