// SPDX-License-Identifier: MIT
#include "steps/StopReason.h"

#include <algorithm>
#include <iterator>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// In the order of the enumeration.
constexpr StopReasonRow Rows[] = {
    {StopReason::RequestsDone, "IAF"_L1, Ending::AllDone, true},
    {StopReason::MessagesDone, "ISM"_L1, Ending::AllDone, true},
    {StopReason::CommentsDone, "ISC"_L1, Ending::AllDone, true, true},
    {StopReason::AcceptDone, "IAF"_L1, Ending::AllDone, true},
    {StopReason::PendingDone, "IDPFR"_L1, Ending::AllDone, true},
    {StopReason::RequestLimit, "AFC"_L1, Ending::LimitMet, true, true},
    {StopReason::MessageLimit, "MSGSTOP"_L1, Ending::LimitMet, false, true},
    {StopReason::CommentLimit, "COMSTOP"_L1, Ending::LimitMet},
    {StopReason::RequestStop, "ADDSTOP"_L1, Ending::Stopped},
    {StopReason::MessageStop, "MSGSTOP"_L1, Ending::Stopped},
    {StopReason::CommentStop, "COMSTOP"_L1, Ending::Stopped},
    {StopReason::BulletinStop, "BULSTOP"_L1, Ending::Stopped},
    {StopReason::StatusStop, "STATUSSTOP"_L1, Ending::Stopped},
    {StopReason::AcceptStop, "ACCSTOP"_L1, Ending::Stopped},
    {StopReason::PendingStop, "DPFRSTOP"_L1, Ending::Stopped},
    {StopReason::InviteStop, "INVSTOP"_L1, Ending::Stopped},

    {StopReason::WindowStop, "MAINSTOP"_L1, Ending::Stopped},
    {StopReason::Closing, "FU"_L1, Ending::Closed},
    {StopReason::Uncounted, "UNCOUNTED"_L1, Ending::Uncounted},
    {StopReason::Unnoted, "UNNOTED"_L1, Ending::Unnoted},
    {StopReason::NoText, "NOTEXT"_L1, Ending::NoText},
    {StopReason::Flooding, "0"_L1, Ending::Flooding},
    {StopReason::DailyLimit, "LF2"_L1, Ending::DailyLimit, false, true},
    {StopReason::NotEnglish, "LF1"_L1},
    {StopReason::LoginDone, "ILA"_L1, Ending::Other, true},
    {StopReason::OtherSignIn, "TYPED"_L1},
    {StopReason::ChainEnded, "GNCA"_L1},

    {StopReason::GatherBegins, "GATHERSTART1"_L1},
    {StopReason::WebSearchBegins, "GATHERSTART2"_L1},
    {StopReason::RemoveFriendsBegins, "REMFR"_L1},
    {StopReason::GatherStop, "GATHERSTOP"_L1, Ending::Stopped},
    {StopReason::StoppedInFilter, "IGP1"_L1, Ending::Other, true},
    {StopReason::GatherDone, "IGP2"_L1, Ending::AllDone, true},
    {StopReason::GroupInvitesBegin, "GRINV"_L1},
    {StopReason::GroupInvitesDone, "GRINV"_L1, Ending::AllDone},
    {StopReason::GroupInvitesFailed, "GRINV"_L1},
    {StopReason::EventInvitesBegin, "EVINV1"_L1},
    {StopReason::EventPagerDone, "EVINV3"_L1, Ending::AllDone},
    {StopReason::EventTabsDone, "EVINV4"_L1, Ending::AllDone},
    {StopReason::EventInvitesDone, "EVINV5"_L1, Ending::AllDone},
    {StopReason::EventInvitesFailed, "EVINV6"_L1},
    {StopReason::PendingFailed, "IDPFR"_L1, Ending::Other, true},
    {StopReason::PagesRepeat, "LF2"_L1},
    {StopReason::LoginAgain, "LF2"_L1},
};

constexpr bool IsInOrder() {
    for (size_t i = 0; i < std::size(Rows); ++i)
        if (static_cast<size_t>(Rows[i].reason) != i)
            return false;
    return true;
}
static_assert(IsInOrder());
static_assert(std::size(Rows) == static_cast<size_t>(StopReason::LoginAgain) + 1);

} // namespace

const StopReasonRow& RowOf(StopReason reason) {
    return Rows[static_cast<size_t>(reason)];
}

} // namespace qlm
