// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

namespace qlm {

class ReportTable;

// What became of each profile of a run, as a table.
class frmRunReport : public Form {
public:
    frmRunReport(const FormContext& context, const QString& name, const QString& title);
    // Lays out the form, which is one of this class.
    static void Build(Form& form);
    ~frmRunReport() override;

private:
    QWidget* NewTable();

    ReportTable* m_rows;
};

} // namespace qlm
