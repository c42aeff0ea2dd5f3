// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Global Settings: what all accounts share, and the reset of everything.
class frmGlobalSettings : public Form {
public:
    explicit frmGlobalSettings(const FormContext& context);
};

} // namespace qlm
