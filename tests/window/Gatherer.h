// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// The list that the gatherer opens, as the site's addresses go.
QString GatherersList();

// A process that does what a user does who has come to gather: signs in to the program of those folders,
// gathers the list to its end and closes the window, which saves. To be killed in the middle. Returns the
// exit code.
int RunGatherer(const QString& folder);

} // namespace qlm
