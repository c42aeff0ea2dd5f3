// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Shows where the ID of a profile is to be seen.
class frmProifleIDHelp : public Form {
public:
    explicit frmProifleIDHelp(const FormContext& context);
};

} // namespace qlm
