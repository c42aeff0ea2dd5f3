// SPDX-License-Identifier: MIT
#include "accounts/AccountDetails.h"

#include "accounts/AccountFile.h"
#include "core/AccountName.h"
#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Email = "frmAccountDetails.txtEmail"_L1;
constexpr auto Password = "frmAccountDetails.txtPassword"_L1;
constexpr auto Confirmation = "frmAccountDetails.txtConfirmPassword"_L1;

// While it lives the dialog shows as busy; it is usable again however the saving ends.
class BusyDialog {
public:
    explicit BusyDialog(Controls& controls) : m_controls(controls) { Show(true); }
    ~BusyDialog() { Show(false); }
    BusyDialog(const BusyDialog&) = delete;
    BusyDialog& operator=(const BusyDialog&) = delete;

private:
    void Show(bool busy) {
        m_controls.SetVisible("frmAccountDetails.fraFields"_L1, !busy);
        m_controls.SetEnabled("frmAccountDetails.cmdOK"_L1, !busy);
        m_controls.SetEnabled("frmAccountDetails.cmdCancel"_L1, !busy);
    }

    Controls& m_controls;
};

} // namespace

AccountDetails::AccountDetails(App& app) : m_app(app) {
    app.commands.Add(u"frmAccountDetails.cmdOK_Click"_s, "cmdOK_Click - frmAccountDetails",
                     [this] { cmdOK_Click(); });
    app.commands.Add(u"frmAccountDetails.cmdCancel_Click"_s, [this] { cmdCancel_Click(); });
}

QString AccountDetails::Show(const QString& email, const QString& password) {
    m_email = email;
    m_app.controls.SetText(Email, email);
    m_app.controls.SetText(Password, password);
    m_app.controls.SetText(Confirmation, {});
    m_app.platform.Dialogs().ShowModal(u"frmAccountDetails"_s);
    m_app.controls.SetText(Password, {});
    m_app.controls.SetText(Confirmation, {});
    return m_email;
}

bool AccountDetails::InputsAreComplete() {
    const Controls& controls = m_app.controls;
    auto refuse = [this](const QString& text, QLatin1StringView field) {
        m_app.ShowMessage(text);
        m_app.controls.SetFocus(field);
        return false;
    };
    if (controls.Text(Email).isEmpty())
        return refuse(u"Please enter an email address"_s, Email);
    MarkAddAccount(m_app, 3);
    if (controls.Text(Password).isEmpty())
        return refuse(u"Please enter a password"_s, Password);
    MarkAddAccount(m_app, 4);
    if (controls.Text(Password) != controls.Text(Confirmation))
        return refuse(u"The confirmed password does not match!"_s, Confirmation);
    MarkAddAccount(m_app, 5);
    if (const QString problem = AccountNameProblem(controls.Text(Email)); !problem.isEmpty())
        return refuse(problem, Email);
    if (const QString problem = AccountProblem(controls.Text(Email), controls.Text(Password));
        !problem.isEmpty())
        return refuse(problem, Password);
    return true;
}

void AccountDetails::cmdOK_Click() {
    MarkAddAccount(m_app, 1);
    m_app.controls.SetText(Email, m_app.controls.Text(Email).trimmed());
    m_app.controls.SetText(Password, m_app.controls.Text(Password).trimmed());
    MarkAddAccount(m_app, 2);
    if (InputsAreComplete())
        Store();
}

void AccountDetails::Store() {
    const QString email = m_app.controls.Text(Email);
    const QString password = m_app.controls.Text(Password);
    const BusyDialog busy(m_app.controls);
    MarkAddAccount(m_app, 6);
    m_app.waiting.Pump();
    MarkAddAccount(m_app, 7);
    if (m_email.isEmpty())
        m_app.Get<AccountFile>().Add(email, password);
    else
        m_app.Get<AccountFile>().Edit(m_email, email, password);
    m_email = email;
    MarkAddAccount(m_app, 16);
    m_app.platform.Dialogs().CloseForm(u"frmAccountDetails"_s);
    MarkAddAccount(m_app, 17);
}

void AccountDetails::cmdCancel_Click() {
    m_email.clear();
    m_app.platform.Dialogs().CloseForm(u"frmAccountDetails"_s);
}

} // namespace qlm
