// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qlm {

class App;

// frmInvites: which blocks of the friends list to go through. frmPleaseEnterCaptcha: what to do with each of
// them.
class InviteBlocks {
public:
    explicit InviteBlocks(App& app);

    // Indexes of the chosen blocks, after Ask().
    int intStartLine = 0;
    int intEndLine = 0;

    // starts: the number of the first friend of each block. With strSendTo "IDs" all blocks are chosen and
    // nobody is asked. False when the user has left the form.
    bool Ask(const QString& type, const QString& sendTo, const QStringList& starts);
    // Where the next run goes on.
    void SaveNext(int block);
    // Unless the user has had enough of it.
    void ShowCaptchaNotice(const QString& type);

private:
    void cmdOK_Click();
    void CloseCaptchaNotice();
    int FirstChoice() const;
    QString Kept(const QString& key) const;
    void Keep(const QString& key, const QString& value);

    App& m_app;
    QString strType;
    int m_count = 0;
    bool m_isChosen = false;
};

} // namespace qlm
