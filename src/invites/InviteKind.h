// SPDX-License-Identifier: MIT
#pragma once

#include "core/RunState.h"
#include "steps/ReportStream.h"

namespace qlm {

// What inviting to a group and to an event differ in.
struct InviteKind {
    const char* type;      // begins the keys of section "invites" of the settings
    const char* logFolder; // below ProgramFolder
    qint32 RunState::*today;
    const char16_t* stopQuestion;
    StopReason begins;
    StopReason fails;
};

inline constexpr InviteKind GroupInviteKind{
    .type = "Groups",
    .logFolder = "GROUP INVITE LOGS",
    .today = &RunState::lngDailyGroupInvites,
    .stopQuestion =
        u"You have clicked the stop button. Do you want Quillmere to finish sending the group invites to "
        u"the friends you have selected so far?",
    .begins = StopReason::GroupInvitesBegin,
    .fails = StopReason::GroupInvitesFailed};

inline constexpr InviteKind EventInviteKind{
    .type = "Events",
    .logFolder = "EVENT INVITE LOGS",
    .today = &RunState::lngDailyEventInvites,
    .stopQuestion =
        u"You have clicked the stop button. Do you want Quillmere to finish sending the event invites to "
        u"the guests you have selected so far?",
    .begins = StopReason::EventInvitesBegin,
    .fails = StopReason::EventInvitesFailed};

// Runs of both kinds stand in one report.
inline constexpr ReportKind InviteReport{
    .file = "InvitesReport.txt", .title = "Invites", .allDone = "All friends were gone through"};

} // namespace qlm
