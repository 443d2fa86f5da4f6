#include "control/input/SingleRecordView.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "control/input/InputEvents.h"
#include "control/input/MenuKey.h"
#include "control/input/record/FieldRules.h"
#include "control/input/record/RecordCells.h"
#include "control/input/record/RecordDelegate.h"
#include "control/input/record/RecordKeys.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridTexts.h"
#include "control/parts/Survives.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "forms/value/PicturePane.h"
#include "grid/FlexGrid.h"
#include "grid/GridSelection.h"
#include "grid/Twips.h"
#include "grid/cells/CellTexts.h"
#include "language/Language.h"
#include "session/Session.h"
#include "session/commands/CommandKeys.h"
#include "session/editing/EditedRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QHeaderView>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int nameMargin = 180; // twips beside the widest field name
constexpr int nameCol = 0;
constexpr int valueCol = 1;

bool isListed(const ADODB::Field &field)
{
    return field.Type() != ADODB::adBinary && field.Type() != ADODB::adLongVarBinary;
}

bool carriesText(const QInputMethodEvent &event)
{
    return !event.preeditString().isEmpty() || !event.commitString().isEmpty();
}

} // namespace

SingleRecordView::SingleRecordView(QWidget &control, InputEvents &host, Session &session, GridParts &parts)
    : m_control(control),
      m_host(host),
      m_session(session),
      m_parts(parts),
      m_pictureFields(session, control),
      m_heading(*parts.MSFlexGrid1->horizontalHeader()),
      m_required(session, *parts.MSFlexGrid1),
      m_editor(session, parts)
{
    MSFlexGrid &list = *parts.MSFlexGrid1;
    Language::keepTranslated(list, [this] {
        if (m_parts.MSFlexGrid1->Cols() > valueCol) {
            m_parts.MSFlexGrid1->PutTextMatrix(0, nameCol, GridTexts::FieldNameHeading);
            m_parts.MSFlexGrid1->PutTextMatrix(0, valueCol, GridTexts::FieldValueHeading);
        }
    });
    auto *const delegate = new RecordDelegate(
        m_fields, [this](int field) { return isNull(field); }, this);
    list.setItemDelegateForColumn(nameCol, delegate);
    list.setItemDelegateForColumn(valueCol, delegate);
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
    list.horizontalHeader()->viewport()->installEventFilter(this);
    connect(&list, &FlexGrid::CurrentRowChanged, this, [this, &list] {
        list.setAttribute(Qt::WA_InputMethodEnabled); // so that an edit can begin with an input method
        m_session.record().commitEdit();              // last, because the host may delete the control
    });
    connect(&m_required, &RequiredFields::learned, this, &SingleRecordView::markRequired);
    connect(&m_editor, &CellEditor::saveWanted, this, &SingleRecordView::saveWanted);
    connect(&m_heading, &RecordHeading::picturesClicked, this, &SingleRecordView::togglePictures);
    connect(&m_heading, &RecordHeading::commandWanted, this, &SingleRecordView::commandWanted);
}

// Commits what is being typed first.
void SingleRecordView::togglePictures()
{
    bool isTaken = false;
    if (!survives(*this, [&](SingleRecordView &) { isTaken = m_session.record().commitEdit(); }))
        return;
    if (isTaken)
        FillSingleRecordView();
    else
        m_heading.undoClick();
}

void SingleRecordView::show()
{
    const bool hadFocus = m_parts.vsfgDataGrid->hasFocus();
    FillSingleRecordView();
    fitNameColumn();
    m_parts.MSFlexGrid1->show();
    m_control.setFocusProxy(m_parts.MSFlexGrid1);
    m_parts.vsfgDataGrid->hide();
    m_parts.Toolbar1->setButtonVisible(CommandKeys::SingleRecord, false);
    m_parts.Toolbar1->setButtonVisible(CommandKeys::AllRecord, true);
    if (hadFocus)
        m_parts.MSFlexGrid1->setFocus();
}

void SingleRecordView::hide()
{
    const bool hadFocus = m_parts.MSFlexGrid1->hasFocus() || m_editor.hasFocus();
    m_editor.close();
    m_parts.vsfgDataGrid->show();
    m_control.setFocusProxy(m_parts.vsfgDataGrid);
    m_parts.MSFlexGrid1->hide();
    m_parts.Toolbar1->setButtonVisible(CommandKeys::SingleRecord, true);
    m_parts.Toolbar1->setButtonVisible(CommandKeys::AllRecord, false);
    if (hadFocus)
        m_parts.vsfgDataGrid->setFocus();
}

