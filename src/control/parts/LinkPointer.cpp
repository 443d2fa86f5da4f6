#include "control/parts/LinkPointer.h"

#include "grid/FlexGrid.h"
#include "session/records/LinkText.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

LinkPointer::LinkPointer(VSFlexGrid &grid) : m_grid(grid), m_line(new QWidget(grid.viewport()))
{
    m_line->setObjectName(u"LinkLine"_s);
    m_line->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_line->setAutoFillBackground(true);
    m_line->hide();
    grid.installEventFilter(this);
    grid.viewport()->installEventFilter(this);
    const auto hide = [this] { underline({}); };
    connect(grid.verticalScrollBar(), &QScrollBar::valueChanged, this, hide);
    connect(grid.horizontalScrollBar(), &QScrollBar::valueChanged, this, hide);
    connect(grid.model(), &QAbstractItemModel::modelReset, this, hide);
}

bool LinkPointer::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        m_mouse = static_cast<QMouseEvent *>(event)->position().toPoint();
        point(m_mouse, static_cast<QMouseEvent *>(event)->modifiers());
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return watched == m_grid.viewport() && press(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return watched == m_grid.viewport() && release(*static_cast<QMouseEvent *>(event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // The event arrives before the key is set as a modifier.
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Control)
            point(m_mouse, event->type() == QEvent::KeyPress ? Qt::ControlModifier : Qt::NoModifier);
        break;
    case QEvent::Leave:
    case QEvent::FocusOut:
        underline({});
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool LinkPointer::press(const QMouseEvent &event)
{
    m_pressed = {};
    if (event.button() == Qt::LeftButton && event.modifiers() == Qt::ControlModifier)
        m_pressed = linkAt(event.position().toPoint());
    return m_pressed.isValid();
}

bool LinkPointer::release(const QMouseEvent &event)
{
    const QUrl link = std::exchange(m_pressed, {});
    if (!link.isValid())
        return false;
    underline({});
    if (linkAt(event.position().toPoint()) == link)
        Q_EMIT clicked(link);
    return true;
}

QUrl LinkPointer::linkAt(const QPoint &position) const
{
    const QModelIndex cell = m_grid.indexAt(position);
    return cell.isValid() ? linkIn(m_grid.TextMatrix(cell.row() + 1, cell.column() + 1)) : QUrl();
}

void LinkPointer::point(const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    const bool isLink = modifiers == Qt::ControlModifier && linkAt(position).isValid();
    underline(isLink ? m_grid.indexAt(position) : QModelIndex());
}

void LinkPointer::underline(const QModelIndex &cell)
{
    if (!cell.isValid()) {
        if (!m_line->isHidden())
            m_grid.viewport()->unsetCursor();
        m_line->hide();
        return;
    }
    const QString text = m_grid.TextMatrix(cell.row() + 1, cell.column() + 1);
    const QRect room = m_grid.visualRect(cell);
    const int margin = m_grid.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &m_grid) + 1;
    const int width = std::min(m_grid.fontMetrics().horizontalAdvance(text), room.width() - 2 * margin);
    const int thickness = std::max(1, m_grid.fontMetrics().lineWidth());
    const int y = room.center().y() + m_grid.fontMetrics().height() / 2;
    QPalette colours = m_line->palette();
    const bool isSelected = m_grid.selectionModel()->isSelected(cell);
    colours.setColor(QPalette::Window,
                     m_grid.palette().color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    m_line->setPalette(colours);
    const int left = m_grid.isRightToLeft() ? room.right() - margin - width + 1 : room.left() + margin;
    m_line->setGeometry(left, std::min(y, room.bottom() - thickness), width, thickness);
    m_line->show();
    m_grid.viewport()->setCursor(Qt::PointingHandCursor);
}

} // namespace KOVAVSFDataGridLib
