#pragma once

#include "control/commands/ControlHub.h"
#include "control/input/CellEditor.h"

#include <QtCore/QObject>

#include <vector>

class QMouseEvent;

namespace KOVAVSFDataGridLib {

// The current record as a list of field names and values in MSFlexGrid1, in place of the grid. Binary fields
// are left out. The values can be edited where the result can be written.
class SingleRecordView : public QObject
{
    Q_OBJECT

public:
    explicit SingleRecordView(ControlHub &hub);

    void ShowSingleRecord();
    void ShowAllRecords();
    // The same, but nothing happens where many records are shown already.
    void leave();
    // Lists the open result's current record; a result without one gives fields without values.
    void FillSingleRecordView();
    void refillIfShown();
    // The main grid's column of the field that is current in the list; 0 when none is.
    int currentGridCol() const;
    CellEditor &editor() { return m_editor; }

Q_SIGNALS:
    // The right button came up on the list, or its menu key was pressed. `position` is on the screen.
    void menuWanted(const QPoint &position);
    // The user gave up what was written into the record.
    void cancelWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isDealtWith(QObject *watched, QEvent *event);
    bool keyPressed(const QKeyEvent &event);
    void doubleClicked(const QWidget &source, const QMouseEvent &event);
    void fitNameColumn();
    QString valueText(int field) const;

    ControlHub &m_hub;
    std::vector<int> m_fields; // the 0-based field of each row below the heading
    CellEditor m_editor;
};

} // namespace KOVAVSFDataGridLib