void SingleRecordView::FillSingleRecordView()
{
    m_editor.close();
    listFields();
    MSFlexGrid &list = *m_parts.MSFlexGrid1;
    const int row = list.Row();
    auto cells =
        std::make_unique<RecordCells>(static_cast<int>(m_fields.size()), [view = QPointer(this)](int line) {
            return view ? view->spokenValue(line) : QString();
        });
    cells->setText(0, nameCol, GridTexts::FieldNameHeading);
    cells->setText(0, valueCol, GridTexts::FieldValueHeading);
    int at = 0;
    for (const ListedField &listed : m_fields) {
        cells->setText(++at, nameCol, m_session.result().recordset()->Fields().Item(listed.field).Name());
        cells->setText(at, valueCol, valueText(listed.field));
    }
    list.Show(std::move(cells));
    showPictures();
    if (at > 0) {
        list.PutRow(std::clamp(row, 1, at));
        list.PutCol(valueCol);
    }
}

void SingleRecordView::listFields()
{
    m_fields.clear();
    bool hasBinary = false;
    m_required.learn();
    const int fields = m_session.result().isOpen() ? m_session.result().recordset()->Fields().Count() : 0;
    for (int i = 0; i < fields; ++i) {
        const ADODB::Field &field = m_session.result().recordset()->Fields().Item(i);
        ListedField listed{.field = i, .isBinary = PictureFields::isBinary(field)};
        listed.format = shownFormat(*m_session.result().recordset(), i);
        listed.isRequired = m_required.has(i);
        hasBinary |= listed.isBinary;
        if (!isListed(field) && !m_heading.hasPictures())
            continue;
        m_fields.push_back(std::move(listed));
    }
    m_heading.offerPictures(hasBinary);
}

void SingleRecordView::markRequired()
{
    for (ListedField &listed : m_fields)
        listed.isRequired = m_required.has(listed.field);
    m_parts.MSFlexGrid1->viewport()->update();
}

// Rows with a picture are taller.
void SingleRecordView::showPictures()
{
    MSFlexGrid &list = *m_parts.MSFlexGrid1;
    const int usual = list.verticalHeader()->defaultSectionSize();
    for (std::size_t row = 0; row < m_fields.size(); ++row) {
        ListedField &listed = m_fields[row];
        try {
            if (listed.isBinary && m_heading.hasPictures())
                listed.picture = PicturePane::pictureIn(
                    m_session.result().recordset()->Fields().Item(listed.field).Value().toByteArray());
        } catch (const ADODB::Error &) {
            listed.picture = {}; // there is no current record
        }
        const int height = list.fontMetrics().lineSpacing() * RecordDelegate::linesOfPicture;
        list.setRowHeight(static_cast<int>(row), listed.picture.isNull() ? usual : height);
    }
}

QString SingleRecordView::valueText(int field) const
{
    try {
        return ADODB::ValueText(m_session.result().recordset()->Fields().Item(field).Value());
    } catch (const ADODB::Error &) {
        return {}; // there is no current record
    }
}

bool SingleRecordView::isNull(int field) const
{
    try {
        return m_session.result().isOpen() &&
               !m_session.result().recordset()->Fields().Item(field).Value().isValid();
    } catch (const ADODB::Error &) {
        return false; // there is no current record
    }
}

QString SingleRecordView::spokenValue(int row) const
{
    const ListedField &listed = m_fields[static_cast<std::size_t>(row - 1)];
    if (isNull(listed.field))
        return CellTexts::NoValue;
    return listed.format.applied(m_parts.MSFlexGrid1->TextMatrix(row, valueCol));
}

int SingleRecordView::currentGridCol() const
{
    const int row = m_parts.MSFlexGrid1->Row();
    return row < 1 ? 0 : m_fields[static_cast<std::size_t>(row - 1)].field + 1;
}

std::vector<int> SingleRecordView::listedColumns() const
{
    std::vector<int> columns;
    columns.reserve(m_fields.size());
    for (const ListedField &listed : m_fields)
        columns.push_back(listed.field + 1);
    return columns;
}

std::vector<int> SingleRecordView::markedColumns() const
{
    const GridSelection marked = selectedCells(*m_parts.MSFlexGrid1);
    std::vector<int> columns;
    for (int row = marked.firstRow; row <= marked.lastRow; ++row)
        columns.push_back(m_fields[static_cast<std::size_t>(row - 1)].field + 1);
    return columns;
}

MarkedFields SingleRecordView::markedFields() const
{
    const MSFlexGrid &list = *m_parts.MSFlexGrid1;
    const GridSelection marked = selectedCells(list);
    MarkedFields answer;
    answer.hasNames = std::ranges::find(marked.columns, nameCol) != marked.columns.end();
    for (int row = marked.firstRow; row <= marked.lastRow; ++row)
        answer.fields.push_back({list.TextMatrix(row, nameCol), list.TextMatrix(row, valueCol)});
    return answer;
}

