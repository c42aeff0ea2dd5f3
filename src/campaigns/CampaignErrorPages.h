// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// What an error page in place of the awaited one means to a campaign: the target is given up, the run ends at
// the site's daily limit, or the request has gone out all the same.
void HandleRequesterErrorPage(App& app);
void HandleMessengerErrorPage(App& app);
void HandleCommenterErrorPage(App& app);

} // namespace qlm
