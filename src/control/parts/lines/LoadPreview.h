#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QPoint>
#include <QtCore/QPointer>

#include <memory>
#include <optional>

class QAbstractScrollArea;

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class VSFlexGrid;

// The first records of a result that is still being read, in a separate grid over the one that shows the
// previous result. That one is not changed, so nothing needs to be restored if reading fails, and nobody is
// notified of records that may never be shown.
//
// It is painted immediately, even if the application's events are not dispatched. Not shown in a short load.
class LoadPreview
{
public:
    // `grid` may be destroyed before this object. Nothing is shown while it is hidden.
    explicit LoadPreview(VSFlexGrid &grid);
    ~LoadPreview();
    Q_DISABLE_COPY_MOVE(LoadPreview)

    // Must be called every few milliseconds once there are records.
    void update(const ADODB::Recordset &opening);
    // Null until it is shown.
    QAbstractScrollArea *view() const;
    // The positions of its scroll bars, if the user has moved any of them.
    std::optional<QPoint> scrolledTo() const;

private:
    void show(const VSFlexGrid &grid, const std::shared_ptr<const ADODB::Recordset> &records);

    const QPointer<VSFlexGrid> m_grid;
    QPointer<VSFlexGrid> m_view; // a sibling of the grid
    QPoint m_placeAtFirst;
    QElapsedTimer m_sinceFirst; // records
    QElapsedTimer m_sinceShown; // the latest of them
};

} // namespace KOVAVSFDataGridLib
