// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// Does the list page in WebBrowser1 show as many profiles as a full page of its kind does? So that gathering
// doesn't begin on a page that is still filling.
bool IsGatherPageComplete(App& app);

} // namespace qlm
