// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

#include <QPointer>

namespace qlm {

// A text as the site would show it, in a browser of its own, which it borrows for its time.
class frmPreview : public Form {
public:
    using Form::Form;
    ~frmPreview() override;

    static void Build(Form& form);

private:
    QPointer<QWidget> m_view;
};

} // namespace qlm
