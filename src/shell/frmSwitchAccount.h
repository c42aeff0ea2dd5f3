// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Switch Account: another account to log in with, and the account list's upkeep.
class frmSwitchAccount : public Form {
public:
    explicit frmSwitchAccount(const FormContext& context);
};

} // namespace qlm
