// SPDX-License-Identifier: MIT
#include "SignInDesigns.h"

#include "Html.h"
#include "SiteHosts.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

struct DesignRow {
    SignInDesign design;
    QLatin1StringView name;
    QStringView method;
    bool knowsFieldsByName; // "email" and "password"; otherwise by their IDs' ends
    QStringView button;
};

constexpr std::array designRows {
    DesignRow{SignInDesign::Ids, "ids"_L1, u"post", false,
              uR"(<input type="submit" class="button" id="ctl00_Main_loginBtn" name="ctl00$Main$loginBtn"
 value="Log In">)"},
    DesignRow{SignInDesign::Splash, "splash"_L1, u"post", false,
              uR"(<input type="submit" class="button" name="ctl00$Main$SplashDisplay$login" value="Log In">)"},
    DesignRow{SignInDesign::Names, "names"_L1, u"post", true,
              uR"(<input type="submit" class="button" name="dlb" value="Log In">)"},
    DesignRow{SignInDesign::Button, "button"_L1, u"post", true,
              uR"(<input type="submit" class="button" name="loginbutton" value="Log In">)"},
    DesignRow{SignInDesign::Image, "image"_L1, u"post", false,
              uR"(<input type="image" name="ctl00$Main$Login_ImageButton" src="{go}" alt="Log In">)"},
    DesignRow{SignInDesign::Link, "link"_L1, u"post", false,
              uR"(<a class="button" id="ctl00_Main_loginBtn"
 href="javascript:document.getElementById('loginForm').submit();">Log In</a>)"},
    DesignRow{SignInDesign::Element, "element"_L1, u"post", true,
              uR"(<button class="button" name="loginbtn">Log In</button>)"},
    DesignRow{SignInDesign::Get, "get"_L1, u"get", true,
              uR"(<input type="hidden" name="fuseaction" value="login.process">
<input type="submit" class="button" name="loginbutton" value="Log In">)"},
};

    const DesignRow& RowOf(SignInDesign design) {
        const auto row = std::find_if(designRows.begin(), designRows.end(),
                                      [&](const DesignRow& candidate) { return candidate.design == design; });
        if (row == designRows.end())
            throw std::logic_error("design without a row");
        return *row;
    }

    constexpr QStringView fieldsById = uR"(<p><label for="ctl00_Main_Email_Textbox">E-Mail:</label>
<input type="text" id="ctl00_Main_Email_Textbox" name="ctl00$Main$Email_Textbox" value=""></p>
<p><label for="ctl00_Main_Password_Textbox">Password:</label>
<input type="password" id="ctl00_Main_Password_Textbox" name="ctl00$Main$Password_Textbox" value=""></p>)";

    constexpr QStringView fieldsByName = uR"(<p><label for="mailField">E-Mail:</label>
<input type="text" id="mailField" name="email" value=""></p>
<p><label for="wordField">Password:</label>
<input type="password" id="wordField" name="password" value=""></p>)";

} // namespace

bool SignInDesignNamed(const QString& name, SignInDesign& design) {
    for (const DesignRow& row : designRows)
        if (name == row.name) {
            design = row.design;
            return true;
        }
    return false;
}

QString SignInForm(SignInDesign design) {
    const DesignRow& row = RowOf(design);
    QString button = row.button.toString();
    button.replace(u"{go}"_s, Url(Role::SiteRoot, u"/style/logo.svg"_s));
    return Fill(uR"(<form method="{method}" action="{action}" id="loginForm">
{!fields}
<p class="check"><input type="checkbox" id="rememberTray" name="remember">
<label for="rememberTray">Remember me</label></p>
<p class="go">{!button}</p>
</form>)",
                {{u"method", row.method.toString()},
                 {u"action", Url(Role::Login, u"/index.cfm?fuseaction=login.process"_s)},
                 {u"fields", (row.knowsFieldsByName ? fieldsByName : fieldsById).toString()},
                 {u"button", button}});
}

SignInFields FieldsOf(SignInDesign design) {
    if (RowOf(design).knowsFieldsByName)
        return {u"email"_s, u"password"_s};
    return {u"email_textbox"_s, u"password_textbox"_s};
}

} // namespace qlm::practice
