// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Google Search: the words that profiles are looked for by. What its closing means, while a search runs, is
// the logic's.
class frmGoogleSearch : public Form {
public:
    using Form::Form;

protected:
    void UserCloses() override;
};

} // namespace qlm
