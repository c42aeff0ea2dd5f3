// SPDX-License-Identifier: MIT
#include "guided/WindowDriver.h"

#include "core/App.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <algorithm>
#include <cstdio>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int LookEveryMs = 25;
}

WindowDriver::WindowDriver(App& app)
    : m_app(app), m_clock(app.Pump().Queue(), LookEveryMs, false, [this] { Look(); }) {}

WindowDriver::~WindowDriver() = default;

void WindowDriver::Start() {
    m_wholeTime.start();
    m_stepTime.start();
    m_clock.Restart();
}

void WindowDriver::Look() {
    if (AnswerBox() || m_next >= m_steps.size())
        return;
    const Step step = m_steps[m_next];
    if (!step.isReady()) {
        if (m_stepTime.elapsed() > step.limitSeconds * 1000)
            End(u"Waited "_s + QString::number(step.limitSeconds) + u" seconds in vain for: "_s + step.title);
        return;
    }
    Say(step.title);
    ++m_next;
    m_stepTime.restart();
    // A message of its own: an act may bring up a modal form, and the next step has to work in that.
    m_app.Pump().Queue().Post(step.act);
}

bool WindowDriver::AnswerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return false;
    m_messages.append(box->text());
    Say(u"    message: "_s + box->text());
    QAbstractButton* answer = box->button(QMessageBox::Ok);
    (answer ? answer : box->button(QMessageBox::No))->click();
    return true;
}

bool WindowDriver::WasTold(const QString& beginning) const {
    return std::any_of(m_messages.begin(), m_messages.end(),
                       [&](const QString& message) { return message.startsWith(beginning); });
}

void WindowDriver::Say(const QString& text) const {
    std::printf("%6.1f s  %s\n", static_cast<double>(m_wholeTime.elapsed()) / 1000.0, qUtf8Printable(text));
    std::fflush(stdout);
}

QWidget* WindowDriver::Form(const char* name) const {
    for (QWidget* form : QApplication::topLevelWidgets())
        if (form->isVisible() && form->objectName() == QLatin1StringView(name))
            return form;
    return nullptr;
}

QWidget* WindowDriver::Find(const char* form, const char* name) const {
    QWidget* top = Form(form);
    return top ? top->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
}

void WindowDriver::Press(const char* form, const char* name) {
    auto* button = qobject_cast<QAbstractButton*>(Find(form, name));
    if (!button || !button->isEnabled()) {
        End(u"There is no button to press: "_s + QString::fromLatin1(name));
        return;
    }
    button->click();
}

void WindowDriver::ChooseTab(const QString& caption) {
    auto* tabs = qobject_cast<QListView*>(Find("frmMain", "TabStrip1"));
    const QModelIndexList found =
        tabs ? tabs->model()->match(tabs->model()->index(0, 0), Qt::DisplayRole, caption, 1, Qt::MatchExactly)
             : QModelIndexList();
    if (found.isEmpty())
        End(u"There is no such tab: "_s + caption);
    else
        tabs->setCurrentIndex(found.first());
}

void WindowDriver::Type(const char* form, const char* name, const QString& text) {
    auto* field = qobject_cast<QLineEdit*>(Find(form, name));
    if (!field) {
        End(u"There is no field to type into: "_s + QString::fromLatin1(name));
        return;
    }
    field->setText(text);
    Q_EMIT field->textEdited(text);
    Q_EMIT field->editingFinished();
}

void WindowDriver::ChooseItem(const char* form, const char* name, const QString& item) {
    auto* box = qobject_cast<QComboBox*>(Find(form, name));
    if (!box || box->findText(item) < 0) {
        End(u"There is no such choice: "_s + item);
        return;
    }
    box->setCurrentText(item);
}

void WindowDriver::TypeKeys(const QString& text) {
    QWidget* window = Form("frmMain");
    for (const QChar sign : text) {
        QWidget* target = window ? window->focusWidget() : nullptr;
        if (!target) {
            End(u"Nothing has the keyboard."_s);
            return;
        }
        const bool isEnter = sign == u'\n';
        const int key = isEnter ? int(Qt::Key_Return) : int(sign.toUpper().unicode());
        const QString typed = isEnter ? u"\r"_s : QString(sign);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
        QApplication::sendEvent(target, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, typed);
        QApplication::sendEvent(target, &release);
    }
}

void WindowDriver::Choose(const char* menuItem) {
    QWidget* window = Form("frmMain");
    auto* item = window ? window->findChild<QAction*>(QString::fromLatin1(menuItem)) : nullptr;
    if (!item) {
        End(u"There is no menu item to choose: "_s + QString::fromLatin1(menuItem));
        return;
    }
    item->trigger();
}

void WindowDriver::End(const QString& problem) {
    m_clock.SetEnabled(false);
    m_next = m_steps.size();
    m_problem = problem;
    m_exitCode = problem.isEmpty() ? 0 : 1;
    OnEnd(problem);
    // A step that is waiting leaves its wait, so that the loop below can end.
    m_app.state.blnClosing = true;
    m_app.platform.Shell().Quit();
}

void WindowDriver::OnEnd(const QString& problem) {
    if (!problem.isEmpty())
        Say(u"FAILED: "_s + problem);
}

} // namespace qlm
