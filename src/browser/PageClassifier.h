// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;

// Turns the site's refusal and error pages into one code.
class PageClassifier {
public:
    explicit PageClassifier(App& app) : m_app(app) {}

    // Sets intPageClass, and blnSkipCurrentID or blnDailyLimitHit where the class says so. True: the step
    // can't go on with this page.
    bool ClassifyErrorPage();

    // Whether the running activity notes the class in its trail. Set by the program, which knows the
    // activities.
    std::function<bool()> tracesClasses;

private:
    App& m_app;
};

// What the site said, for each class of the page classifier; "" for a class that has no words.
QString RefusalText(int pageClass);

} // namespace qlm
