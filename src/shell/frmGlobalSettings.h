// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Global Settings: what all accounts share, and the reset of everything.
class frmGlobalSettings : public Form {
public:
    explicit frmGlobalSettings(const FormContext& context);
    // Close stores; Escape and the frame's cross leave everything as it was.
    void reject() override;
};

} // namespace qlm
