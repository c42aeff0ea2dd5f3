// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"
#include "shell/PictureIcon.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize PictureSize(420, 210);
}

void BuildProfileIDHelp(Form& form) {
    auto* picture = Named(new QLabel, "picProfileID"_L1);
    picture->setAccessibleName(u"A profile's address ends with its ID: the number behind the last slash"_s);
    picture->setPixmap(PictureIcon(u"PROFILEID"_s).pixmap(PictureSize, form.devicePixelRatioF()));
    picture->setFixedSize(PictureSize);
    auto* column = new QVBoxLayout(&form);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(picture);
    column->addWidget(NewButtonRow({"cmdClose"_L1}));
}

} // namespace qlm
