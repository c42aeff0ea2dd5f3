// SPDX-License-Identifier: MIT
#include "accounts/LoginForm.h"

#include "core/Deployment.h"
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

// What belongs to no form stays in the page.
bool StaysOnTheSite(const Deployment& site, const Element& control) {
    const QString address = control.Read(ElementText::SentTo);
    return address.isEmpty() || site.IsSitePage(address);
}

bool FillLoginForm(const Deployment& site, const Document& document, const QString& email,
                   const QString& password) {
    if (!site.IsSitePage(document.Address()))
        return false;
    auto fill = [&site](const Element& field, const QString& text) {
        if (field.TagName() == u"input"_s && StaysOnTheSite(site, field))
            field.SetInnerText(text);
    };
    for (const Element& input : document.GetElementsByTagName(u"input"_s)) {
        const QString id = input.Id();
        if (Has(id, u"Email_Textbox"_s))
            fill(input, email);
        if (Has(id, u"Password_Textbox"_s))
            fill(input, password);
    }
    for (const Element& field : document.GetElementsByName(u"email"_s))
        fill(field, email);
    for (const Element& field : document.GetElementsByName(u"password"_s))
        fill(field, password);
    if (const Element remember = document.GetElementById(u"rememberTray"_s))
        remember.SetAttribute(u"checked"_s, u"checked"_s);
    return true;
}

LoginButton FindLoginButton(const Deployment& site, const Document& document) {
    for (const Element& input : document.GetElementsByTagName(u"input"_s))
        if (IsLoginInput(input) && StaysOnTheSite(site, input))
            return {input, false};
    for (const Element& link : document.GetElementsByTagName(u"a"_s))
        if (Has(link.Id(), u"loginBtn"_s))
            return {link, true};
    for (const Element& named : document.GetElementsByName(u"loginbtn"_s))
        if (StaysOnTheSite(site, named))
            return {named, true};
    return {};
}

} // namespace qlm
