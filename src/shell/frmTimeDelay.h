// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Time Delay: the bounds of the pause between two sends.
class frmTimeDelay : public Form {
public:
    explicit frmTimeDelay(const FormContext& context);
};

} // namespace qlm
