// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm::practice {

/// The site has changed its sign-in form over the years; each of these was in use for a while.
enum class SignInDesign {
    Ids,     ///< fields known by the ends of their IDs, a button known by its ID
    Splash,  ///< the same fields, the button of the splash page
    Names,   ///< fields called "email" and "password", a short-named button
    Button,  ///< the same fields, a button called "loginbutton"
    Image,   ///< an image for a button
    Link,    ///< a link for a button; it sends the form by script
    Element, ///< a button element called "loginbtn"
    Get,     ///< sends the fields in the address
};

/// Ids for "ids" and so on; false for an unknown word.
bool SignInDesignNamed(const QString& name, SignInDesign& design);

/// The form's markup.
QString SignInForm(SignInDesign design);

/// How the names of the sent fields end, in lower case.
struct SignInFields {
    QString mail;
    QString password;
};
SignInFields FieldsOf(SignInDesign design);

} // namespace qlm::practice
