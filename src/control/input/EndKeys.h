#pragma once

#include <QtCore/QObject>

namespace KOVAVSFDataGridLib {

class Session;
class VSFlexGrid;

// While all records are on one page there is no page to go to: Ctrl+Home and Ctrl+End go to the first and the
// last record instead, as in other tables.
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
