// SPDX-License-Identifier: MIT
#include "shell/WrappedBox.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace qlm {

namespace {
constexpr int UsualWidth = 380;
constexpr int LeastWidth = 200;
constexpr int CaptionFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
} // namespace

WrappedBox::WrappedBox() {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int WrappedBox::CaptionLeft() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).left();
}

int WrappedBox::heightForWidth(int width) const {
    const QRect room(0, 0, width - CaptionLeft(), 10000);
    const int words = fontMetrics().boundingRect(room, CaptionFlags, text()).height();
    return std::max(words, style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this)) + 4;
}

QSize WrappedBox::sizeHint() const {
    return {UsualWidth, heightForWidth(UsualWidth)};
}

QSize WrappedBox::minimumSizeHint() const {
    return {LeastWidth, heightForWidth(std::max(width(), LeastWidth))};
}

// The box stands beside the first line.
void WrappedBox::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect room = rect().adjusted(CaptionLeft(), 2, 0, -2);
    option.text.clear();
    option.rect.setHeight(fontMetrics().height() + 4);
    painter.drawControl(QStyle::CE_CheckBox, option);
    style()->drawItemText(&painter, room, CaptionFlags, palette(), isEnabled(), text(), QPalette::WindowText);
    if (!hasFocus() || !(option.state & QStyle::State_KeyboardFocusChange))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = room;
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace qlm
