// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace qlm {

// The tabs of the control panel, one below the other: a picture each, with its caption beside it where there
// is room, else as its tool tip. A list to the keyboard and to a screen reader. Which panel a tab brings up
// is the logic's.
class TabStrip : public QListView {
public:
    TabStrip();

    // Whether there is room for captions.
    void SetWide(bool wide);
    bool IsWide() const { return m_isWide; }

    static constexpr int NarrowWidth = 44;
    static constexpr int WideWidth = 160;

private:
    bool m_isWide = false;
};

} // namespace qlm
