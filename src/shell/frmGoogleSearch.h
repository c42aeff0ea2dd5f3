// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

// Asks for the words of a web search, and stays beside the work with a Stop button while it goes on. Its
// height follows what it has to show.
class frmGoogleSearch : public Form {
public:
    explicit frmGoogleSearch(const FormContext& context);

protected:
    void UserCloses() override;
};

} // namespace qlm
