// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"

#include <QString>
#include <array>
#include <functional>

namespace qlm {

class App;

// The small tests on a page's text, links and elements on which every decision rests. All ignore letter case
// unless said. Each sets Silent on the control it looks at, since a new page can reset it.
class PageSigns {
public:
    explicit PageSigns(App& app) : m_app(app) {}

    // Blocks, pumping, until WebBrowser1 has a document with a body and links; refreshes a page without a
    // body every 30 seconds. Throws RunEnded when the run or the target is another one by then.
    void WaitForDocument();
    // Somebody on the stack waits for WebBrowser1's body, and it isn't there yet: one more wait would only
    // make the stack deeper.
    bool IsAwaitingBody();
    // The same spins on another control, without the refresh.
    void WaitForDocument(BrowserControl& browser);

    // browser is "webHide", "webTemp" or anything else for WebBrowser1; "webInviteLocation" selects nothing.
    bool IsTextInPage(const QString& text, bool asHTML = false, const QString& browser = {});
    bool HrefLoaded(const QString& href, bool partial);
    bool ImageExists(const QString& name);
    // What these two ask the page.
    static Question HrefQuestion(const QString& href, bool partial);
    static std::vector<Question> ImageQuestions(const QString& name);
    bool IsHomePageURL();
    // The words of a page that asks for a password, whosever page it is.
    bool AsksForPassword();
    static bool AsksForPassword(const QString& pageText);
    // The site's own page with its login form.
    bool IsLoggedOutPage();
    // Only while logging in.
    bool IsNotEnglishPage();
    bool IsCaptchaPage();
    bool IsRequestSentPage();
    bool IsAdvertiserProfile();

    QString LocationURL();
    // The address of the page contains the text, {Role}s replaced.
    bool AddressContains(const QString& text, Qt::CaseSensitivity caseSensitivity = Qt::CaseInsensitive);
    // The same with the scheme dropped on both sides.
    bool AddressBeginsWith(const QString& text);
    bool AddressEquals(const QString& text);

    // kind is "Innertext", "InnerHTML", "OuterHTML", "Title" or "ID". Clicks the first link that matches.
    bool ClickLink(const QString& kind, const QString& value);
    bool ClickLinkFromHref(const QString& hrefPart, const QString& browser = {});
    // The href of the second link that offers "add to friends" or "send message", or of the only one.
    QString GetHrefFromSecondID();

    // The page's text in lower case, kept as long as the same text is asked for.
    const QString& Lowered(const QString& text);

    // The control of that name; nullptr for "webInviteLocation".
    BrowserControl* Select(const QString& browser);

private:
    void SpinForWebBrowser1();
    void SpinFor(BrowserControl& browser, const std::function<void()>& stillWithoutBody);

    struct LoweredText {
        QString original;
        QString lower;
    };

    App& m_app;
    std::array<LoweredText, 3> m_lowered;
    size_t m_nextLowered = 0;
    int m_spins = 0; // waits for WebBrowser1's document on the stack
};

// Finds of needle in text, each search beginning one character after the last find's start. 16 bit.
qint16 CountOccurrences(const QString& text, const QString& needle);
QString WithoutScheme(const QString& address);
// The box for a site that isn't in English.
void ShowLanguageMessage(App& app);

} // namespace qlm
