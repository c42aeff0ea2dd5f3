// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

class QLabel;
class QListView;

namespace qlm {

// Switch Account: another account to log in with, and the account list's upkeep.
class frmSwitchAccount : public Form {
public:
    explicit frmSwitchAccount(const FormContext& context);

protected:
    void Bound() override;

private:
    QListView* m_list;
    QLabel* m_hint; // what to do, while there is no account
};

} // namespace qlm
