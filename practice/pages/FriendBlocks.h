// SPDX-License-Identifier: MIT
#pragma once

#include "InviteVisit.h"

namespace qlm::practice {

/// The older pages: blocks of forty friends in a frame, from where they are moved into the page's own list.
class FriendBlocks : InviteVisit {
public:
    FriendBlocks(Visit& visit, Gathering kind, qint64 number);
    /// The page, and what becomes of what it sends.
    Response Respond();
    /// What stands in its frame.
    Response Frame();

private:
    struct Design {
        QString list;   ///< ID of the friends' list in the frame
        QString select; ///< what a script that chooses the one at {n} holds
        QString form;   ///< name and ID
        QString button;
        QString title;
        QString heading;
        QString frame; ///< address, beside the page's own
        QString page;
        QString done; ///< where the page leads after it was sent
        bool asksForWord = false;
    };
    Response Form(bool wasWrong);
    QString Blocks(int chosen) const;
    QString StandIns(const QList<const Person*>& friends, int blocks) const;

    Design m_design;
};

} // namespace qlm::practice
