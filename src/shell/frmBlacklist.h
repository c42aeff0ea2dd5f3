// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// The IDs that gathering never adds.
class frmBlacklist : public Form {
public:
    explicit frmBlacklist(const FormContext& context);
    ~frmBlacklist() override;

private:
    void ShowPointer();

    int m_listener;
};

} // namespace qlm
