// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace qlm {

// The steps of each activity, by the numbers that trails show. 0 is none: the activity doesn't run, or it is
// between two of its steps.
namespace LoginStep {
enum : qint16 { None = 0, SignOut = 1, OpenLoginPage = 2, SendForm = 3, Finish = 4, OpenSite = 10 };
}
namespace GatherStep {
enum : qint16 { None = 0, ScanPage = 3, TurnPage = 4 };
}
namespace FriendStep {
enum : qint16 {
    None = 0,
    NextTarget = 5,
    End = 6,
    DecideFilter = 7,
    Submit = 8,
    AfterSend = 9,
    // Through a group: no state of the machine stands for these.
    OpenGroupInvite = 14,
    OpenGroupResign = 16
};
}
namespace MessageStep {
enum : qint16 {
    None = 0,
    NextTarget = 4,
    End = 5,
    DecideFilter = 6,
    Submit = 7,
    AfterSend = 8,
    Captcha = 9,
    // Through a group, to who takes mail from its members alone.
    JoinGroup = 13,
    OpenGroupInvite = 14,
    InviteToGroup = 15,
    OpenGroupResign = 16,
    ResignFromGroup = 17
};
}
namespace CommentStep {
enum : qint16 {
    None = 0,
    NextTarget = 4,
    End = 5,
    DecideFilter = 6,
    Submit = 7,
    AfterSend = 8,
    Confirm = 11
};
}
namespace BulletinStep {
enum : qint16 { None = 0, Open = 2, Submit = 3, Rest = 5, Posted = 6, DeleteLast = 8 };
}
namespace AcceptStep {
enum : qint16 { None = 0, OpenList = 2, Approve = 3, FollowUp = 4, End = 5, LastPage = 6 };
}
namespace PendingStep {
enum : qint16 { None = 0, OpenList = 1, LastPage = 2, Delete = 3, End = 5 };
}

} // namespace qlm
