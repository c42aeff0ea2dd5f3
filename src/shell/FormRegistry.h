// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// A new form of that name, laid out and not yet bound: it says nothing yet. Its caller owns it. Throws
// std::logic_error on an unknown name.
Form* BuildForm(const QString& name, const FormContext& context);
// The same, bound and not yet shown.
Form* CreateForm(const QString& name, const FormContext& context);

// The names that CreateForm() knows.
QStringList FormNames();

} // namespace qlm
