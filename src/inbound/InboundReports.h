// SPDX-License-Identifier: MIT
#pragma once

#include "steps/ReportStream.h"

namespace qlm {

inline constexpr ReportKind AcceptReport{
    .file = "AcceptReport.txt", .title = "Accepted friends", .allDone = "All requests were gone through"};
inline constexpr ReportKind PendingReport{.file = "PendingRequestsReport.txt",
                                          .title = "Pending requests",
                                          .allDone = "All pending requests were gone through"};

} // namespace qlm
