// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

namespace qlm {

// A check box whose caption takes as many lines as it needs.
class WrappedBox : public QCheckBox {
public:
    WrappedBox();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }

private:
    int CaptionLeft() const;
};

} // namespace qlm
