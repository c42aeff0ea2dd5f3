// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <optional>

namespace qlm {

class App;
class BrowserControl;
struct JudgedLink;

// Turns a profile link into a numeric ID: cheaply from the link and its surroundings, or with Full Gather by
// loading the profile in the hidden browser. "" means that no ID could be had.
class IdResolution {
public:
    explicit IdResolution(App& app) : m_app(app) {}

    // The digits after the ID's key in an address.
    QString ExtractFriendID(const QString& link);
    // May pump and take up to 45 seconds when it has to load the profile.
    QString GetFriendIDFromLink(const Element& link);
    QString GetFriendIDFromLink(JudgedLink& link);
    QString FetchFriendIDInBackground(const QString& href);
    // The ID of the page in "WebBrowser1" or "webHide".
    QString GetFriendIDFromDocument(const QString& browser, const QString& key);
    // The same from the page's scripts alone; an empty key means "DisplayFriendId".
    QString GetDisplayFriendID(const QString& browser, const QString& key);

    // Only what the link and its surroundings tell: never pumps. "" or any text when they tell no number.
    QString ResolveFromPage(JudgedLink& link);

private:
    QString FetchWithNotice(JudgedLink& link);
    BrowserControl& BrowserOf(const QString& name) const;
    bool MayFetch() const;
    void Trace(const QString& text);

    App& m_app;
};

// The digits after the key; "" when there are none.
QString DigitsBehind(const QString& text, const QString& key);
// What stands behind the key up to a ">", a blank or the end, without double quotes.
QString ValueAfterKey(const QString& text, const QString& key);
// The digits at the end of an address; one closing "/" doesn't count.
QString TrailingNumber(const QString& href);
// The value of the key in a script's text, up to the next comma, without ":" and double quotes; nothing
// without the key.
std::optional<QString> ScriptValue(const QString& script, const QString& key);
// The name to show for a link while its profile is fetched.
QString NameToShow(const QString& linkText, const QString& vanityName);
// The first run of digits; 0 if there is none. Throws std::overflow_error beyond 32 bits.
qint32 ExtractNumberFromString(const QString& text);

} // namespace qlm
