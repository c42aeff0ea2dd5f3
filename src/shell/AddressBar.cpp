// SPDX-License-Identifier: MIT
#include "shell/AddressBar.h"

#include "core/App.h"
#include "shell/FormParts.h"
#include "shell/PictureButtons.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct ButtonKey {
    QLatin1StringView button;
    const char* keys;
};

constexpr ButtonKey Keys[] = {
    {"picBack"_L1, "Alt+Left"},
    {"picForward"_L1, "Alt+Right"},
    {"picHome"_L1, "Alt+Home"},
    {"picRefresh"_L1, "F5"},
};

void AddKeys(QWidget& bar, QLineEdit& address) {
    for (const ButtonKey& key : Keys)
        if (auto* button = bar.findChild<QToolButton*>(QString(key.button)))
            button->setShortcut(QKeySequence(QString::fromLatin1(key.keys)));
    auto* toAddress = new QShortcut(QKeySequence(u"Ctrl+L"_s), &bar);
    QObject::connect(toAddress, &QShortcut::activated, &address, [&address] {
        address.setFocus();
        address.selectAll();
    });
}

} // namespace

AddressBar::AddressBar(const App& app) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(2);
    AddPictureButtons(*row, app.commands, Caption::None,
                      {"picBack"_L1, "picForward"_L1, "picHome"_L1, "picRefresh"_L1, "picStop"_L1});
    QLineEdit* address = NewLine("txtAddress"_L1);
    address->setMinimumWidth(120);
    row->addSpacing(4);
    row->addWidget(address, 1);
    AddPictureButtons(*row, app.commands, Caption::None, {"picGO"_L1});
    row->addSpacing(8);
    AddPictureButtons(*row, app.commands, Caption::Beside, {"picSkip"_L1});
    if (auto* go = findChild<QToolButton*>(u"picGO"_s))
        connect(address, &QLineEdit::returnPressed, go, &QToolButton::click);
    AddKeys(*this, *address);
}

} // namespace qlm
