// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// A text to put in front of a bulletin that is posted again within a day: nothing for the first post, then a
// dot more each time, with a line break after. No run asks for it: repeated bulletins go out unchanged.
QString GetBulletinDots(App& app);

} // namespace qlm
