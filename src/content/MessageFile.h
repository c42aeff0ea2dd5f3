// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// One message kept in a file of the user's choice: subject, "xmsgx", body, in one line.
class MessageFile {
public:
    explicit MessageFile(App& app);

private:
    // Appends: a file that is chosen again receives a further line, and loading reads the first.
    void piccmdMsgSave_Click();
    void piccmdMsgLoad_Click();

    App& m_app;
};

} // namespace qlm
