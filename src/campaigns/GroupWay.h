// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The pages of a group, for a target that takes mail from its members alone: join it, add the friend, resign
// again. Group and friend are the deployment's. No step leads here: it stands ready for one that finds such a
// target. Each routine presses its button and says which page the running campaign, messages or friend
// requests, waits for at which step; false where the page has no such button, and then nothing has changed.
class GroupWay {
public:
    explicit GroupWay(App& app) : m_app(app) {}

    bool JoinGroup();
    bool SubmitGroupInvite();
    bool SubmitGroupResign();

    QString InviteAddress() const;
    QString ResignAddress() const;

private:
    struct Press;
    bool Submit(const Press& press);
    void ChooseGroup();

    App& m_app;
};

} // namespace qlm
