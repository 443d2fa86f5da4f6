#include "filter/rows/FilterGrip.h"

#include "filter/FilterTexts.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionFocusRect>

namespace KOVAVSFDataGridLib {

FilterGrip::FilterGrip(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
    setToolTip(FilterTexts::Grip);
    setAccessibleDescription(FilterTexts::Grip);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FilterGrip::sizeHint() const
{
    return {fontMetrics().height(), fontMetrics().height() + 4};
}

void FilterGrip::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        Q_EMIT stepped(event->key() == Qt::Key_Up ? -1 : 1);
    else if (event->key() == Qt::Key_Escape && m_isDragging) {
        m_isDragging = false;
        Q_EMIT cancelled();
    } else
        event->ignore(); // unlike a button: there is nothing to press
}

void FilterGrip::mousePressEvent(QMouseEvent *event)
{
    m_isDragging = event->button() == Qt::LeftButton;
}

void FilterGrip::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging)
        Q_EMIT dragged(event->globalPosition().toPoint());
}

void FilterGrip::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_isDragging || event->button() != Qt::LeftButton)
        return;
    m_isDragging = false;
    // A drag that stays on the grip moves nothing.
    if (rect().contains(event->position().toPoint()))
        Q_EMIT cancelled();
    else
        Q_EMIT dropped(event->globalPosition().toPoint());
}

void FilterGrip::focusInEvent(QFocusEvent *event)
{
    QAbstractButton::focusInEvent(event);
    update();
}

void FilterGrip::focusOutEvent(QFocusEvent *event)
{
    QAbstractButton::focusOutEvent(event);
    update();
}

// Two columns of dots.
void FilterGrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const double step = sizeHint().height() / 5.0;
    const double radius = step / 4;
    for (const int column : {-1, 1}) {
        for (const int row : {-1, 0, 1})
            painter.drawEllipse(QPointF(width() / 2.0 + column * step / 2, height() / 2.0 + row * step),
                                radius, radius);
    }
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace KOVAVSFDataGridLib
