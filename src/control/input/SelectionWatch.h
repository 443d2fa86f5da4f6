#pragma once

#include "session/records/SelectionSummary.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace KOVAVSFDataGridLib {

class GridParts;
class Session;

// Tells in the line below the grid what the selected cells come to. A large selection is worked out in steps
// between the events, and given up when another one comes.
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
    std::weak_ptr<ADODB::Recordset> m_recordset; // of the summary
    std::unique_ptr<SelectionSummary> m_summary;
    int m_rows = 0;
    QString m_column; // the only one that is summed up; empty for all
};

} // namespace KOVAVSFDataGridLib
