// SPDX-License-Identifier: MIT
#include "shell/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace qlm {

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 8, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter); // the background of a style sheet, too
    QString shown = text();
    if (shown.isEmpty()) {
        shown = m_placeholder;
        painter.setOpacity(0.55);
    }
    shown.replace(u'\r', u' ').replace(u'\n', u' ');
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(shown, Qt::ElideRight, contentsRect().width()),
                          foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() &&
        fontMetrics().horizontalAdvance(text()) > contentsRect().width()) {
        // Not as markup: a page or a user has written it.
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace qlm
