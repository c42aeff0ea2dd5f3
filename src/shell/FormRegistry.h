// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// A new form of that name, bound and not yet shown; its caller owns it. Throws std::logic_error on an unknown
// name.
Form* CreateForm(const QString& name, const FormContext& context);

// The names that CreateForm() knows.
QStringList FormNames();

} // namespace qlm
