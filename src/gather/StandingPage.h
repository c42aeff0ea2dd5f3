// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// Tells whether the page in WebBrowser1 stands: complete, and for 20 seconds the same. Then nothing more is
// to be expected of it, whatever else is waited for. about:blank never stands.
class StandingPage {
public:
    explicit StandingPage(App& app) : m_app(app) {}

    // The page in the browser is the one to look at.
    void Begin();
    // The browser is sent away from its present page: as long as it shows that one, no other stands.
    void Leave();
    // To be asked again and again; looks once a second. Throws like a document whose page is gone.
    bool Stands();

private:
    QString Look() const;

    App& m_app;
    QString m_left;
    QString m_seen; // what the last look found; empty for a page that isn't complete
    qint64 m_sinceMs = 0;
    qint64 m_lookedMs = 0;
};

} // namespace qlm
