// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Global Settings: which values all accounts share.
class frmGlobalSettings : public Form {
public:
    using Form::Form;
    // Leaves the flags as they were; the Close button stores them.
    void reject() override { UserCloses(); }
};

} // namespace qlm
