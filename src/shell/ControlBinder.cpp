// SPDX-License-Identifier: MIT
#include "shell/ControlBinder.h"

#include "core/App.h"
#include "shell/TabStrip.h"
#include "shell/TickBox.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QTableView>
#include <QTextBrowser>

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

// It is scrolled to where it is out of sight. A line comes with its text selected, ready to be replaced, also
// when it never lost the focus.
void TakeFocus(QWidget& widget) {
    widget.setFocus(Qt::OtherFocusReason);
    for (QWidget* around = widget.parentWidget(); around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around)) {
            // The whole of it, and not the line of its cursor alone.
            const QRect place(widget.mapTo(area->widget(), QPoint()), widget.size());
            area->ensureVisible(place.left(), place.bottom(), 0, 4);
            area->ensureVisible(place.left(), place.top(), 0, 4);
        }
    if (auto* line = qobject_cast<QLineEdit*>(&widget))
        line->selectAll();
}

void SetVisible(QWidget& widget, bool visible) {
    // To show a menu is to open it.
    if (auto* menu = qobject_cast<QMenu*>(&widget))
        menu->menuAction()->setVisible(visible);
    else
        widget.setVisible(visible);
}

void ShowCommon(QWidget& widget, const Control& control, Controls::Change change) {
    using enum Controls::Change;
    if (change == Enabled)
        widget.setEnabled(control.enabled);
    else if (change == Visible)
        SetVisible(widget, control.visible);
    else if (change == ToolTip)
        widget.setToolTip(control.toolTip);
    else if (change == Focus)
        TakeFocus(widget);
}

void ShowCommon(QAction& action, const Control& control, Controls::Change change) {
    using enum Controls::Change;
    if (change == Enabled)
        action.setEnabled(control.enabled);
    else if (change == Visible)
        action.setVisible(control.visible);
    else if (change == Text)
        action.setText(CaptionWithLetter(control));
    else if (change == Ticked && action.isCheckable())
        action.setChecked(control.ticked);
}

// What has no words of its own on it.
bool IsInput(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget) ||
           qobject_cast<const QTextBrowser*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget);
}

// Several frames have a choice of the same words; what they are about tells them apart.
void NameOptions(const QWidget& root) {
    for (auto* option : root.findChildren<QRadioButton*>())
        if (const auto* frame = qobject_cast<QGroupBox*>(option->parentWidget()))
            option->setAccessibleName(QString(frame->title()).remove(u'&') + u": "_s +
                                      QString(option->text()).remove(u'&').remove(u':'));
}

// The number of "mnuItem(2)".
std::optional<int> NumberIn(const QString& name) {
    static const QRegularExpression number(uR"(\((\d+)\)$)"_s);
    const QRegularExpressionMatch match = number.match(name);
    return match.hasMatch() ? std::optional(match.captured(1).toInt()) : std::nullopt;
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
    m_root = &root;
    for (QWidget* widget : root.findChildren<QWidget*>())
        if (!widget->objectName().isEmpty())
            BindWidget(*widget);
    NameOptions(root);
    ShowPointer();
}

void ControlBinder::BindWidget(QWidget& widget) {
    const QString name = m_prefix + widget.objectName();
    const QByteArray key = name.toLatin1();
    if (m_app.controls.Has(QLatin1StringView(key))) {
        const Control& control = m_app.controls[QLatin1StringView(key)];
        ShowWords(widget, *control.row);
        // The table's own name outlives the widget.
        const Show show = ViewFor(widget, control.name);
        ShowAll(widget, control, show);
        m_bound.insert(control.name, {&widget, show});
    }
    ConnectCommands(widget, name);
}

// A combo box has no other name to a screen reader than that of the label in front of it.
void ControlBinder::ShowWords(QWidget& widget, const ControlRow& row) {
    if (*row.spoken || IsInput(widget))
        widget.setAccessibleName(row.SpokenName());
    widget.setWhatsThis(QString::fromUtf16(row.whatsThis));
    if (auto* line = qobject_cast<QLineEdit*>(&widget))
        line->setPlaceholderText(QString::fromUtf16(row.hint));
    if (auto* lines = qobject_cast<QPlainTextEdit*>(&widget))
        lines->setPlaceholderText(QString::fromUtf16(row.hint));
    if (!IsInput(widget) || !*row.caption)
        return;
    for (auto* label : m_root->findChildren<QLabel*>())
        if (label->buddy() == &widget) {
            label->setText(QString::fromUtf16(row.caption));
            label->setAccessibleName(row.SpokenName());
        }
}

