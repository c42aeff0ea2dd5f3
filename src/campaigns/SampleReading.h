// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// Look before you send: from now on, beside each text that goes to somebody, a line shows how it reads to
// somebody of an invented name. No page is loaded for it. An empty text has none.
void ShowSampleReadings(App& app);

} // namespace qlm
