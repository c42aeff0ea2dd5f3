// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// The login screen. Closed by the user before the main window has come up, it ends the program.
class frmInteken : public Form {
public:
    using Form::Form;

protected:
    void UserCloses() override;
};

} // namespace qlm
