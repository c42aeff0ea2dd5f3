// SPDX-License-Identifier: MIT
#include "shell/PictureIcon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// The two colours that the drawings are made in.
constexpr char LineColour[] = "#4a5560";
constexpr char AccentColour[] = "#2d7dd2";

QColor Between(const QColor& a, const QColor& b, double share) {
    auto mix = [share](int x, int y) { return static_cast<int>(x + (y - x) * share); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// Draws one picture, its lines recoloured for the state of the button.
class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(QByteArray drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer(Coloured(mode)).render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PictureEngine(m_drawing); }

private:
    QByteArray Coloured(QIcon::Mode mode) const {
        const QPalette palette = QApplication::palette();
        const QColor text = palette.color(QPalette::WindowText);
        const QColor window = palette.color(QPalette::Window);
        QColor line = Between(text, window, 0.25);
        QColor accent = palette.color(QPalette::Highlight);
        if (mode == QIcon::Disabled)
            line = accent = Between(text, window, 0.7);
        else if (mode == QIcon::Active || mode == QIcon::Selected)
            line = accent;
        QByteArray drawing = m_drawing;
        drawing.replace(AccentColour, accent.name().toLatin1());
        return drawing.replace(LineColour, line.name().toLatin1());
    }

    QByteArray m_drawing;
};

QByteArray Drawing(const QString& image) {
    QFile file(u":/images/"_s + image + u".svg"_s);
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(opened, "PictureIcon", qUtf8Printable(image));
    return opened ? file.readAll() : QByteArray();
}

} // namespace

QIcon PictureIcon(const QString& image) {
    return QIcon(new PictureEngine(Drawing(image)));
}

QIcon ProgramIcon() {
    QIcon icon;
    for (int side : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        QSvgRenderer(Drawing(u"quillmere"_s)).render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace qlm
