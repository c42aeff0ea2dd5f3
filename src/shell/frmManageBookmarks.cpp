// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QListView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void BuildManageBookmarks(Form& form) {
    auto* buttons = new QVBoxLayout;
    for (const auto name : {"cmdAddBookmark"_L1, "cmdEditBookmark"_L1, "cmdDeleteBookmark"_L1, "cmdMoveUp"_L1,
                            "cmdMoveDown"_L1})
        buttons->addWidget(NewButton(name));
    buttons->addStretch();
    QPushButton* close = NewButton("Command1"_L1);
    close->setDefault(true);
    buttons->addWidget(close);

    auto* row = new QHBoxLayout(&form);
    row->addWidget(Named(new QListView, "lstBookmarks"_L1), 1);
    row->addLayout(buttons);
    form.resize(440, 340);
}

} // namespace qlm
