// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// The next account of a chain has been logged in: it goes on with the campaign of the one before it, in its
// own gathered list where it keeps one.
void GoOnInChain(App& app);

} // namespace qlm
