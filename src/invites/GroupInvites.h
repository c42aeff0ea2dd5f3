// SPDX-License-Identifier: MIT
#pragma once

#include "invites/InviteBlocks.h"
#include "invites/InviteOptions.h"

namespace qlm {

class App;

// Invites friends to a group, from the group's main page on. One batch after the other is filled; the user
// types the word under the image and sends it.
class GroupInvites {
public:
    explicit GroupInvites(App& app);

    // Both start buttons ask it.
    InviteOptions& Options() { return m_options; }
    InviteBlocks& Blocks() { return m_blocks; }
    // The run is over, by itself or by an error, and lblInviteBusy goes.
    void HideBusy();
    void ShowBusy();

private:
    void cmdGroupInvite_Click();
    void piccmdInviteStop_Click();
    bool MayStart();
    void Run();
    void Finish();
    void GotoInviteOthers();

    App& m_app;
    InviteOptions m_options;
    InviteBlocks m_blocks;
};

} // namespace qlm
