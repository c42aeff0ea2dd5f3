// SPDX-License-Identifier: MIT
// The four entry screens: one builder over their rows.
#include "content/ContentScreens.h"
#include "core/App.h"
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"
#include "shell/PictureButtons.h"
#include "shell/WrappedBox.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LeastLinesOfABody = 5;
constexpr int LeastLinesOfAnAlternative = 3;

const ContentScreen& ScreenOf(const Form& form) {
    for (const ContentScreen& screen : ContentScreens())
        if (form.objectName() == QLatin1StringView(screen.entryForm))
            return screen;
    throw std::logic_error("No entry screen is named " + form.objectName().toStdString());
}

// Without the form's name in front.
QLatin1StringView Short(const char* control) {
    const QLatin1StringView name(control);
    return name.sliced(name.indexOf(u'.') + 1);
}

void AddSubject(QVBoxLayout& column, const ContentScreen& screen) {
    if (!*screen.subject)
        return;
    QLineEdit* subject = NewLine(Short(screen.subject));
    auto* row = new QHBoxLayout;
    row->addWidget(NewCaptionOf(*subject));
    row->addWidget(subject, 1);
    column.addLayout(row);
}

void AddBody(QVBoxLayout& column, const ContentScreen& screen, const Commands& commands) {
    QPlainTextEdit* body = NewGrowingLines(Short(screen.body), LeastLinesOfABody);
    auto* heading = new QHBoxLayout;
    heading->addWidget(NewCaptionOf(*body), 1);
    column.addLayout(heading);
    column.addWidget(body, 3);
    if (*screen.entryPreview && commands.Has(QString::fromLatin1(screen.entryPreview) + u"_Click"_s))
        heading->addWidget(NewPictureButton(Short(screen.entryPreview), Caption::Beside));
    if (screen.kind == ContentKind::Status)
        column.addWidget(NewLabel("lblStatusCharactersRemaining"_L1, u"quiet"_s));
}

void AddAlternative(QVBoxLayout& column, const ContentScreen& screen) {
    if (!*screen.alternative)
        return;
    QPlainTextEdit* alternative = NewGrowingLines(Short(screen.alternative), LeastLinesOfAnAlternative);
    column.addWidget(Named(new WrappedBox, Short(screen.useAlternative)));
    column.addWidget(NewCaptionOf(*alternative));
    column.addWidget(alternative, 2);
}

} // namespace

void BuildContentEntry(Form& form) {
    const ContentScreen& screen = ScreenOf(form);
    auto* column = new QVBoxLayout(&form);
    column->setSpacing(8);
    AddSubject(*column, screen);
    AddBody(*column, screen, form.TheApp().commands);
    AddAlternative(*column, screen);
    column->addWidget(NewButtonRow({"cmdSave"_L1, "cmdCancel"_L1}));
    form.resize(460, screen.kind == ContentKind::Status ? 260 : 380);
}

} // namespace qlm
