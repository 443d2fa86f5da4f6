#pragma once

#include <QtCore/QObject>

namespace KOVAVSFDataGridLib {

class Session;
class VSFlexGrid;

// If all records are on one page, Ctrl+Home and Ctrl+End don't go to another page but to the first and the
// last record, as in other tables.
class EndKeys final : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object; the grid is its parent's.
    EndKeys(VSFlexGrid &grid, Session &session, QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Session &m_session;
};

} // namespace KOVAVSFDataGridLib
