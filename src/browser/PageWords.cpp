// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/App.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Known { LoggedOut, Captcha, RequestSent };

struct PageWord {
    Known page;
    const char16_t* text;
};

// One of its words is enough to know a page.
const std::vector<PageWord>& PageWords() {
    static const std::vector<PageWord> rows{
        {Known::LoggedOut, u"forgot your password?"},
        {Known::LoggedOut, u"forgot password?"},
        {Known::Captcha, u"Please enter the text from the image"},
        {Known::Captcha, u"Please enter the image text"},
        {Known::Captcha, u"Type the two words:"},
        {Known::Captcha, u"Settings require that you solve a CAPTCHA"},
        {Known::RequestSent, u"Request Sent!"},
        {Known::RequestSent, u"fdsfsdafgsdagsdfg"}, // no page of the site is known to say so
    };
    return rows;
}

bool Is(Known known, const PageView& page) {
    return std::any_of(PageWords().begin(), PageWords().end(),
                       [&](const PageWord& word) { return word.page == known && page.Shows(word.text); });
}

} // namespace

bool PageSigns::AsksForPassword() {
    return Is(Known::LoggedOut, ShownPage(m_app));
}

bool PageSigns::AsksForPassword(const QString& pageText) {
    return Is(Known::LoggedOut, KeptPage({.text = pageText}));
}

bool PageSigns::IsLoggedOutPage() {
    return AsksForPassword() && m_app.deployment.IsSitePage(m_app.WebBrowser1().Document().Address());
}

bool PageSigns::IsCaptchaPage() {
    return Is(Known::Captcha, ShownPage(m_app));
}

bool PageSigns::IsRequestSentPage() {
    return Is(Known::RequestSent, ShownPage(m_app));
}

bool PageSigns::IsAdvertiserProfile() {
    m_app.WebBrowser1().SetSilent(true);
    WaitForDocument();
    return m_app.WebBrowser1().Document().BodyOuterHTML().contains(u"advertiserProfile"_s,
                                                                   Qt::CaseInsensitive);
}

} // namespace qlm
