// SPDX-License-Identifier: MIT
#include "browser/Cover.h"

#include "core/App.h"

#include <QUrl>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void Cover::Show() {
    if (m_loans > 0)
        return;
    const QString name = u"timedelay.htm"_s;
    BrowserControl& cover = m_app.webHide();
    if (!cover.LocationURL().contains(name))
        cover.Navigate(QUrl::fromLocalFile(m_app.InstalledFile(name)).toString());
    cover.ZOrder(0);
}

void Cover::Hide() {
    m_app.webHide().ZOrder(1);
}

void Cover::Clear() {
    if (m_loans == 0)
        m_app.webHide().Navigate(u"about:blank"_s);
    Hide();
}

void Cover::Lend() {
    ++m_loans;
    Hide();
}

void Cover::TakeBack() {
    if (--m_loans == 0 && isPausing)
        Show();
}

} // namespace qlm
