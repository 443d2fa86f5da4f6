#include "control/input/CellEditor.h"

#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"
#include "control/input/record/FieldRules.h"
#include "control/input/record/KnownValues.h"
#include "control/input/record/LinesEdit.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridTexts.h"
#include "filter/ValueEdit.h"
#include "filter/conditions/FilterValue.h"
#include "grid/FlexGrid.h"
#include "language/GroupedNumber.h"
#include "language/Language.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/editing/EditedRecord.h"

#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <limits>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int linesShown = 6;
constexpr qsizetype longestEdited = 10'000'000; // a text box takes a second or more for longer texts
constexpr qsizetype longestLine = 60;           // longer texts get several lines even without line breaks

bool isLongText(ADODB::DataTypeEnum type)
{
    return type == ADODB::adLongVarChar || type == ADODB::adLongVarWChar;
}

// Converts the typed text to a value of the field, by the rules of the filter. An empty text means Null,
// except in a text field.
QVariant valueOf(const ADODB::Field &field, const QString &text)
{
    if (text.isEmpty() && !ADODB::FieldValue::isText(field.Type()))
        return {};
    return plainValue(fieldClassOf(field.Type()), text, QDate::currentDate()).value_or(text);
}

} // namespace

CellEditor::CellEditor(Session &session, GridParts &parts)
    : m_session(session), m_parts(parts), m_lines(*new LinesEdit(parts.MSFlexGrid1->viewport()))
{
    // As a child of the list's viewport, it scrolls with the list and is clipped at its edge.
    m_parts.txtEdit->setParent(m_parts.MSFlexGrid1->viewport());
    m_parts.txtEdit->hide();
    // A line edit truncates longer texts, and the truncated text would be saved.
    m_parts.txtEdit->setMaxLength(std::numeric_limits<int>::max());
    m_parts.txtEdit->setValueReader([this] {
        const QString typed = typedText();
        return knownValues(m_session, m_field, typed == m_before ? QString() : typed);
    });
    Language::keepTranslated(*m_parts.txtEdit, [this] { m_parts.txtEdit->writeTexts(); });
    m_parts.txtEdit->installEventFilter(this);
    connect(m_parts.txtEdit, &QLineEdit::textChanged, this, &CellEditor::noteTyped);
    m_lines.setObjectName(u"txtLines"_s);
    Language::keepTranslated(m_lines, [this] { m_lines.setAccessibleName(GridTexts::FieldValueHeading); });
    m_lines.setTabChangesFocus(true);
    m_lines.hide();
    m_lines.installEventFilter(this);
    connect(&m_lines, &QPlainTextEdit::textChanged, this, &CellEditor::noteTyped);
}

CellEditor::~CellEditor()
{
    observe({});
}

void CellEditor::observe(const std::shared_ptr<ADODB::Recordset> &recordset)
{
    if (const auto before = m_recordset.lock())
        before->RemoveObserver(this);
    m_recordset = recordset;
    if (recordset)
        recordset->AddObserver(this);
}

QWidget &CellEditor::widget() const
{
    if (m_hasLines)
        return m_lines;
    return *m_parts.txtEdit;
}

bool CellEditor::isOpen() const
{
    return !widget().isHidden();
}

bool CellEditor::isChanged() const
{
    return isOpen() && !m_isReadOnly && typedText() != m_before;
}

// Shows the user immediately whether there is something to save.
void CellEditor::noteTyped()
{
    if (isChanged() == m_isShownChanged)
        return;
    m_isShownChanged = !m_isShownChanged;
    m_session.window().refreshStatus();
}

bool CellEditor::hasFocus() const
{
    return widget().hasFocus();
}

void CellEditor::setFocus()
{
    widget().setFocus();
}

bool CellEditor::canWrite(int gridCol) const
{
    return gridCol >= 1 && m_session.result().isOpen() && !m_session.record().isReadOnly() &&
           isWritable(m_session.result().recordset()->Fields().Item(gridCol - 1));
}