void SingleRecordView::fitNameColumn()
{
    MSFlexGrid &list = *m_parts.MSFlexGrid1;
    int width = 0;
    for (int row = 0; row < list.Rows(); ++row)
        width = std::max(width, list.fontMetrics().horizontalAdvance(list.TextMatrix(row, nameCol)));
    list.PutColWidth(nameCol, Twips::fromPixels(width, list) + nameMargin);
}

bool SingleRecordView::eventFilter(QObject *watched, QEvent *event)
{
    bool isConsumed = false;
    const auto handle = [&](SingleRecordView &view) { isConsumed = view.handleEvent(watched, event); };
    return !survives(*this, handle) || isConsumed; // an event for a deleted widget must not be processed
}

bool SingleRecordView::handleEvent(QObject *watched, QEvent *event)
{
    const auto *source = static_cast<const QWidget *>(watched);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // A record that has changes is saved by the key that exports otherwise, and a value cleared by the
        // one that shows the whole table: who is at a value means the value, and would lose the place.
        if ((isSave(*static_cast<QKeyEvent *>(event)) && m_session.record().hasUnsavedChanges()) ||
            (isClear(*static_cast<QKeyEvent *>(event)) && watched == m_parts.MSFlexGrid1))
            event->accept();
        return false;
    case QEvent::KeyPress:
        return watched == m_parts.MSFlexGrid1 && keyPressed(*static_cast<QKeyEvent *>(event));
    case QEvent::InputMethod:
        if (!carriesText(*static_cast<QInputMethodEvent *>(event)) || isPictureCurrent() ||
            !m_editor.begin(currentGridCol(), u""_s))
            return false;
        return QCoreApplication::sendEvent(&m_editor.widget(), event);
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            doubleClicked(*source, *static_cast<QMouseEvent *>(event));
        return false;
    case QEvent::FontChange:
        if (watched == m_parts.MSFlexGrid1)
            fitNameColumn();
        return false;
    case QEvent::ContextMenu:
        // The menu key arrives as a key, and the right button is reported below: only once each.
        return true;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::RightButton &&
            watched == m_parts.MSFlexGrid1->viewport())
            Q_EMIT menuWanted(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
        return false;
    default:
        return false;
    }
}

bool SingleRecordView::keyPressed(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_F2 || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return editCurrent();
    if (isPictures(event) && m_heading.arePicturesOffered()) {
        m_heading.clickPictures();
        return true;
    }
    if (isClear(event)) {
        clearCurrent();
        return true;
    }
    if (isSave(event)) {
        Q_EMIT saveWanted();
        return true;
    }
    if (event.key() == Qt::Key_Escape) {
        Q_EMIT cancelWanted();
        return true;
    }
    if (isMenuKey(event)) {
        Q_EMIT menuWanted(menuPlace(*m_parts.MSFlexGrid1));
        return true;
    }
    return isText(event) && !isPictureCurrent() && m_editor.begin(currentGridCol(), event.text());
}

bool SingleRecordView::isPictureCurrent() const
{
    const int row = m_parts.MSFlexGrid1->Row();
    return m_heading.hasPictures() && row >= 1 && m_fields[static_cast<std::size_t>(row - 1)].isBinary;
}

bool SingleRecordView::editCurrent()
{
    if (!isPictureCurrent())
        return m_editor.begin(currentGridCol());
    if (m_editor.canWrite(currentGridCol()))
        m_pictureFields.replace(currentGridCol() - 1);
    return true;
}

void SingleRecordView::clearCurrent()
{
    if (!isPictureCurrent()) {
        if (m_editor.begin(currentGridCol()) && m_editor.canWrite(currentGridCol()))
            m_editor.clear();
    } else if (m_editor.canWrite(currentGridCol())) {
        m_pictureFields.clear(currentGridCol() - 1);
    }
}

void SingleRecordView::doubleClicked(const QWidget &source, const QMouseEvent &event)
{
    if (!survives(m_host, &InputEvents::DataDblClick))
        return;
    MSFlexGrid &list = *m_parts.MSFlexGrid1;
    const int gridRow = m_parts.vsfgDataGrid->Row();
    const QPoint position = event.position().toPoint();
    if (&source == list.horizontalHeader()->viewport()) {
        if (list.horizontalHeader()->logicalIndexAt(position) == valueCol)
            Q_EMIT m_host.DataDBLClickOneRow(gridRow);
    } else if (list.indexAt(position).isValid()) {
        // Unless the host handled the event in its own way and moved away from the list.
        if (survives(m_host, &InputEvents::DataDBLClickOneCell, currentGridCol(), gridRow) &&
            list.isVisible() && list.hasFocus() && m_editor.canWrite(currentGridCol()))
            editCurrent();
    }
}

} // namespace KOVAVSFDataGridLib
