// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace qlm {

// A label of one line that never asks for more width than there is: a long text ends in "...", and shows
// whole as the tool tip. An empty one may show a quiet word in its place.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;

    void SetPlaceholder(const QString& text) { m_placeholder = text; }
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString m_placeholder;
};

} // namespace qlm
