#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"

#include <QtCore/QSignalBlocker>

#include <algorithm>

// The pages of the result, and which record is current.

namespace KOVAVSFDataGridLib {

namespace {

int indexOfField(const ADODB::Fields &fields, const QString &name)
{
    for (int i = 0; i < fields.Count(); ++i) {
        if (fields.Item(i).Name() == name)
            return i;
    }
    return -1;
}

} // namespace

void Session::setPage(qint64 page)
{
    const qint64 pageCount = m_result.isOpen() ? m_result.recordset()->PageCount() : 0;
    const bool canShowPage = m_result.isOpen() && !m_result.recordset()->isEOF();
    m_page = canShowPage ? static_cast<int>(std::min(page, pageCount)) : 0;
    m_window->showPageNumber(m_page, pageCount);
}

void Session::fillPage()
{
    m_pictureField = -1;
    if (!m_result.isOpen()) {
        m_window->showRecords(nullptr, 1, 0);
        return;
    }
    ADODB::Recordset &recordset = *m_result.recordset();
    m_pictureField = indexOfField(recordset.Fields(), texts.picField);
    const qint64 first = recordOfRow(1);
    const int count = m_page > 0 ? recordsOnPage(m_page) : 0;
    const QSignalBlocker silent(m_adodc);
    if (count > 0 && m_rules.movesRecordset)
        recordset.PutAbsolutePosition(first);
    m_window->showRecords(m_result.recordset(), first, count);
}

int Session::recordsOnPage(int page) const
{
    const qint64 size = m_rules.fillsToTheEnd ? m_result.recordset()->PageSize() : SharedValues::recordCap;
    const qint64 before = static_cast<qint64>(page - 1) * size;
    return static_cast<int>(
        std::clamp<qint64>(m_result.recordset()->RecordCount() - before, 0, SharedValues::recordCap));
}

qint64 Session::recordOfRow(qint64 row) const
{
    const qint64 size = m_rules.fillsToTheEnd && m_result.recordset() ? m_result.recordset()->PageSize()
                                                                      : SharedValues::recordCap;
    return static_cast<qint64>(std::max(m_page, 1) - 1) * size + row;
}

int Session::rowOfRecord(qint64 record) const
{
    const qint64 row = record - recordOfRow(1) + 1;
    return record >= 1 && row >= 1 && row < m_window->Rows() ? static_cast<int>(row) : 0;
}

bool Session::showPage(qint64 page)
{
    const int pageBefore = m_page;
    setPage(page);
    try {
        fillPage();
        return true;
    } catch (const ADODB::Error &error) {
        setPage(pageBefore);
        m_questions->show(SessionMessages::PageErrorPrefix + error.Description());
        return false;
    }
}

void Session::turnToPage(qint64 page)
{
    columns().SaveColumnWidths();
    if (!showPage(page))
        return;
    if (m_fieldView == FieldView::Part)
        columns().ShowPartFieldColumns(PartWidths::Unchanged);
    m_window->refreshSingleRecord();
}

void Session::stepPage(PageStep step)
{
    if (!m_result.isOpen() || m_result.recordset()->isBOF())
        return;
    const qint64 pageCount = m_result.recordset()->PageCount();
    const bool isBack = step == PageStep::First || step == PageStep::Previous;
    if (isBack ? m_page < 2 : pageCount < 2 || m_page == pageCount)
        return;
    switch (step) {
    case PageStep::First:
        return turnToPage(1);
    case PageStep::Previous:
        return turnToPage(m_page - 1);
    case PageStep::Next:
        return turnToPage(m_page + 1);
    case PageStep::Last:
        return turnToPage(pageCount);
    }
}

void Session::refillAtRecord(qint64 record)
{
    m_window->keepInView([&] {
        if (!showPage((std::max<qint64>(record, 1) - 1) / SharedValues::recordCap + 1))
            return;
        const QSignalBlocker silent(m_adodc);
        if (const int row = rowOfRecord(record); row > 0)
            m_window->PutRow(row);
        storeRecordCount();
    });
}

bool Session::hasRecords() const
{
    return m_result.isOpen() && m_result.recordset()->RecordCount() != 0;
}

void Session::returnToShownRecord()
{
    if (!hasRecords() || !m_rules.movesRecordset)
        return;
    ADODB::Recordset &recordset = *m_result.recordset();
    if (const int row = m_window->Row(); row > 0 && (recordset.isBOF() || recordset.isEOF()))
        recordset.PutAbsolutePosition(recordOfRow(row));
}

void Session::updateRecordPosition()
{
    if (!m_result.isOpen())
        return;
    const ADODB::Recordset &recordset = *m_result.recordset();
    const qint64 count = recordset.RecordCount();
    qint64 position = 0;
    if (!recordset.isBOF())
        position = recordset.isEOF() ? count : recordset.AbsolutePosition();
    shared.recordCountSnapshot = static_cast<qint32>(count);
    shared.recordPosition = static_cast<qint32>(std::clamp<qint64>(position, 0, count));
    m_window->refreshStatus();
}

void Session::storeRecordCount()
{
    shared.recordCount =
        static_cast<qint32>(std::min<qint64>(m_result.recordset()->RecordCount(), SharedValues::recordCap));
    shared.hasRecords = shared.recordCount >= 1 ? 1 : 0;
}

} // namespace KOVAVSFDataGridLib
