#pragma once

#include "session/SessionWindow.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <functional>

class QWidget;

namespace KOVAVSFDataGridLib {

class Session;
class ValueDialog;
class ValuePane;
class VSFlexGrid;

// Shows values of a grid whole: in a pane of the host's, or in a window where there is none. While they can
// be seen, both follow the cell that is current.
class ValueViewer final : public QObject
{
    Q_OBJECT

public:
    // It belongs to the grid.
    explicit ValueViewer(VSFlexGrid &grid);
    ~ValueViewer() override;

    // That of a control; null where there is none.
    static ValueViewer *of(const QWidget &control);

    // Where the values come from; must outlive this object.
    void setSession(Session &session) { m_session = &session; }
    // `bring` makes the pane visible. The pane may go at any time.
    void setPane(ValuePane &pane, std::function<void()> bring);

    void show(const CellValue &value);
    // Soon, once for all that an event changes.
    void follow() { m_later.start(); }

private:
    ValueDialog *window() const;
    void followNow();

    VSFlexGrid &m_grid;
    Session *m_session = nullptr;
    QPointer<ValuePane> m_pane;
    std::function<void()> m_bring;
    QTimer m_later;
};

} // namespace KOVAVSFDataGridLib
