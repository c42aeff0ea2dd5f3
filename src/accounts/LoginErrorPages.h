// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// A login has met an error page: a chain goes on with its next account, the first page is asked for again,
// and otherwise the user reads it.
void HandleLoginErrorPage(App& app);

} // namespace qlm
