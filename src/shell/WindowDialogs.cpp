// SPDX-License-Identifier: MIT
#include "shell/WindowDialogs.h"

#include "core/App.h"
#include "program/MainForm.h"
#include "shell/FormRegistry.h"
#include "shell/frmMain.h"

#include <QApplication>
#include <QDialog>
#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

void BringToFront(QWidget& window) {
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

WindowDialogs::~WindowDialogs() {
    Detach();
}

void WindowDialogs::Attach(App& app, BrowserViews& views) {
    m_app = &app;
    m_views = &views;
}

void WindowDialogs::Detach() {
    // Children of another form go with it.
    for (const OpenForm& form : m_forms)
        delete form.widget.data();
    m_forms.clear();
    // Those that were closed a moment ago wait for a loop that may not come.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete m_main.data();
    m_app = nullptr;
}

Dialogs::Answer WindowDialogs::ShowMessage(const QString& text, const QString& title, Buttons buttons) {
    ++m_messageCount;
    return RunMessage(text, title.isEmpty() ? u"Quillmere"_s : title, buttons);
}

QDialog* WindowDialogs::Create(const QString& form, QWidget* parent) {
    QDialog* dialog = CreateForm(form, {*m_app, *this, parent});
    m_forms.push_back({form, dialog});
    return dialog;
}

void WindowDialogs::ShowModal(const QString& form) {
    if (QWidget* open = FormWidget(form)) {
        BringToFront(*open);
        return;
    }
    const QPointer<QDialog> dialog = Create(form, ParentForm());
    dialog->setModal(true);
    const auto destroy = qScopeGuard([this, form, dialog] {
        Forget(form);
        delete dialog.data();
    });
    RunModal(form, *dialog);
}

void WindowDialogs::ShowForm(const QString& form) {
    if (form == "frmMain"_L1) {
        ShowMain();
        return;
    }
    if (QWidget* open = FormWidget(form)) {
        BringToFront(*open);
        return;
    }
    PlaceBeside(*Create(form, nullptr));
}

// Over the main window if it is there, and of its own otherwise: the form that is active now may close first.
// Not so while a modal window stands above everything: behind that one the form could neither be seen nor
// used.
void WindowDialogs::PlaceBeside(QDialog& form) {
    auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    QWidget* main = m_main && m_main->isVisible() ? m_main.data() : nullptr;
    form.setParent(modal ? modal : main, form.windowFlags());
    if (modal)
        QObject::connect(modal, &QDialog::finished, &form, [this, &form] {
            if (form.isVisible())
                PlaceBeside(form);
        });
    form.show();
}

void WindowDialogs::ShowMain() {
    if (m_main) {
        // Form_Load itself knows what a second coming means.
        m_app->Get<MainForm>().Form_Load();
        return;
    }
    auto* window = new frmMain(*m_app, *this, *m_views);
    m_main = window;
    m_forms.push_back({u"frmMain"_s, window});
    if (onMainWindow)
        onMainWindow(*window);
    m_app->Get<MainForm>().Form_Load();
    if (IsFormOpen(u"frmMain"_s))
        BringToFront(*window);
}

void WindowDialogs::CloseForm(const QString& form) {
    const QPointer<QWidget> widget = FormWidget(form);
    if (!widget)
        return;
    if (widget == m_main) {
        widget->close();
        return;
    }
    Forget(form);
    auto* dialog = static_cast<QDialog*>(widget.data());
    const bool modal = dialog->isModal();
    dialog->done(QDialog::Rejected);
    // A modal form is destroyed by who waits for it; a click of its own may be running in the other, so
    // later.
    if (!modal && widget)
        widget->deleteLater();
}

void WindowDialogs::SetFormVisible(const QString& form, bool visible) {
    QWidget* widget = FormWidget(form);
    if (!widget)
        return;
    if (visible)
        BringToFront(*widget);
    else
        widget->hide();
}

void WindowDialogs::MainClosed() {
    Forget(u"frmMain"_s);
}

void WindowDialogs::Forget(const QString& form) {
    std::erase_if(m_forms, [&form](const OpenForm& open) { return open.name == form; });
}

QWidget* WindowDialogs::FormWidget(const QString& form) const {
    for (const OpenForm& open : m_forms)
        if (open.name == form)
            return open.widget;
    return nullptr;
}

bool WindowDialogs::IsFormOpen(const QString& form) const {
    return FormWidget(form) != nullptr;
}

QStringList WindowDialogs::OpenForms() const {
    QStringList names;
    for (const OpenForm& open : m_forms)
        names.append(open.name);
    return names;
}

bool WindowDialogs::CloseWindowTitled(const QString& title) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowTitle() == title) {
            window->close();
            return true;
        }
    return false;
}

QWidget* WindowDialogs::ParentForm() const {
    for (const OpenForm& form : m_forms)
        if (form.widget && form.widget == QApplication::activeWindow())
            return form.widget;
    return m_main && m_main->isVisible() ? m_main.data() : nullptr;
}

QWidget* WindowDialogs::ParentWindow() const {
    if (QWidget* active = QApplication::activeWindow(); active && active->isVisible())
        return active;
    return m_main && m_main->isVisible() ? m_main.data() : nullptr;
}

} // namespace qlm
