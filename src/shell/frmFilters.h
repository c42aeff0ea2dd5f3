// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Filter Options: which profiles are kept when gathering or sending.
class frmFilters : public Form {
public:
    explicit frmFilters(const FormContext& context);
};

} // namespace qlm
