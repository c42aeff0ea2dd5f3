// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Error: tells once in a program run that something was written to the error log.
class frmError : public Form {
public:
    explicit frmError(const FormContext& context);
};

} // namespace qlm
