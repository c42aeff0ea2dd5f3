// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

class QLabel;
class QListView;

namespace qlm {

// The login screen: which account to log in with, and the account list's upkeep.
class frmInteken : public Form {
public:
    explicit frmInteken(const FormContext& context);

protected:
    // Without a main window there is nothing left to run: the program ends.
    void UserCloses() override;
    void Bound() override;

private:
    QListView* m_list;
    QLabel* m_hint; // what to do first, while there is no account
};

} // namespace qlm
