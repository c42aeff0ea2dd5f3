// SPDX-License-Identifier: MIT
// The user may log in by hand, in the page: what he typed becomes the account in use.
#include "browser/BrowserHost.h"
#include "core/App.h"
#include "core/Text.h"

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

// Not by the page tests: those wait for a page that is still building, and this one is about to be left.
bool ShowsLoginForm(const Document& document) {
    const QString text = document.BodyText();
    return Has(text, u"forgot your password?"_s) || Has(text, u"forgot password?"_s);
}

// A form that is sent brings its inputs along, and they tell whether its page, which may be gone by now, was
// a login page; of a link that sends the form by script the page tells both.
TypedLogin TypedInto(const NavigationRequest& request, BrowserControl& browser) {
    TypedLogin typed;
    if (request.isForm) {
        for (const NavigationRequest::Input& input : request.inputs)
            typed.Take(input.id, input.value);
        return typed;
    }
    const Document document = browser.Document();
    if (request.topLevel && ShowsLoginForm(document))
        for (const Element& input : document.GetElementsByTagName(u"input"_s))
            typed.Take(input.Id(), input.Value());
    return typed;
}

QString Stars(const QString& text) {
    return text.isEmpty() ? QString() : u"****"_s;
}

} // namespace

void BrowserHost::ReadTypedLogin(const NavigationRequest& request) {
    const TypedLogin typed = TypedInto(request, m_app.WebBrowser1());
    if (!typed.isLoginForm)
        return;
    Diagnostics& diagnostics = m_app.diagnostics;
    SettingsStore& settings = m_app.platform.Settings();
    diagnostics.LearnPassword(typed.password);
    diagnostics.Debug(u"debuginitial.txt"_s,
                      u"Navigate 2.3 - "_s + Stars(typed.email) + u", "_s + Stars(typed.password));
    if (!typed.password.isEmpty())
        settings.SaveSetting(FieldEntries, u"Login - txtPassword"_s, typed.password);

    RunState& state = m_app.state;
    diagnostics.Debug(u"debuginitial.txt"_s, u"Navigate 3.1 (e) - "_s + Stars(typed.email));
    const bool anotherAccount =
        !typed.email.isEmpty() && typed.email.compare(state.AccountEmail, Qt::CaseInsensitive) != 0;
    if (!anotherAccount || (state.intLoginStep != 0 && state.intLoginStep != 4))
        return;
    state.AccountEmail = typed.email.toLower();
    state.AccountPassword = typed.password;
    settings.SaveSetting(FieldEntries, u"Login - txtEmail"_s, state.AccountEmail);
    settings.SaveSetting(FieldEntries, u"Login - txtPassword"_s, state.AccountPassword);
    diagnostics.Debug(u"debuginitial.txt"_s, u"Navigate 3.5"_s);
}

} // namespace qlm
