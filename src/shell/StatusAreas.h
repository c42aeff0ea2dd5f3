// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QProgressBar;

namespace qlm {

class App;

// What is being done now, in large: the line of the running activity, what it has been waiting for, and how
// far it is.
class ActivityStrip : public QWidget {
public:
    explicit ActivityStrip(App& app);
    ~ActivityStrip() override;

private:
    // The bar is there while there is progress to tell of.
    void ShowProgress();

    App& m_app;
    QProgressBar* m_bar;
    int m_listener;
};

// The window's last line: the browser's status text, the time delay, the account, and the practice site's
// mark.
class FootLine : public QWidget {
public:
    FootLine();
};

} // namespace qlm
