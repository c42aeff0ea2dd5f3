// SPDX-License-Identifier: MIT
#include "shell/Look.h"

#include "shell/PictureIcon.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QColor Between(const QColor& a, const QColor& b, double share) {
    auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// Fusion draws the frames of boxes and options darker than the window, so that empty ones can't be seen on a
// dark one.
class FramedOnDark : public QProxyStyle {
public:
    FramedOnDark() : QProxyStyle(u"fusion"_s) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isRound = element == PE_IndicatorRadioButton;
        const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
        if ((!isRound && !isBox) || !IsDark(option->palette))
            return;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing, isRound);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(Between(option->palette.color(QPalette::WindowText),
                                option->palette.color(QPalette::Window), 0.4));
        const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -1.5, -1.5);
        if (isRound)
            painter->drawEllipse(frame);
        else
            painter->drawRect(frame);
        painter->restore();
    }
};

// The style sheet's own colour words, made from the desktop's palette so that light and dark ones both read
// well.
QString WithColours(QString sheet, const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const QColor accent = palette.color(QPalette::Highlight);
    const bool isDark = IsDark(palette);
    sheet.replace(u"@quiet"_s, Between(text, window, 0.35).name());
    sheet.replace(u"@link"_s, (isDark ? accent.lighter(140) : accent.darker(140)).name());
    // The bars above and below the page are a little darker than the window, in a dark look a little lighter.
    sheet.replace(u"@bar"_s, isDark ? Between(window, text, 0.08).name() : u"#e9e9ed"_s);
    sheet.replace(u"@raised"_s, Between(window, palette.color(QPalette::Base), 0.55).name());
    sheet.replace(u"@tint"_s, Between(window, accent, 0.12).name());
    return sheet;
}

} // namespace

void ApplyLook(QApplication& application) {
    if (QApplication::style()->name() == u"fusion"_s)
        QApplication::setStyle(new FramedOnDark);
    // A desktop may name its colours for texts without one for what an empty field says.
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::PlaceholderText,
                     Between(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.4));
    QApplication::setPalette(palette);
    QFile sheet(u":/window.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(WithColours(QString::fromUtf8(sheet.readAll()), QApplication::palette()));
    application.setWindowIcon(ProgramIcon());
}

} // namespace qlm
