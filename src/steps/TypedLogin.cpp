// SPDX-License-Identifier: MIT
// The user may log in by hand, in the page: what they typed becomes the account in use.
#include "browser/PageSigns.h"
#include "core/AccountName.h"
#include "core/App.h"
#include "core/Text.h"
#include "steps/BrowserHost.h"
#include "steps/Steps.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString FieldEntries = u"Field Entries"_s;

struct TypedLogin {
    QString email;
    QString password;
    bool isLoginForm = false; // has the fields of one, empty or not

    void Take(const QString& id, const QString& value) {
        const bool isEmail = Has(id, u"Email_Textbox"_s);
        const bool isPassword = Has(id, u"Password_Textbox"_s);
        isLoginForm = isLoginForm || isEmail || isPassword;
        if (isEmail && !value.isEmpty())
            email = value.trimmed();
        if (isPassword && !value.isEmpty())
            password = value.trimmed();
    }
};

// A form that is sent brings along what its page showed and where it stood, since the page may be gone by
// now; of a link that sends the form by script the page tells it, not through the tests that wait for a page.
TypedLogin TypedInto(const NavigationRequest& request, const Deployment& site, BrowserControl& browser) {
    TypedLogin typed;
    if (request.isForm) {
        if (site.IsSitePage(request.pageAddress) && site.IsSitePage(request.url) &&
            PageSigns::AsksForPassword(request.pageText))
            for (const NavigationRequest::Input& input : request.inputs)
                typed.Take(input.id, input.value);
        return typed;
    }
    const Document document = browser.Document();
    if (request.topLevel && site.IsSitePage(document.Address()) &&
        PageSigns::AsksForPassword(document.BodyText()))
        for (const Element& input : document.GetElementsByTagName(u"input"_s))
            typed.Take(input.Id(), input.Value());
    return typed;
}

QString Stars(const QString& text) {
    return text.isEmpty() ? QString() : u"****"_s;
}

} // namespace

// Whatever form it was typed into: the address that follows may hold it.
void BrowserHost::LearnTypedPasswords(const NavigationRequest& request) {
    for (const NavigationRequest::Input& input : request.inputs)
        if (input.type == u"password"_s || Has(input.id, u"Password_Textbox"_s))
            m_app.diagnostics.LearnPassword(input.value, input.name);
}

void BrowserHost::ReadTypedLogin(const NavigationRequest& request) {
    const TypedLogin typed = TypedInto(request, m_app.deployment, m_app.WebBrowser1());
    if (!typed.isLoginForm)
        return;
    Diagnostics& diagnostics = m_app.diagnostics;
    SettingsStore& settings = m_app.platform.Settings();
    diagnostics.LearnPassword(typed.password, {});
    diagnostics.Debug(u"debuginitial.txt"_s,
                      u"Navigate 2.3 - "_s + Stars(typed.email) + u", "_s + Stars(typed.password));
    RunState& state = m_app.state;
    const bool anotherAccount =
        !typed.email.isEmpty() && typed.email.compare(state.AccountEmail, Qt::CaseInsensitive) != 0;
    if (const QString problem = AccountProblem(typed.email, typed.password); !problem.isEmpty()) {
        // The site signs somebody in whom the program cannot name: nothing of its account may go on there.
        if (anotherAccount)
            m_app.Get<StopResume>().StopAll(StopReason::OtherSignIn);
        m_app.ShowMessage(problem);
        return;
    }
    if (!typed.password.isEmpty())
        settings.SaveSetting(FieldEntries, u"Login - txtPassword"_s, typed.password);

    diagnostics.Debug(u"debuginitial.txt"_s, u"Navigate 3.1 (e) - "_s + Stars(typed.email));
    if (!anotherAccount || (state.intLoginStep != LoginStep::None && state.intLoginStep != LoginStep::Finish))
        return;
    state.AccountEmail = typed.email.toLower();
    state.AccountPassword = typed.password;
    settings.SaveSetting(FieldEntries, u"Login - txtEmail"_s, state.AccountEmail);
    settings.SaveSetting(FieldEntries, u"Login - txtPassword"_s, state.AccountPassword);
    diagnostics.Debug(u"debuginitial.txt"_s, u"Navigate 3.5"_s);
}

} // namespace qlm
