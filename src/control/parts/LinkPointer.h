#pragma once

#include <QtCore/QObject>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPoint>
#include <QtCore/QUrl>

class QEvent;
class QMouseEvent;
class QWidget;

namespace KOVAVSFDataGridLib {

class VSFlexGrid;

// While Ctrl is held, the cell under the mouse is a link if its text is an address: it is underlined, and a
// click opens the link instead of selecting the cell.
class LinkPointer final : public QObject
{
    Q_OBJECT

public:
    // The grid must outlive this object, because its signals would still reach it.
    explicit LinkPointer(VSFlexGrid &grid);

Q_SIGNALS:
    void clicked(const QUrl &link);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool press(const QMouseEvent &event);
    bool release(const QMouseEvent &event);
    void point(const QPoint &position, Qt::KeyboardModifiers modifiers);
    void underline(const QModelIndex &cell);
    QUrl linkAt(const QPoint &position) const;

    VSFlexGrid &m_grid;
    QWidget *m_line;
    QPoint m_mouse;
    QUrl m_pressed; // where the mouse button was pressed, until it is released
};

} // namespace KOVAVSFDataGridLib
