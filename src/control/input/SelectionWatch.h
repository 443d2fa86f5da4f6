#pragma once

#include "session/records/SelectionSummary.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace KOVAVSFDataGridLib {

class GridParts;
class Session;

// Shows a summary of the selected cells in the line below the grid. A large selection is processed in steps
// between events, and abandoned when the selection changes.
class SelectionWatch : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    SelectionWatch(Session &session, GridParts &parts);

private:
    void begin();
    void continueSumming();
    bool prepare();
    void showSummary();
    void clear();

    Session &m_session;
    GridParts &m_parts;
    QTimer m_timer;
    std::weak_ptr<ADODB::Recordset> m_recordset; // being summarized
    std::unique_ptr<SelectionSummary> m_summary;
    int m_rows = 0;
    QString m_column; // the only summarized column; empty for all
};

} // namespace KOVAVSFDataGridLib
