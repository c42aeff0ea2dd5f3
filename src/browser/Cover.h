// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// The page in webHide that covers the browser during a pause.
class Cover {
public:
    explicit Cover(App& app) : m_app(app) {}

    // webHide shows timedelay.htm and comes to the front; or goes to the back.
    void Show();
    void Hide();
    // The same as Hide, and webHide becomes empty.
    void Clear();
    // webHide fetches something: until it is taken back it covers nothing and shows no other page.
    void Lend();
    void TakeBack();

    // A pause is counted down: what is taken back meanwhile covers again.
    bool isPausing = false;

private:
    App& m_app;
    int m_loans = 0;
};

} // namespace qlm
