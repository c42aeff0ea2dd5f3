// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// The Terms of Service, read inside the program. The page shows its words alone: it loads nothing and leads
// nowhere.
class frmTerms : public Form {
public:
    explicit frmTerms(const FormContext& context);
};

} // namespace qlm