bool CellEditor::begin(int gridCol, const std::optional<QString> &typed)
{
    if (gridCol < 1 || !m_session.result().isOpen() || !m_session.record().commitEdit())
        return false;
    try {
        const ADODB::Recordset &recordset = *m_session.result().recordset();
        const ADODB::Field &field = recordset.Fields().Item(gridCol - 1);
        if (refusesLong(field))
            return false;
        m_before = shownText(recordset, gridCol - 1);
        m_isReadOnly = !canWrite(gridCol);
        m_field = gridCol - 1;
        m_row = m_parts.MSFlexGrid1->Row();
        open(field, m_isReadOnly ? m_before : typed.value_or(m_before), m_isReadOnly);
    } catch (const ADODB::Error &) {
        return false; // there is no current record
    }
    QWidget &edit = widget();
    place();
    observe(m_session.result().recordset());
    edit.show();
    edit.setFocus();
    noteTyped();
    if (m_isReadOnly)
        QToolTip::showText(edit.mapToGlobal(QPoint(0, edit.height())), GridTexts::ReadOnlyCell, &edit);
    else if (!typed && !m_hasLines)
        m_parts.txtEdit->selectAll();
    return true;
}

// Tells the user if the value is too long for a text box, where it would crash the process.
bool CellEditor::refusesLong(const ADODB::Field &field) const
{
    const QVariant value = field.Value();
    if (value.typeId() != QMetaType::QString || value.toString().size() <= longestEdited)
        return false;
    QWidget &list = *m_parts.MSFlexGrid1->viewport();
    QToolTip::showText(list.mapToGlobal(list.rect().center()),
                       GridTexts::TooLongCell.arg(grouped(longestEdited)), &list);
    return true;
}

void CellEditor::open(const ADODB::Field &field, const QString &text, bool isReadOnly)
{
    m_isText = ADODB::FieldValue::isText(field.Type());
    m_hasLines =
        m_isText && (m_before.contains(u'\n') || (isLongText(field.Type()) && m_before.size() > longestLine));
    if (m_hasLines) {
        m_lines.setText(m_before);
        if (text != m_before) {
            m_lines.selectAll();
            m_lines.insertPlainText(text);
        }
        m_lines.moveCursor(QTextCursor::End);
        m_lines.setReadOnly(isReadOnly);
    } else {
        m_parts.txtEdit->setKind(isReadOnly ? FieldClass::Other : fieldClassOf(field.Type()), false);
        m_parts.txtEdit->setText(text);
        m_parts.txtEdit->setReadOnly(isReadOnly);
        m_parts.txtEdit->setCursorPosition(static_cast<int>(text.size()));
    }
    widget().setToolTip(isReadOnly ? GridTexts::ReadOnlyCell : m_hasLines ? GridTexts::LinesHint : QString());
    widget().setAccessibleName(field.Name());
}

void CellEditor::breakLine()
{
    if (m_isReadOnly || !m_isText)
        return;
    if (!m_hasLines) {
        const QLineEdit &line = *m_parts.txtEdit;
        m_lines.setText(line.text());
        m_lines.setReadOnly(false);
        m_lines.setToolTip(GridTexts::LinesHint);
        m_lines.setAccessibleName(line.accessibleName());
        QTextCursor cursor = m_lines.textCursor();
        cursor.setPosition(line.cursorPosition());
        m_lines.setTextCursor(cursor);
        m_hasLines = true;
        place();
        m_lines.show();
        m_lines.setFocus();
        m_parts.txtEdit->hide();
    }
    m_lines.insertPlainText(u"\n"_s);
}

