// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <QString>

namespace qlm {

class App;

// Click to gather: the profile behind a link that the user clicks goes into the list instead of the browser.
class ClickGather {
public:
    explicit ClickGather(App& app);

private:
    // True when the link is one to a profile: the navigation is to be refused.
    bool GatherClickedProfile(const QString& url);
    Element FindProfileLink(const QString& url);
    void AddClickedProfile(const Element& link);
    void Trace(const QString& text);

    App& m_app;
};

} // namespace qlm
