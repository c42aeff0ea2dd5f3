// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Account Details: adds or edits one account.
class frmAccountDetails : public Form {
public:
    explicit frmAccountDetails(const FormContext& context);
};

} // namespace qlm
