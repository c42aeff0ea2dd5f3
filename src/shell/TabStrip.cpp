// SPDX-License-Identifier: MIT
#include "shell/TabStrip.h"

#include "core/Tabs.h"
#include "shell/FormParts.h"
#include "shell/PictureIcon.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int RowHeight = 44;
constexpr int PictureSide = 22;
constexpr int MarkWidth = 3;

class TabDelegate : public QStyledItemDelegate {
public:
    explicit TabDelegate(TabStrip& strip) : QStyledItemDelegate(&strip), m_strip(strip) {
        for (const Tab& tab : Tabs())
            m_pictures.push_back(PictureIcon(QString::fromLatin1(tab.image)));
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return {0, RowHeight}; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isChosen = option.state & QStyle::State_Selected;
        const QPalette& palette = option.palette;
        if (isChosen || option.state & QStyle::State_MouseOver)
            painter->fillRect(option.rect, palette.color(isChosen ? QPalette::Base : QPalette::Midlight));
        QRect mark = option.rect;
        mark.setWidth(MarkWidth);
        if (isChosen)
            painter->fillRect(mark, palette.color(QPalette::Highlight));
        QRect picture(QPoint(), QSize(PictureSide, PictureSide));
        picture.moveCenter({option.rect.left() + TabStrip::NarrowWidth / 2, option.rect.center().y()});
        m_pictures[static_cast<size_t>(index.row())].paint(painter, picture, Qt::AlignCenter,
                                                           isChosen ? QIcon::Selected : QIcon::Normal);
        if (m_strip.IsWide())
            DrawCaption(*painter, option, index, isChosen);
        if (isChosen && option.state & QStyle::State_HasFocus)
            DrawFocus(*painter, option);
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip || !index.isValid() || m_strip.IsWide())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), Caption(index), view);
        return true;
    }

private:
    // Blanks around a caption belong to its name and are nothing to see.
    static QString Caption(const QModelIndex& index) { return index.data().toString().trimmed(); }

    static void DrawCaption(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                            bool isChosen) {
        const QRect room = option.rect.adjusted(TabStrip::NarrowWidth, 0, -6, 0);
        QFont font = option.font;
        font.setWeight(isChosen ? QFont::DemiBold : QFont::Normal);
        // A long caption is rather whole than heavy.
        if (QFontMetrics(font).horizontalAdvance(Caption(index)) > room.width())
            font.setWeight(QFont::Normal);
        painter.setFont(font);
        painter.setPen(option.palette.color(QPalette::WindowText));
        painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                         QFontMetrics(font).elidedText(Caption(index), Qt::ElideRight, room.width()));
    }

    static void DrawFocus(QPainter& painter, const QStyleOptionViewItem& option) {
        painter.setPen(QPen(option.palette.color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(option.rect.adjusted(MarkWidth + 2, 3, -4, -4));
    }

    TabStrip& m_strip;
    std::vector<QIcon> m_pictures;
};

} // namespace

TabStrip::TabStrip() {
    Named(this, "TabStrip1"_L1);
    setItemDelegate(new TabDelegate(*this));
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMinimumWidth(NarrowWidth);
}

void TabStrip::SetWide(bool wide) {
    m_isWide = wide;
    viewport()->update();
}

} // namespace qlm
