#include "control/parts/PageView.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "control/parts/ElidedLabel.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridTexts.h"
#include "grid/FlexGrid.h"
#include "grid/RecordWindow.h"
#include "grid/TextCells.h"
#include "query/SharedValues.h"
#include "session/ResultSet.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

QString pageLabel(const QString &page, const QString &pageCount)
{
    return GridTexts::PagePrefix + page + GridTexts::PageCountPrefix + pageCount + GridTexts::PageCapPrefix +
           QString::number(SharedValues::RecordCap) + GridTexts::PageCapSuffix;
}

int indexOfField(const ADODB::Fields &fields, const QString &name)
{
    for (int i = 0; i < fields.Count(); ++i) {
        if (fields.Item(i).Name() == name)
            return i;
    }
    return -1;
}

} // namespace

PageView::PageView(const GridParts &parts, const ResultSet &result) : m_parts(parts), m_result(result)
{
    m_parts.lblFieldCount->setText(pageLabel({}, {}));
}

bool PageView::canShowPage() const
{
    return m_result.isOpen() && !m_result.recordset()->isEOF();
}

void PageView::setCurrentPage(qint64 page)
{
    const qint64 pageCount = m_result.isOpen() ? m_result.recordset()->PageCount() : 0;
    m_currentPage = canShowPage() ? static_cast<int>(std::min(page, pageCount)) : 0;
    m_parts.txtPage->setText(QString::number(m_currentPage));
    m_parts.lblFieldCount->setText(pageLabel(QString::number(m_currentPage), QString::number(pageCount)));
    m_parts.layOutFoot();
}

void PageView::fill(const QString &pictureField)
{
    VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    m_pictureFieldIndex = -1;
    if (!m_result.isOpen()) {
        grid.Show(std::make_unique<TextCells>(1, grid.Cols()));
        return;
    }
    ADODB::Recordset &recordset = *m_result.recordset();
    m_pictureFieldIndex = indexOfField(recordset.Fields(), pictureField);

    const qint64 first = recordOfRow(1);
    const int count = m_currentPage > 0 ? rowsOfPage(m_currentPage) : 0;
    const QSignalBlocker silent(m_parts.Adodc1);
    if (count > 0)
        recordset.PutAbsolutePosition(first);
    grid.PutRedraw(false);
    grid.Show(std::make_unique<RecordWindow>(m_result.recordset(), static_cast<int>(first), count));
    if (count > 0)
        grid.PutRow(1);
    grid.PutRedraw(true);
}

int PageView::rowsOfPage(int page) const
{
    const qint64 before = static_cast<qint64>(page - 1) * SharedValues::RecordCap;
    return static_cast<int>(
        std::clamp<qint64>(m_result.recordset()->RecordCount() - before, 0, SharedValues::RecordCap));
}

qint64 PageView::recordOfRow(int row) const
{
    return static_cast<qint64>(std::max(m_currentPage, 1) - 1) * SharedValues::RecordCap + row;
}

qint32 PageView::pageFromText(QString text)
{
    // Chinese input methods type digits of full width.
    text = text.normalized(QString::NormalizationForm_KC);
    for (text = text.trimmed(); !text.isEmpty(); text.chop(1)) {
        bool isNumber = false;
        const qint32 page = text.toInt(&isNumber);
        if (isNumber)
            return page;
    }
    return 0;
}

} // namespace KOVAVSFDataGridLib
