// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Bookmark: a name and an address.
class frmBookmark : public Form {
public:
    using Form::Form;

protected:
    // The prompt, or the old name, is replaced by what is typed.
    void Bound() override;
};

} // namespace qlm
