// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

namespace qlm {

// A text box or list that asks for no more height than it must have, and takes what is left over.
template <typename Widget> class LowWidget : public Widget {
public:
    LowWidget() { this->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding); }
    QSize sizeHint() const override { return {Widget::sizeHint().width(), this->minimumHeight()}; }
};

} // namespace qlm
