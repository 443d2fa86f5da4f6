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

// Shows complete values of a grid: in the host's pane or, if there is none, in a window. While visible, both
// follow the current cell.
class ValueViewer final : public QObject
{
    Q_OBJECT

public:
    // Owned by the grid.
    explicit ValueViewer(VSFlexGrid &grid);
    ~ValueViewer() override;

    // The one of a control; null if there is none.
    static ValueViewer *of(const QWidget &control);

    // The source of the values; must outlive this object.
    void setSession(Session &session) { m_session = &session; }
    // `bring` makes the pane visible. The pane may be destroyed at any time.
    void setPane(ValuePane &pane, std::function<void()> bring);

    void show(const CellValue &value);
    // Delayed, so that all changes of an event cause only one update.
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
