// SPDX-License-Identifier: MIT
#include "shell/PictureButtons.h"

#include "core/Commands.h"
#include "core/Controls.h"
#include "shell/FormParts.h"
#include "shell/PictureIcon.h"

#include <QBoxLayout>
#include <QToolButton>

namespace qlm {

QToolButton* NewPictureButton(QLatin1StringView name, Caption caption) {
    const ControlRow& row = Controls::RowNamed(name);
    auto* button = Named(new QToolButton, name);
    button->setIcon(PictureIcon(QString::fromLatin1(row.image)));
    button->setIconSize(caption == Caption::Beside ? QSize(16, 16) : QSize(20, 20));
    // The hover picture is only shown by buttons that raise themselves.
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    if (caption == Caption::Beside)
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (row.begins)
        TakeDoubleClickAsOne(*button);
    return button;
}

void AddPictureButtons(QBoxLayout& layout, const Commands& commands, Caption caption,
                       std::initializer_list<QLatin1StringView> names) {
    for (QLatin1StringView name : names)
        if (commands.Has(Controls::RowNamed(name).Command()))
            layout.addWidget(NewPictureButton(name, caption));
}

} // namespace qlm
