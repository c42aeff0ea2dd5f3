// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

class App;
struct JudgedLink;

// Is this link one to a profile? In three stages: the page's own rule, the generic recognition, the
// exclusions.
class ProfileLinks {
public:
    explicit ProfileLinks(App& app) : m_app(app) {}

    // clickedLink: the user has clicked it, so the exclusions don't apply. Clears blnRememberLink for page
    // furniture.
    bool IsProfileLink(const Element& link, bool clickedLink);
    bool IsProfileLink(JudgedLink& link, bool clickedLink);
    // The different addresses among the page's links that are profile links; for "images" those with an image
    // and "friendID=", for "video" those with "ChannelID=".
    qint16 CountProfileLinks(const QString& mode = {});

private:
    static bool IsExcluded(JudgedLink& link);

    App& m_app;
};

} // namespace qlm
