// SPDX-License-Identifier: MIT
#pragma once

#include "invites/InviteBlocks.h"
#include "platform/Document.h"

#include <QStringList>

namespace qlm {

class App;
class InviteRun;

// What the pages with a frame of groups and of events differ in. In the scripts {n} stands for a place in the
// list.
struct FramePage {
    const char16_t* type;
    const char16_t* list; // ID of the list of friends
    const char16_t* select;
    const char16_t* move;
    const char16_t* trace; // when the friends have been read the first time
    bool isSentByProgram;
};
extern const FramePage GroupFrame;
extern const FramePage EventFrame;

// The older pages: a frame holds a block of forty friends, those who are chosen are moved from there into the
// page's own list. webTemp shows the same block, and is what the friends are read from.
class FrameWalk {
public:
    FrameWalk(App& app, InviteRun& run, InviteBlocks& blocks, const FramePage& page, bool isLimitedToGathered)
        : m_app(app), m_run(run), m_blocks(blocks), m_page(page), m_isLimited(isLimitedToGathered) {}

    // The page has such a frame.
    bool Fits() const { return !Frame().IsNull(); }

    void Run();

private:
    void LoadBlocksInTemp();
    bool ChooseBlocks();
    void WorkThrough(int block);
    void GoToBlock(int block);
    void SelectBlock(int block);
    void AddPeople();
    bool TakeWanted(const QString& id);
    void Move(int index, const Element& option);
    void Add(const Element& option);
    void RunScript(const QString& script);
    void WaitForUser();
    void Send();
    bool HasFriends(const Document& page) const;
    Document Frame() const;

    App& m_app;
    InviteRun& m_run;
    InviteBlocks& m_blocks;
    const FramePage& m_page;
    bool m_isLimited;
    QString m_address; // of the page
    QStringList m_wanted;
    qsizetype m_used = 0; // of those
    int m_block = 0;      // in the frame now
    bool m_isLast = false;
};

} // namespace qlm
