// SPDX-License-Identifier: MIT
#pragma once

#include "core/App.h"
#include "platform/sim/SimPlatform.h"
#include "shell/WindowDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// Dialogs whose user is the test: boxes are kept, a modal form is handed to whileModal and closed after it.
class TestDialogs : public WindowDialogs {
public:
    QString ChooseFileToOpen(const QString&, const QString&) override { return {}; }
    QString ChooseFileToSave(const QString&, const QString&, const QString&) override { return {}; }

    QStringList messages;
    std::function<void(QDialog&)> whileModal;

protected:
    void RunModal(const QString&, QDialog& dialog) override {
        dialog.show();
        if (whileModal)
            whileModal(dialog);
    }
    Answer RunMessage(const QString& text, const QString& title, Buttons buttons) override {
        messages.append(title + u": "_s + text);
        const bool isMessage = buttons == Buttons::Ok || buttons == Buttons::OkOrStay;
        return isMessage ? Answer::Ok : buttons == Buttons::OkCancel ? Answer::Cancel : Answer::No;
    }
};

// The real windows on the simulated platform.
class WindowTest : public testing::Test, private BrowserViews {
protected:
    WindowTest() {
        world.installationFolder = folder.filePath(u"program"_s);
        world.dataFolder = folder.filePath(u"data"_s);
        QDir().mkpath(world.installationFolder);
        QDir().mkpath(world.dataFolder);
        world.deploymentText = u"SiteRootHost=www.example.com\nSupportAddress=help@example.com\n"_s;
        world.http.responder = [](const QString&) { return u"2009-06-01"_s; };
        app.emplace(platform.emplace(world, dialogs));
        app->state.ProgramFolder = world.installationFolder;
        app->state.DataFolder = world.dataFolder;
        dialogs.Attach(*app, *this);
    }
    ~WindowTest() override { dialogs.Detach(); }

    template <typename Widget> Widget* Find(const char* form, const char* name) {
        QWidget* window = dialogs.FormWidget(QString::fromLatin1(form));
        return window ? window->findChild<Widget*>(QString::fromLatin1(name)) : nullptr;
    }

    QDialog* Shown(const char* form) {
        dialogs.ShowForm(QString::fromLatin1(form));
        return static_cast<QDialog*>(dialogs.FormWidget(QString::fromLatin1(form)));
    }
    static QStringList Texts(const QWidget& form) {
        QStringList texts;
        for (const auto* label : form.findChildren<QLabel*>())
            texts.append(label->text());
        return texts;
    }
    // Names of what Tab comes to, from the first widget on, once around.
    static QStringList TabOrder(QWidget& form) {
        QStringList names;
        QWidget* first = form.nextInFocusChain();
        for (QWidget* widget = first; widget; widget = widget->nextInFocusChain()) {
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isVisibleTo(&form) && widget->isEnabled() &&
                form.isAncestorOf(widget) && !widget->objectName().startsWith(u"qt_"_s))
                names.append(widget->objectName());
            if (widget->nextInFocusChain() == first)
                break;
        }
        return names;
    }
    static QString Caption(const QWidget& form, const char* name) {
        return form.findChild<QAbstractButton*>(QString::fromLatin1(name))->text().remove(u'&');
    }

    void Count(const char* command) {
        app->commands.Add(QString::fromLatin1(command), [this](int argument) {
            ++runs;
            lastArgument = argument;
        });
    }

    QTemporaryDir folder;
    SimWorld world;
    TestDialogs dialogs;
    std::optional<SimPlatform> platform;
    std::optional<App> app;
    QWidget browserView;
    QWidget coverView;
    int runs = 0;
    int lastArgument = -1;

private:
    QWidget* ViewOf(BrowserName name) override {
        return name == BrowserName::WebBrowser1 ? &browserView : &coverView;
    }
};

} // namespace qlm

// So that a failed comparison shows the text.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
