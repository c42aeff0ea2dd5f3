// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// frmAccountDetails, the dialog that adds or edits one account; opened by both account screens.
class AccountDetails {
public:
    explicit AccountDetails(App& app);

    // Shows the dialog; an empty email means Add. Answers the e-mail that was stored, empty when the user
    // cancelled.
    QString Show(const QString& email, const QString& password);

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    bool InputsAreComplete();
    void Store();

    App& m_app;
    QString m_email;
};

} // namespace qlm
