// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;

// A visit to the profile of one gathered ID, to see whether the filters let it pass. The browser stays there.
struct ProfileVisit {
    App& app;
    // Whether the run that makes the visit is still under way.
    std::function<bool()> goes;
    // A profile that doesn't come in that time is judged as it stands.
    int seconds;

    // True when the ID is to be dropped; false too when the run has ended meanwhile.
    bool Fails(const QString& id) const;

private:
    bool Arrives() const;
};

} // namespace qlm