// Several lines cover the rows below, or those above if the list ends too soon.
void CellEditor::place()
{
    const MSFlexGrid &list = *m_parts.MSFlexGrid1;
    QRect cell = list.visualRect(list.model()->index(m_row - 1, 1));
    if (m_hasLines) {
        const int whole = list.viewport()->height();
        const int wanted = m_lines.fontMetrics().lineSpacing() * linesShown + 2 * m_lines.frameWidth() +
                           2 * static_cast<int>(m_lines.document()->documentMargin());
        cell.setHeight(std::max(cell.height(), std::min(wanted, whole)));
        cell.moveTop(std::max(0, std::min(cell.top(), whole - cell.height())));
    }
    widget().setGeometry(cell);
}

QString CellEditor::typedText() const
{
    return m_hasLines ? m_lines.text() : m_parts.txtEdit->text();
}

std::optional<QString> CellEditor::commit()
{
    return commit(Written::Typed);
}

std::optional<QString> CellEditor::commit(Written what)
{
    if (!isOpen() || m_isCommitting)
        return {};
    if (!m_session.result().isOpen()) {
        close(); // the record was closed with its result
        return {};
    }
    try {
        writeAndClose(what);
        return {};
    } catch (const ADODB::Error &error) {
        return GridTexts::ValueRefusedPrefix + error.Description();
    }
}

void CellEditor::writeAndClose(Written what)
{
    // Destroyed last, because the host may then delete this.
    const ADODB::Notifications::Hold hold(m_session.notifications());
    const QScopedValueRollback<bool> committing(m_isCommitting, true);
    write(what);
    close();
}

// By a host; otherwise the text would have been committed before.
void CellEditor::willLeaveRecord()
{
    if (isOpen() && !m_isCommitting && m_recordset.lock() == m_session.result().recordset())
        writeAndClose(Written::Typed);
}

// An unchanged text is not written: it may be less precise than the value (15 digits of a number). The
// value's own text is the same, if it is shown in another form.
void CellEditor::write(Written what)
{
    ADODB::Recordset &recordset = *m_session.result().recordset();
    ADODB::Field &field = recordset.Fields().Item(m_field);
    const QString text = typedText();
    const bool isUnchanged = what == Written::Null ? !field.Value().isValid()
                                                   : text == shownText(recordset, m_field) ||
                                                         text == ADODB::ValueText(field.Value());
    if (m_isReadOnly || isUnchanged)
        return;
    const QVariant value = what == Written::Null ? QVariant() : valueOf(field, text);
    if (!value.isValid() && isRequired(field))
        throw ADODB::Error(ADODB::adErrDataConversion, ADODB::Texts::valueNeeded().arg(field.Name()));
    field.PutValue(value);
    m_parts.MSFlexGrid1->PutTextMatrix(m_row, 1, ADODB::ValueText(field.Value()));
}

void CellEditor::close()
{
    if (!isOpen())
        return;
    const bool hadFocus = hasFocus();
    observe({});
    widget().hide();
    if (hadFocus)
        m_parts.MSFlexGrid1->setFocus();
    noteTyped();
}

void CellEditor::clear()
{
    const auto session = m_session.shared_from_this(); // the host may delete the control when it is notified
    const QPointer<CellEditor> alive(this);
    const std::optional<QString> refused = commit(Written::Null);
    if (!refused)
        return;
    session->questions().show(*refused);
    if (alive && isOpen())
        setFocus();
}

bool CellEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    const bool isControl = key.modifiers().testFlag(Qt::ControlModifier);
    const bool isNull = isControl && key.key() == Qt::Key_0;
    const bool isSave = isControl && key.key() == Qt::Key_S;
    if (event->type() == QEvent::ShortcutOverride) {
        if (isNull || isSave)
            event->accept(); // while typing, takes precedence over commands with these keys
        return false;
    }
    if (isNull) {
        clear();
        return true;
    }
    if (isSave) {
        Q_EMIT saveWanted();
        return true;
    }
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isControl)
            breakLine();
        else
            m_session.record().commitEdit();
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

} // namespace KOVAVSFDataGridLib
