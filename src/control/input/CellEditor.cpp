#include "control/input/CellEditor.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "control/commands/ResultWatch.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/GridTexts.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

namespace {

bool isTextType(ADODB::DataTypeEnum type)
{
    switch (type) {
    case ADODB::adBSTR:
    case ADODB::adChar:
    case ADODB::adWChar:
    case ADODB::adVarChar:
    case ADODB::adLongVarChar:
    case ADODB::adVarWChar:
    case ADODB::adLongVarWChar:
        return true;
    default:
        return false;
    }
}

bool isWritable(const ADODB::Field &field)
{
    return (field.Attributes() & (ADODB::adFldUpdatable | ADODB::adFldUnknownUpdatable)) != 0;
}

} // namespace

CellEditor::CellEditor(ControlHub &hub) : m_hub(hub)
{
    // As a part of the list's surface it scrolls along and is cut off at the list's edge.
    hub.parts.txtEdit->setParent(hub.parts.MSFlexGrid1->viewport());
    hub.parts.txtEdit->hide();
    hub.parts.txtEdit->installEventFilter(this);
}

bool CellEditor::isOpen() const
{
    return !m_hub.parts.txtEdit->isHidden();
}

bool CellEditor::begin(int gridCol, const std::optional<QString> &typed)
{
    if (gridCol < 1 || !m_hub.result.isOpen() || !take())
        return false;
    QLineEdit &edit = *m_hub.parts.txtEdit;
    try {
        const ADODB::Field &field = m_hub.result.recordset()->Fields().Item(gridCol - 1);
        const QString value = ADODB::ValueText(field.Value());
        const bool isReadOnly = !isWritable(field);
        m_field = gridCol - 1;
        m_row = m_hub.parts.MSFlexGrid1->Row();
        edit.setText(isReadOnly ? value : typed.value_or(value));
        edit.setReadOnly(isReadOnly);
        edit.setToolTip(isReadOnly ? GridTexts::ReadOnlyCell : QString());
        edit.setAccessibleName(field.Name());
    } catch (const ADODB::Error &) {
        return false; // there is no current record
    }
    place();
    edit.show();
    edit.setFocus();
    if (!typed)
        edit.selectAll();
    if (edit.isReadOnly())
        QToolTip::showText(edit.mapToGlobal(QPoint(0, edit.height())), GridTexts::ReadOnlyCell, &edit);
    return true;
}

void CellEditor::place()
{
    const MSFlexGrid &list = *m_hub.parts.MSFlexGrid1;
    m_hub.parts.txtEdit->setGeometry(list.visualRect(list.model()->index(m_row - 1, 1)));
}

bool CellEditor::take(bool isQuiet)
{
    if (!isOpen() || m_isTaking)
        return true;
    if (!m_hub.result.isOpen()) {
        close(); // the record went away with its result
        return true;
    }
    const QPointer<CellEditor> alive(this);
    m_isTaking = true;
    const bool isTaken = tryToTake(isQuiet);
    if (alive)
        m_isTaking = false;
    return isTaken;
}

bool CellEditor::tryToTake(bool isQuiet)
{
    const ResultWatch watch(m_hub);
    try {
        putValue(m_hub.parts.txtEdit->text());
        if (!watch.isUntouched())
            return false;
        close();
        return true;
    } catch (const ADODB::Error &error) {
        if (isQuiet || !watch.isUntouched())
            return false;
        Messages::tell(&m_hub.q, GridTexts::ValueRefusedPrefix + error.Description());
        if (watch.isUntouched())
            m_hub.parts.txtEdit->setFocus();
        return false;
    }
}

// An unchanged text is not written: it may be shorter than the value (fifteen digits of a number). An empty
// one means no value, except in a text field that had one.
void CellEditor::putValue(const QString &text)
{
    const ResultWatch watch(m_hub);
    ADODB::Field &field = m_hub.result.recordset()->Fields().Item(m_field);
    const QVariant before = field.Value();
    if (m_hub.parts.txtEdit->isReadOnly() || text == ADODB::ValueText(before))
        return;
    field.PutValue(text.isEmpty() && !isTextType(field.Type()) ? QVariant() : QVariant(text));
    if (watch.isUntouched())
        m_hub.parts.MSFlexGrid1->PutTextMatrix(m_row, 1, ADODB::ValueText(field.Value()));
}

void CellEditor::close()
{
    if (!isOpen())
        return;
    const bool hadFocus = m_hub.parts.txtEdit->hasFocus();
    m_hub.parts.txtEdit->hide();
    if (hadFocus)
        m_hub.parts.MSFlexGrid1->setFocus();
}

bool CellEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            take();
            return true;
        case Qt::Key_Escape:
            close();
            return true;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace KOVAVSFDataGridLib
