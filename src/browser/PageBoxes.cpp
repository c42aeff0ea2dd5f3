// SPDX-License-Identifier: MIT
#include "browser/PageBoxes.h"

#include "browser/PageSigns.h"
#include "core/App.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void PageBoxes::ClosePopup(const QString& title) {
    const QStringList titles = title.isEmpty()
                                   ? QStringList{u"Message from webpage"_s, u"windows internet explorer"_s}
                                   : QStringList{title};
    Dialogs& dialogs = m_app.platform.Dialogs();
    const bool closed = std::any_of(titles.begin(), titles.end(), [&dialogs](const QString& each) {
        return dialogs.CloseWindowTitled(each);
    });
    m_app.state.ClosePopupResult = closed ? u"CLOSED"_s : u"NOT FOUND"_s;
}

// While sending only a CAPTCHA may need it; a stray right-click must not disturb a step.
bool PageBoxes::hGlobalDoc_oncontextmenu() {
    if (!isSending())
        return true;
    // A page that is still to come asks for none, and must not be waited for in the answer to a click.
    const Document document = m_app.WebBrowser1().Document();
    return document && !document.Body().IsNull() && m_app.Get<PageSigns>().IsCaptchaPage();
}

} // namespace qlm
