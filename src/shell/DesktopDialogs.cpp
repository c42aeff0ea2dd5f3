// SPDX-License-Identifier: MIT
#include "shell/DesktopDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

QString DesktopDialogs::QtFilter(const QString& filter) {
    static const QRegularExpression patternInName(uR"(\s*\([^)]*\*[^)]*\)\s*$)"_s);
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        patterns.replaceInStrings(u"*.*"_s, u"*"_s);
        // A name that ends in a pattern of its own would be taken for it.
        filters.append(QString(parts[i]).remove(patternInName) + u" ("_s + patterns.join(u' ') + u')');
    }
    return filters.join(u";;"_s);
}

QString DesktopDialogs::Remember(const QString& path) {
    if (!path.isEmpty())
        m_folder = QFileInfo(path).absolutePath();
    return path;
}

QString DesktopDialogs::ChooseFileToOpen(const QString& title, const QString& filter) {
    return Remember(QFileDialog::getOpenFileName(ParentWindow(), title.isEmpty() ? u"Open"_s : title,
                                                 m_folder, QtFilter(filter)));
}

QString DesktopDialogs::UsualSuffix(const QString& suggestedName, const QString& filter) {
    const QString pattern = filter.section(u'|', 1, 1).section(u';', 0, 0);
    return QFileInfo(suggestedName.isEmpty() ? pattern : suggestedName).suffix().remove(u'*');
}

QString DesktopDialogs::ChooseFileToSave(const QString& title, const QString& suggestedName,
                                         const QString& filter) {
    QFileDialog dialog(ParentWindow(), title.isEmpty() ? u"Save"_s : title, m_folder, QtFilter(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // A name without one gets it, so that the dialog that opens such files lists it.
    dialog.setDefaultSuffix(UsualSuffix(suggestedName, filter));
    dialog.selectFile(suggestedName);
    return dialog.exec() == QDialog::Accepted ? Remember(dialog.selectedFiles().value(0)) : QString();
}

// Its own exec() would end when the dialog is hidden for a while.
void DesktopDialogs::RunModal(const QString&, QDialog& dialog) {
    QEventLoop loop;
    QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(&dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
    dialog.show();
    loop.exec(QEventLoop::DialogExec);
}

Dialogs::Answer DesktopDialogs::RunMessage(const QString& text, const QString& title, Buttons buttons) {
    QMessageBox box(ParentWindow());
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(QString(text).replace(u"\r\n"_s, u"\n"_s));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (buttons == Buttons::Ok) {
        box.setIcon(QMessageBox::Information);
        box.setStandardButtons(QMessageBox::Ok);
    } else if (buttons == Buttons::OkOrStay) {
        // What can't be taken back is never the default.
        box.setIcon(QMessageBox::Warning);
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.button(QMessageBox::Ok)->setText(u"&Close Anyway"_s);
        box.button(QMessageBox::Cancel)->setText(u"&Stay Open"_s);
        box.setDefaultButton(QMessageBox::Cancel);
    } else if (buttons == Buttons::OkCancel) {
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Cancel);
    } else {
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        // Escape says no where there is no cancelling.
        box.setEscapeButton(QMessageBox::No);
        // What Yes does can often not be undone: nobody says it by a Return that was meant for something
        // else.
        box.setDefaultButton(QMessageBox::No);
        if (buttons == Buttons::YesNoCancel) {
            box.addButton(QMessageBox::Cancel);
            box.setEscapeButton(QMessageBox::Cancel);
            box.setDefaultButton(QMessageBox::Yes);
        }
    }
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    case QMessageBox::Ok:
        return Answer::Ok;
    default:
        // Dismissed without a button, as at the program's end.
        return buttons == Buttons::OkCancel ? Answer::Cancel : Answer::Ok;
    }
}

void DesktopDialogs::DismissBoxes() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* box = qobject_cast<QDialog*>(window);
            box && box->isModal() && box->isVisible() && !IsFormOpen(box->objectName()))
            box->reject();
}

} // namespace qlm
