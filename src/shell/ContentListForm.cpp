// SPDX-License-Identifier: MIT
// The four list screens: one builder over their rows.
#include "content/ContentScreens.h"
#include "core/App.h"
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"
#include "shell/LowWidget.h"

#include <QBoxLayout>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LeastLinesOfAView = 3;
constexpr int LeastListHeight = 90;

const ContentScreen& ScreenOf(const Form& form) {
    for (const ContentScreen& screen : ContentScreens())
        if (form.objectName() == QLatin1StringView(screen.form))
            return screen;
    throw std::logic_error("No list screen is named " + form.objectName().toStdString());
}

// Without the form's name in front.
QLatin1StringView Short(const char* control) {
    const QLatin1StringView name(control);
    return name.sliced(name.indexOf(u'.') + 1);
}

QPlainTextEdit* NewView(const char* control) {
    QPlainTextEdit* view = NewGrowingLines(Short(control), LeastLinesOfAView);
    view->setReadOnly(true);
    return view;
}

QLayout* Buttons(const ContentScreen& screen) {
    auto* column = new QVBoxLayout;
    for (const QLatin1StringView name :
         {Short(screen.add), Short(screen.edit), Short(screen.remove), QLatin1StringView(ContentUndoDelete),
          QLatin1StringView(ContentMoveUp), QLatin1StringView(ContentMoveDown)})
        column->addWidget(NewButton(name));
    if (*screen.preview)
        column->addWidget(NewButton(Short(screen.preview)));
    column->addStretch();
    return column;
}

void AddViews(QVBoxLayout& column, const ContentScreen& screen) {
    if (!*screen.text)
        return;
    column.addWidget(NewView(screen.text), 2);
    if (!*screen.nonHTML)
        return;
    auto* state = new QHBoxLayout;
    state->addWidget(NewText(u"Alternative for profiles that don't allow HTML:"_s), 1);
    state->addWidget(NewLabel(Short(screen.usesNonHTML), u"badge"_s));
    column.addLayout(state);
    column.addWidget(NewView(screen.nonHTML), 1);
}

QLayout* Foot(const ContentScreen& screen) {
    auto* foot = new QHBoxLayout;
    foot->addWidget(Named(new QRadioButton, Short(screen.sendInOrder)));
    foot->addWidget(Named(new QRadioButton, Short(screen.randomize)));
    foot->addStretch();
    QPushButton* close = NewButton(QLatin1StringView(ContentClose));
    close->setDefault(true);
    foot->addWidget(close);
    return foot;
}

} // namespace

void BuildContentList(Form& form) {
    const ContentScreen& screen = ScreenOf(form);
    auto* list = Named(new LowWidget<QListView>, Short(screen.list));
    list->setMinimumHeight(LeastListHeight);
    auto* entries = new QHBoxLayout;
    entries->addWidget(list, 1);
    entries->addLayout(Buttons(screen));

    auto* column = new QVBoxLayout(&form);
    column->setSpacing(10);
    column->addWidget(
        NewText(u"You can add a number of %1 to the list below, each one will be used in turn."_s.arg(
                    QString::fromUtf16(screen.entries)),
                u"quiet"_s));
    column->addLayout(entries, 4);
    AddViews(*column, screen);
    column->addLayout(Foot(screen));
    form.resize(500, *screen.text ? 480 : 380);
}

} // namespace qlm
