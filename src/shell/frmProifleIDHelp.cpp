// SPDX-License-Identifier: MIT
#include "shell/frmProifleIDHelp.h"

#include "shell/FormParts.h"
#include "shell/PictureIcon.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize PictureSize(420, 210);
}

frmProifleIDHelp::frmProifleIDHelp(const FormContext& context)
    : Form(context, u"frmProifleIDHelp"_s, u"Profile ID Help"_s) {
    auto* picture = Named(new QLabel, "picProfileID"_L1,
                          u"A profile's address ends with its ID: the number behind the last slash"_s);
    picture->setPixmap(PictureIcon(u"PROFILEID"_s).pixmap(PictureSize, devicePixelRatioF()));
    picture->setFixedSize(PictureSize);
    auto* column = new QVBoxLayout(this);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(picture);
    column->addWidget(NewButtonRow({NewButton("cmdClose"_L1, u"&Close"_s)}));
}

} // namespace qlm
