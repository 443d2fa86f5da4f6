#include "session/pages/Pages.h"

#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "query/SharedValues.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/editing/EditedRecord.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/TypedPage.h"

#include <QtCore/QSignalBlocker>

#include <algorithm>

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

Pages::Pages(Session &session, ADODB::Adodc *adodc) : m_session(session), m_adodc(adodc) {}

void Pages::setPage(qint64 page)
{
    const qint64 pageCount = m_session.result().isOpen() ? m_session.result().recordset()->PageCount() : 0;
    const bool canShowPage = m_session.result().isOpen() && !m_session.result().recordset()->isEOF();
    m_page = canShowPage ? static_cast<int>(std::min(page, pageCount)) : 0;
    m_session.window().showPageNumber(m_page, pageCount);
}

void Pages::fillPage()
{
    m_pictureField = -1;
    if (!m_session.result().isOpen()) {
        m_session.window().showRecords(nullptr, 1, 0);
        return;
    }
    ADODB::Recordset &recordset = *m_session.result().recordset();
    m_pictureField = indexOfField(recordset.Fields(), m_session.texts.picField);
    const qint64 first = recordOfRow(1);
    const int count = m_page > 0 ? recordsOnPage(m_page) : 0;
    const QSignalBlocker silent(m_adodc);
    if (count > 0 && m_session.rules().movesRecordset)
        recordset.PutAbsolutePosition(first);
    m_session.window().showRecords(m_session.result().recordset(), first, count);
}

int Pages::recordsOnPage(int page) const
{
    const qint64 size = m_session.rules().fillsToTheEnd ? m_session.result().recordset()->PageSize()
                                                        : SharedValues::recordCap;
    const qint64 before = static_cast<qint64>(page - 1) * size;
    return static_cast<int>(std::clamp<qint64>(m_session.result().recordset()->RecordCount() - before, 0,
                                               SharedValues::recordCap));
}

qint64 Pages::recordOfRow(qint64 row) const
{
    const qint64 size = m_session.rules().fillsToTheEnd && m_session.result().recordset()
                            ? m_session.result().recordset()->PageSize()
                            : SharedValues::recordCap;
    return static_cast<qint64>(std::max(m_page, 1) - 1) * size + row;
}

int Pages::rowOfRecord(qint64 record) const
{
    const qint64 row = record - recordOfRow(1) + 1;
    return record >= 1 && row >= 1 && row < m_session.window().Rows() ? static_cast<int>(row) : 0;
}

bool Pages::showPage(qint64 page)
{
    const int pageBefore = m_page;
    setPage(page);
    try {
        fillPage();
        return true;
    } catch (const ADODB::Error &error) {
        setPage(pageBefore);
        m_session.questions().show(SessionMessages::PageErrorPrefix + error.Description());
        return false;
    }
}

bool Pages::turnToPage(qint64 page)
{
    m_session.columns().SaveColumnWidths();
    if (!showPage(page))
        return false;
    if (m_session.fields().view() == FieldView::Part)
        m_session.columns().ShowPartFieldColumns(PartWidths::Unchanged);
    m_session.window().refreshSingleRecord();
    return true;
}

void Pages::stepPage(PageStep step)
{
    if (!m_session.result().isOpen() || m_session.result().recordset()->isBOF())
        return;
    const qint64 pageCount = m_session.result().recordset()->PageCount();
    const bool isBack = step == PageStep::First || step == PageStep::Previous;
    if (isBack ? m_page < 2 : pageCount < 2 || m_page == pageCount)
        return;
    switch (step) {
    case PageStep::First:
        turnToPage(1);
        break;
    case PageStep::Previous:
        turnToPage(m_page - 1);
        break;
    case PageStep::Next:
        turnToPage(m_page + 1);
        break;
    case PageStep::Last:
        turnToPage(pageCount);
        break;
    }
}

void Pages::goToTypedPage(const QString &text)
{
    const bool mustBeNumber = m_session.rules().keepsTypedPage;
    const std::optional<TypedPage> typed = TypedPage::read(text, mustBeNumber);
    if (!typed || !m_session.isUsable())
        return;
    m_session.perform([&] {
        returnToShownRecord();
        if (typed->number < 1) {
            m_session.questions().show(SessionMessages::NotAPageNumber);
        } else if (m_session.record().save()) {
            turnToPage(typed->number);
            if (mustBeNumber)
                m_session.window().showTypedPage(typed->text);
        }
    });
}

void Pages::refillAtRecord(qint64 record)
{
    m_session.window().keepInView([&] {
        if (!showPage((std::max<qint64>(record, 1) - 1) / SharedValues::recordCap + 1))
            return;
        const QSignalBlocker silent(m_adodc);
        if (const int row = rowOfRecord(record); row > 0)
            m_session.window().PutRow(row);
        storeRecordCount();
    });
}

void Pages::returnToShownRecord()
{
    if (!m_session.result().hasRecords() || !m_session.rules().movesRecordset)
        return;
    ADODB::Recordset &recordset = *m_session.result().recordset();
    if (const int row = m_session.window().Row(); row > 0 && (recordset.isBOF() || recordset.isEOF()))
        recordset.PutAbsolutePosition(recordOfRow(row));
}

void Pages::updateRecordPosition()
{
    if (!m_session.result().isOpen())
        return;
    const ADODB::Recordset &recordset = *m_session.result().recordset();
    const qint64 count = recordset.RecordCount();
    qint64 position = 0;
    if (!recordset.isBOF())
        position = recordset.isEOF() ? count : recordset.AbsolutePosition();
    m_session.shared.recordCountSnapshot = static_cast<qint32>(count);
    m_session.shared.recordPosition = static_cast<qint32>(std::clamp<qint64>(position, 0, count));
    m_session.window().refreshStatus();
}

void Pages::storeRecordCount()
{
    m_session.shared.recordCount = static_cast<qint32>(
        std::min<qint64>(m_session.result().recordset()->RecordCount(), SharedValues::recordCap));
    m_session.shared.hasRecords = m_session.shared.recordCount >= 1 ? 1 : 0;
}

} // namespace KOVAVSFDataGridLib
