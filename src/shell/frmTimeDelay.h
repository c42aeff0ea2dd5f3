// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Time Delay: the bounds of the pause between two sends.
class frmTimeDelay : public Form {
public:
    using Form::Form;

protected:
    // The first number is replaced by what is typed, as the others are when the Tab key comes to them.
    void Bound() override;
};

} // namespace qlm