void ControlBinder::ShowPointer() {
    if (!m_root)
        return;
    if (m_app.controls.Pointer() == PointerShape::Busy)
        m_root->setCursor(Qt::WaitCursor);
    else
        m_root->unsetCursor();
}

void ControlBinder::ShowAll(QWidget& widget, const Control& control, const Show& show) {
    QScopedValueRollback showing(m_showing, true);
    widget.setEnabled(control.enabled);
    if (!control.visible)
        SetVisible(widget, false);
    if (!control.toolTip.isEmpty())
        widget.setToolTip(control.toolTip);
    if (show)
        for (Change change : {Change::Items, Change::Text, Change::Ticked, Change::Selected})
            show(control, change, -1);
}

void ControlBinder::OnChange(const Control& control, Change change, int row) {
    if (change == Change::Pointer)
        ShowPointer();
    const auto found = m_bound.constFind(control.name);
    if (found == m_bound.constEnd() || !found->object)
        return;
    // A copy: showing may bind or unbind others.
    const Bound bound = *found; // NOLINT(performance-unnecessary-copy-initialization)
    QScopedValueRollback showing(m_showing, true);
    if (auto* widget = qobject_cast<QWidget*>(bound.object.data()))
        ShowCommon(*widget, control, change);
    else if (auto* action = qobject_cast<QAction*>(bound.object.data()))
        ShowCommon(*action, control, change);
    if (bound.show)
        bound.show(control, change, row);
}

QActionGroup& ControlBinder::MenuGroup(QLatin1StringView group) {
    QActionGroup*& found = m_menuGroups[group];
    if (!found) {
        found = new QActionGroup(this);
        // The table says which is chosen, and whether one is.
        found->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    }
    return *found;
}

void ControlBinder::Bind(QAction& action) {
    const QString name = m_prefix + action.objectName();
    const QByteArray key = name.toLatin1();
    if (m_app.controls.Has(QLatin1StringView(key))) {
        const Control& control = m_app.controls[QLatin1StringView(key)];
        if (!control.group.isEmpty()) {
            action.setCheckable(true);
            MenuGroup(control.group).addAction(&action);
        }
        for (const Change change : {Change::Enabled, Change::Visible, Change::Text, Change::Ticked})
            ShowCommon(action, control, change);
        m_bound.insert(control.name, {&action, {}});
    }
    connect(&action, &QAction::triggered, this, [this, &action, name] {
        // The command turns the tick in the table, not the menu.
        if (const QByteArray row = name.toLatin1(); m_app.controls.Has(QLatin1StringView(row)))
            ShowCommon(action, m_app.controls[QLatin1StringView(row)], Change::Ticked);
        const std::optional<int> number = NumberIn(name);
        Run(number ? name.left(name.lastIndexOf(u'(')) + u"_Click"_s : name + u"_Click"_s,
            number.value_or(0));
    });
}

bool ControlBinder::Run(const QString& command, int argument) {
    return m_app.commands.Run(command, argument);
}

void ControlBinder::ConnectCommands(QWidget& widget, const QString& name) {
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        const QByteArray row = name.toLatin1();
        const QString command = m_app.controls.Has(QLatin1StringView(row))
                                    ? m_app.controls[QLatin1StringView(row)].row->Command()
                                    : name + u"_Click"_s;
        connect(button, &QAbstractButton::clicked, this, [this, command] { Run(command); });
    }
    if (auto* box = dynamic_cast<TickBox*>(&widget))
        GuardTick(*box, name);
    if (auto* list = qobject_cast<QListView*>(&widget); list && !dynamic_cast<TabStrip*>(list)) {
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
                return key != Qt::Key_Insert;
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
