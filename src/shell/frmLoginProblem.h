// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Login problem: comes up beside a login that takes long, with advice.
class frmLoginProblem : public Form {
public:
    explicit frmLoginProblem(const FormContext& context);
};

} // namespace qlm
