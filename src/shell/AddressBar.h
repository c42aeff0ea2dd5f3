// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace qlm {

class App;

// The browser's buttons and the address line.
class AddressBar : public QWidget {
public:
    explicit AddressBar(const App& app);
};

} // namespace qlm
