// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <functional>

namespace qlm {

// A check box that asks before a click, from the mouse or the keyboard, turns it.
class TickBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

    // False leaves the tick as it is. Unset: always turns.
    std::function<bool()> mayTurn;

protected:
    void nextCheckState() override {
        if (!mayTurn || mayTurn())
            QCheckBox::nextCheckState();
    }
};

} // namespace qlm
