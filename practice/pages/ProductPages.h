// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// The product server: short texts that the program fetches, and two pages that it shows.
Response OnlineTest(Visit& visit);
Response Version(Visit& visit);
Response IssueAlert(Visit& visit);
Response LoginMessage(Visit& visit);
Response ServerDate(Visit& visit);
Response News(Visit& visit);
Response Terms(Visit& visit);

} // namespace qlm::practice
