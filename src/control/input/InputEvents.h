#pragma once

#include <QtCore/QObject>

namespace KOVAVSFDataGridLib {

// The events of the control for mouse and key input, with the control's names and arguments; the control
// forwards them to its host. A handler may change arguments passed by reference, and may delete the control
// together with this object.
class InputEvents : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void DataMouseDown(qint16 &Button, qint16 &Shift, float &x, float &y);
    void DataMouseUp(qint16 &Button, qint16 &Shift, float &x, float &y);
    void DataMouseMove(qint16 &Button, qint16 &Shift, float &x, float &y);
    void HeadClick(qint16 ColIndex);
    void DataClick();
    void DataDblClick();
    void DataKeyDown(qint16 &KeyCode, qint16 &Shift);
    void MouseUp(qint16 &Button, qint16 &Shift, float &x, float &y);
    void DataDBLClickOneCell(qint32 Col, qint32 Row);
    void DataDBLClickOneRow(qint32 Row);
};

} // namespace KOVAVSFDataGridLib
