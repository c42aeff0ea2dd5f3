// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// The log of a campaign: clear, edit, export, import.
class frmLog : public Form {
public:
    explicit frmLog(const FormContext& context);
};

} // namespace qlm
