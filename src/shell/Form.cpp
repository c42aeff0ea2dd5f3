// SPDX-License-Identifier: MIT
#include "shell/Form.h"

#include "core/App.h"
#include "shell/WindowDialogs.h"

#include <QPushButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// A button that became the default one before it stood in the form is not known to it as such.
void SettleDefaultButton(const QWidget& form) {
    for (auto* button : form.findChildren<QPushButton*>())
        if (button->isDefault()) {
            button->setDefault(false);
            button->setDefault(true);
        }
}

} // namespace

Form::Form(const FormContext& context, const QString& name, const QString& title)
    : QDialog(context.parent),
      m_app(context.app),
      m_dialogs(context.dialogs),
      m_binder(context.app, name + u'.', [&dialogs = context.dialogs] { return dialogs.MessageCount(); }) {
    setObjectName(name);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Form::Bind() {
    m_binder.BindAll(*this);
    SettleDefaultButton(*this);
    MakeRoomForText();
    Bound();
}

// How high a text of several lines is, is known when it has its font.
void Form::MakeRoomForText() {
    for (QWidget* widget : findChildren<QWidget*>())
        widget->ensurePolished();
    if (hasHeightForWidth())
        setMinimumSize(width(), std::max(minimumHeight(), heightForWidth(width())));
}

void Form::reject() {
    for (const QString& name : {u"cmdCancel"_s, u"cmdClose"_s})
        if (const auto* button = findChild<QPushButton*>(name)) {
            // A form that is busy has its buttons disabled and stays.
            if (button->isEnabled() && !m_binder.Run(objectName() + u'.' + name + u"_Click"_s))
                UserCloses();
            return;
        }
    UserCloses();
}

void Form::UserCloses() {
    m_dialogs.CloseForm(objectName());
}

} // namespace qlm
