#include "grid/painting/HeadingPainter.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPalette>

namespace KOVAVSFDataGridLib {

namespace {

// The size of all marks depends on the font.
int unit(const QFontMetrics &metrics)
{
    return std::max(metrics.ascent() * 2 / 3, 6);
}

int gap(const QFontMetrics &metrics)
{
    return std::max(metrics.ascent() / 5, 2);
}

void paintFunnel(QPainter &painter, const QRectF &box)
{
    QPainterPath funnel(box.topLeft());
    funnel.lineTo(box.topRight());
    funnel.lineTo(box.center() + QPointF(box.width() * 0.12, 0));
    funnel.lineTo(box.center().x() + box.width() * 0.12, box.bottom() - box.height() * 0.12);
    funnel.lineTo(box.center().x() - box.width() * 0.12, box.bottom());
    funnel.lineTo(box.center() - QPointF(box.width() * 0.12, 0));
    funnel.closeSubpath();
    painter.drawPath(funnel);
}

// With a shaft, so that it doesn't look like a menu arrow.
void paintSortArrow(QPainter &painter, const QRectF &box, bool isDescending)
{
    const qreal middle = box.center().x();
    const qreal tip = isDescending ? box.bottom() : box.top();
    const qreal back = isDescending ? box.bottom() - box.height() * 0.5 : box.top() + box.height() * 0.5;
    painter.drawPolygon(QPolygonF(
        {{middle, tip}, {box.left() + box.width() * 0.1, back}, {box.right() - box.width() * 0.1, back}}));
    const qreal half = std::max(box.width() * 0.1, 0.75);
    painter.drawRect(QRectF(QPointF(middle - half, std::min(back, isDescending ? box.top() : back)),
                            QPointF(middle + half, std::max(back, isDescending ? back : box.bottom()))));
}

} // namespace

int headingMarkWidth(const HeadingMark &mark, const QFontMetrics &metrics)
{
    int width = 0;
    if (mark.sortPlace > 0)
        width += gap(metrics) + unit(metrics) + metrics.horizontalAdvance(QString::number(mark.sortPlace));
    if (mark.isFiltered)
        width += gap(metrics) + unit(metrics);
    return width;
}

void paintHeadingMark(QPainter &painter, const QRect &room, const HeadingMark &mark, const QPalette &palette,
                      const QFontMetrics &metrics)
{
    const int size = unit(metrics);
    int x = room.left();
    const auto box = [&] {
        x += gap(metrics);
        const QRectF square(x, room.center().y() - size / 2.0, size, size);
        x += size;
        return square;
    };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::ButtonText));
    if (mark.isFiltered)
        paintFunnel(painter, box());
    if (mark.sortPlace > 0) {
        paintSortArrow(painter, box(), mark.isDescending);
        painter.setPen(palette.color(QPalette::ButtonText));
        painter.drawText(QRect(x, room.top(), room.right() - x + 1, room.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, QString::number(mark.sortPlace));
    }
    painter.restore();
}

void paintMenuArrow(QPainter &painter, const QRect &room, const QPalette &palette, bool isPressed)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QColor panel = palette.color(QPalette::ButtonText);
    panel.setAlphaF(isPressed ? 0.25F : 0.1F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(panel);
    const QRectF box = QRectF(room).adjusted(1, 2, -1, -2);
    painter.drawRoundedRect(box, 2, 2);
    const qreal width = box.width() * 0.5;
    const QPointF middle = box.center();
    painter.setBrush(palette.color(QPalette::ButtonText));
    painter.drawPolygon(QPolygonF({{middle.x() - width / 2, middle.y() - width / 4},
                                   {middle.x() + width / 2, middle.y() - width / 4},
                                   {middle.x(), middle.y() + width / 4}}));
    painter.restore();
}

} // namespace KOVAVSFDataGridLib
