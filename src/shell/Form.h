// SPDX-License-Identifier: MIT
#pragma once

#include "shell/ControlBinder.h"

#include <QDialog>

namespace qlm {

class App;
class WindowDialogs;

// What a form is built with.
struct FormContext {
    App& app;
    WindowDialogs& dialogs;
    QWidget* parent;
};

// One of the program's own windows beside the main one. Its builder (Forms.h) lays out named widgets; what
// they show, say and do comes from the table of controls and the commands. A form has a class of its own only
// where it behaves. Created and destroyed by WindowDialogs.
class Form : public QDialog {
public:
    Form(const FormContext& context, const QString& name, const QString& title);

    App& TheApp() const { return m_app; }
    // Ties the widgets to the controls; once, when they have been laid out.
    void Bind();
    // The user's Escape or the frame's cross: works as the form's Cancel or Close button where it has one.
    void reject() override;

protected:
    // Called when the widgets show the controls.
    virtual void Bound() {}
    // Closes the form when it has no such button.
    virtual void UserCloses();

    App& m_app;
    WindowDialogs& m_dialogs;

private:
    void MakeRoomForText();

    ControlBinder m_binder;
};

} // namespace qlm
