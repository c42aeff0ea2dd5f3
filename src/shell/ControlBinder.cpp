// SPDX-License-Identifier: MIT
#include "shell/ControlBinder.h"

#include "core/App.h"
#include "shell/TickBox.h"

#include <QAbstractButton>
#include <QAction>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QTabWidget>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Key codes as the KeyDown commands know them.
struct KeyCode {
    int key;
    int code;
};
constexpr KeyCode KeyCodes[] = {
    {Qt::Key_Delete, 46},
    {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},
    {Qt::Key_Insert, 45},
};

// A line comes with its text selected, ready to be replaced, also when it never lost the focus.
void TakeFocus(QWidget& widget) {
    widget.setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(&widget))
        line->selectAll();
}

void ShowCommon(QWidget& widget, const Control& control, Controls::Change change) {
    using enum Controls::Change;
    if (change == Enabled)
        widget.setEnabled(control.enabled);
    else if (change == Visible)
        widget.setVisible(control.visible);
    else if (change == ToolTip)
        widget.setToolTip(control.toolTip);
    else if (change == Focus)
        TakeFocus(widget);
}

} // namespace

ControlBinder::ControlBinder(App& app, const QString& prefix, std::function<int()> messageCount)
    : m_app(app), m_prefix(prefix), m_messageCount(std::move(messageCount)) {
    m_listener = m_app.controls.AddListener(
        [this](const Control& control, Change change, int row) { OnChange(control, change, row); });
}

ControlBinder::~ControlBinder() {
    m_app.controls.RemoveListener(m_listener);
}

void ControlBinder::BindAll(QWidget& root) {
    for (QWidget* widget : root.findChildren<QWidget*>())
        if (!widget->objectName().isEmpty())
            BindWidget(*widget);
}

void ControlBinder::BindWidget(QWidget& widget) {
    const QString name = m_prefix + widget.objectName();
    const QByteArray key = name.toLatin1();
    if (m_app.controls.Has(QLatin1StringView(key))) {
        // The table's own name outlives the widget.
        const QLatin1StringView row = m_app.controls[QLatin1StringView(key)].name;
        const Show show = ViewFor(widget, row);
        ShowAll(widget, m_app.controls[row], show);
        m_bound.insert(row, {&widget, show});
    }
    ConnectCommands(widget, name);
}

void ControlBinder::ShowAll(QWidget& widget, const Control& control, const Show& show) {
    QScopedValueRollback showing(m_showing, true);
    widget.setEnabled(control.enabled);
    if (!control.visible)
        widget.setVisible(false);
    if (!control.toolTip.isEmpty())
        widget.setToolTip(control.toolTip);
    if (show)
        for (Change change : {Change::Items, Change::Text, Change::Ticked, Change::Selected})
            show(control, change, -1);
}

void ControlBinder::OnChange(const Control& control, Change change, int row) {
    const auto found = m_bound.constFind(control.name);
    if (found == m_bound.constEnd() || !found->object)
        return;
    // A copy: showing may bind or unbind others.
    const Bound bound = *found; // NOLINT(performance-unnecessary-copy-initialization)
    QScopedValueRollback showing(m_showing, true);
    if (auto* widget = qobject_cast<QWidget*>(bound.object.data()))
        ShowCommon(*widget, control, change);
    else if (auto* action = qobject_cast<QAction*>(bound.object.data()); action && change == Change::Enabled)
        action->setEnabled(control.enabled);
    if (bound.show)
        bound.show(control, change, row);
}

void ControlBinder::Bind(QAction& action) {
    const QString name = m_prefix + action.objectName();
    const QByteArray key = name.toLatin1();
    Show show;
    if (m_app.controls.Has(QLatin1StringView(key)) && action.isCheckable()) {
        const Control& control = m_app.controls[QLatin1StringView(key)];
        show = [&action](const Control& changed, Change, int) { action.setChecked(changed.ticked); };
        show(control, Change::Ticked, -1);
        m_bound.insert(control.name, {&action, show});
    }
    connect(&action, &QAction::triggered, this, [this, &action, name, show] {
        // The command turns the tick in the table, not the menu.
        if (show)
            show(m_app.controls[QLatin1StringView(name.toLatin1())], Change::Ticked, -1);
        Run(name + u"_Click"_s);
    });
}

bool ControlBinder::Run(const QString& command, int argument) {
    return m_app.commands.Run(command, argument);
}

void ControlBinder::ConnectCommands(QWidget& widget, const QString& name) {
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        const QString own = button->property("command").toString();
        connect(button, &QAbstractButton::clicked, this,
                [this, command = own.isEmpty() ? name + u"_Click"_s : own] { Run(command); });
    }
    if (auto* tabs = qobject_cast<QTabWidget*>(&widget))
        connect(tabs, &QTabWidget::currentChanged, this, [this, name](int tab) {
            if (!m_showing)
                Run(name + u"_Click"_s, tab);
        });
    if (auto* box = dynamic_cast<TickBox*>(&widget))
        GuardTick(*box, name);
    if (auto* list = qobject_cast<QListView*>(&widget)) {
        connect(list, &QListView::doubleClicked, this, [this, name] { Run(name + u"_DblClick"_s); });
        connect(list, &QListView::clicked, this, [this, name] { Run(name + u"_Click"_s); });
        list->installEventFilter(this);
    }
    if (qobject_cast<QLineEdit*>(&widget))
        widget.installEventFilter(this);
}

void ControlBinder::GuardTick(TickBox& box, const QString& name) {
    box.mayTurn = [this, name] {
        const int before = m_messageCount();
        Run(name + u"_MouseDown"_s);
        return m_messageCount() == before;
    };
}

bool ControlBinder::eventFilter(QObject* object, QEvent* event) {
    const QString name = m_prefix + object->objectName();
    if (event->type() == QEvent::KeyPress && qobject_cast<QListView*>(object)) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        for (const KeyCode& known : KeyCodes)
            if (known.key == key && m_app.commands.Has(name + u"_KeyDown"_s)) {
                Run(name + u"_KeyDown"_s, known.code);
                return key == Qt::Key_Delete;
            }
    }
    if (event->type() == QEvent::FocusOut && qobject_cast<QLineEdit*>(object)) {
        // Another program's window or a menu coming up is no leaving of the field.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            Run(name + u"_LostFocus"_s);
    }
    return QObject::eventFilter(object, event);
}

} // namespace qlm
