// SPDX-License-Identifier: MIT
#include "shell/Look.h"

#include "shell/PictureIcon.h"

#include <QApplication>
#include <QFile>
#include <QPalette>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QColor Between(const QColor& a, const QColor& b, double share) {
    auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// The style sheet's own colour words, made from the desktop's palette so that light and dark ones both read
// well.
QString WithColours(QString sheet, const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const QColor accent = palette.color(QPalette::Highlight);
    const bool isDark = window.lightness() < text.lightness();
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
    QFile sheet(u":/window.qss"_s);
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(WithColours(QString::fromUtf8(sheet.readAll()), QApplication::palette()));
    application.setWindowIcon(ProgramIcon());
}

} // namespace qlm
