// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

class ReportTable;

// What became of each profile of a run, as a table.
class frmRunReport : public Form {
public:
    explicit frmRunReport(const FormContext& context);
    ~frmRunReport() override;

private:
    QWidget* NewTable();

    ReportTable* m_rows;
};

} // namespace qlm
