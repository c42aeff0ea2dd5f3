// SPDX-License-Identifier: MIT
#include "accounts/LoginForm.h"

#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct ButtonMark {
    ElementText where;
    const char* part;
};

// An input is the login button when one of these holds.
constexpr ButtonMark InputMarks[] = {
    {ElementText::Name, "ctl00$Main$SplashDisplay$login"},
    {ElementText::Id, "loginBtn"},
    {ElementText::Name, "dlb"},
    {ElementText::Name, "loginbutton"},
    {ElementText::Name, "Login_ImageButton"},
};

bool IsLoginInput(const Element& input) {
    const QString name = input.Name();
    const QString id = input.Id();
    for (const ButtonMark& mark : InputMarks)
        if (Has(mark.where == ElementText::Name ? name : id, QString::fromLatin1(mark.part)))
            return true;
    return false;
}

} // namespace

void FillLoginForm(const Document& document, const QString& email, const QString& password) {
    for (const Element& input : document.GetElementsByTagName(u"input"_s)) {
        const QString id = input.Id();
        if (Has(id, u"Email_Textbox"_s))
            input.SetInnerText(email);
        if (Has(id, u"Password_Textbox"_s))
            input.SetInnerText(password);
    }
    for (const Element& field : document.GetElementsByName(u"email"_s))
        field.SetInnerText(email);
    for (const Element& field : document.GetElementsByName(u"password"_s))
        field.SetInnerText(password);
    if (const Element remember = document.GetElementById(u"rememberTray"_s))
        remember.SetAttribute(u"checked"_s, u"checked"_s);
}

LoginButton FindLoginButton(const Document& document) {
    for (const Element& input : document.GetElementsByTagName(u"input"_s))
        if (IsLoginInput(input))
            return {input, false};
    for (const Element& link : document.GetElementsByTagName(u"a"_s))
        if (Has(link.Id(), u"loginBtn"_s))
            return {link, true};
    const std::vector<Element> named = document.GetElementsByName(u"loginbtn"_s);
    return named.empty() ? LoginButton() : LoginButton{named.front(), true};
}

} // namespace qlm
