#include "control/input/CellEditor.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridTexts.h"
#include "grid/FlexGrid.h"
#include "session/Session.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <limits>

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

CellEditor::CellEditor(Session &session, GridParts &parts) : m_session(session), m_parts(parts)
{
    // As a part of the list's surface it scrolls along and is cut off at the list's edge.
    m_parts.txtEdit->setParent(m_parts.MSFlexGrid1->viewport());
    m_parts.txtEdit->hide();
    // A line edit cuts what is longer, and would store it cut.
    m_parts.txtEdit->setMaxLength(std::numeric_limits<int>::max());
    m_parts.txtEdit->installEventFilter(this);
}

bool CellEditor::isOpen() const
{
    return !m_parts.txtEdit->isHidden();
}

bool CellEditor::begin(int gridCol, const std::optional<QString> &typed)
{
    if (gridCol < 1 || !m_session.result().isOpen() || !m_session.commitEdit())
        return false;
    QLineEdit &edit = *m_parts.txtEdit;
    try {
        const ADODB::Field &field = m_session.result().recordset()->Fields().Item(gridCol - 1);
        const QString value = ADODB::ValueText(field.Value());
        const bool isReadOnly = m_session.isReadOnly() || !isWritable(field);
        m_field = gridCol - 1;
        m_row = m_parts.MSFlexGrid1->Row();
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
    const MSFlexGrid &list = *m_parts.MSFlexGrid1;
    m_parts.txtEdit->setGeometry(list.visualRect(list.model()->index(m_row - 1, 1)));
}

std::optional<QString> CellEditor::commit()
{
    if (!isOpen() || m_isCommitting)
        return {};
    if (!m_session.result().isOpen()) {
        close(); // the record went away with its result
        return {};
    }
    try {
        // It ends last, because the host may then delete this.
        const ADODB::Notifications::Hold hold(m_session.notifications());
        const QScopedValueRollback<bool> committing(m_isCommitting, true);
        putValue(m_parts.txtEdit->text());
        close();
        return {};
    } catch (const ADODB::Error &error) {
        return GridTexts::ValueRefusedPrefix + error.Description();
    }
}

// An unchanged text is not written: it may be shorter than the value (fifteen digits of a number). An empty
// one means no value, except in a text field that had one.
void CellEditor::putValue(const QString &text)
{
    ADODB::Field &field = m_session.result().recordset()->Fields().Item(m_field);
    const QVariant before = field.Value();
    if (m_parts.txtEdit->isReadOnly() || text == ADODB::ValueText(before))
        return;
    field.PutValue(text.isEmpty() && !isTextType(field.Type()) ? QVariant() : QVariant(text));
    m_parts.MSFlexGrid1->PutTextMatrix(m_row, 1, ADODB::ValueText(field.Value()));
}

void CellEditor::close()
{
    if (!isOpen())
        return;
    const bool hadFocus = m_parts.txtEdit->hasFocus();
    m_parts.txtEdit->hide();
    if (hadFocus)
        m_parts.MSFlexGrid1->setFocus();
}

bool CellEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            m_session.commitEdit();
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
