#include "ado/automation/RecordWalk.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/Texts.h"

#include <algorithm>

namespace ADODB {

using namespace Qt::Literals::StringLiterals;

namespace {

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

} // namespace

void badArgument(const QVariant &value)
{
    throw Error(adErrInvalidArgument, Texts::badArgument().arg(value.toString()));
}

void RecordWalk::setFilter(const QVariant &filter)
{
    restrict(filter, m_sort);
}

void RecordWalk::setSort(const QString &sort)
{
    restrict(m_filter, sort);
}

void RecordWalk::restrict(const QVariant &filter, const QString &sort)
{
    leaveRecord();
    std::optional<Criteria> criteria;
    std::optional<std::vector<qint64>> records;
    if (isNumber(filter)) {
        const int group = filter.toInt();
        if (group < adFilterNone || group > adFilterConflictingRecords)
            badArgument(filter);
        if (group != adFilterNone)
            throw Error(adErrFeatureNotAvailable, Texts::filterGroup());
    } else if (filter.typeId() == QMetaType::QVariantList) {
        records.emplace();
        for (const QVariant &bookmark : filter.toList())
            records->push_back(recordOf(bookmark));
    } else if (const QString text = filter.toString(); !text.trimmed().isEmpty()) {
        criteria = Criteria::parse(text, m_recordset);
    }
    m_view.set(criteria, records, sort);
    m_filter = criteria || records ? filter : QVariant();
    m_sort = sort;
    moveTo(1);
}

void RecordWalk::reset()
{
    m_view.reset();
    m_filter = {};
    m_sort.clear();
}

// An unsaved record has no place in the view.
void RecordWalk::leaveRecord()
{
    const EditModeEnum mode = m_recordset.EditMode();
    if (mode == adEditAdd || mode == adEditInProgress)
        m_recordset.Move(0);
}

bool RecordWalk::isBOF()
{
    return m_recordset.isBOF() || (m_recordset.isEOF() && count() == 0);
}

bool RecordWalk::isEOF()
{
    return m_recordset.isEOF() || (m_recordset.isBOF() && count() == 0);
}

RecordView::Place RecordWalk::current()
{
    const qint64 record = m_recordset.AbsolutePosition();
    if (m_recordset.isBOF())
        return {0, true};
    if (record == adPosEOF)
        return {count() + 1, true};
    // The position of a deleted record is between its neighbours.
    if (record == adPosUnknown)
        return {std::clamp(m_latestPlace - 1, qint64{0}, count()), false};
    return m_view.placeOf(record);
}

RecordView::Place RecordWalk::placeOf(const QVariant &start)
{
    if (!start.isValid())
        return current();
    if (isNumber(start) && start.toDouble() < 3) {
        switch (start.toInt()) {
        case adBookmarkCurrent:
            return current();
        case adBookmarkFirst:
            return {1, true};
        case adBookmarkLast:
            return {count(), true};
        default:
            badArgument(start);
        }
    }
    return m_view.placeOf(recordOf(start));
}

qint64 RecordWalk::recordOf(const QVariant &bookmark) const
{
    bool isOne = false;
    const double number = bookmark.toDouble(&isOne);
    if (!isOne || number < 0 || number > 0x1p62)
        throw Error(dbErrBadBookmark, Texts::badBookmark());
    return m_recordset.RecordOf(static_cast<qint64>(number));
}

// Throws if there is no record to read.
qint64 RecordWalk::needPlace(const QVariant &start)
{
    const RecordView::Place place = placeOf(start);
    if (!place.isThere || place.number < 1 || place.number > count())
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    return place.number;
}

qint64 RecordWalk::position()
{
    if (isBOF() && isEOF())
        return adPosUnknown;
    const qint64 record = m_recordset.AbsolutePosition();
    if (record < 1)
        return record;
    const RecordView::Place place = m_view.placeOf(record);
    return place.isThere ? place.number : qint64{adPosUnknown};
}

void RecordWalk::moveToPosition(qint64 position)
{
    leaveRecord();
    if (count() == 0)
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    if (position < 1 || position > count())
        throw Error(adErrInvalidArgument, Texts::badPosition().arg(position).arg(count()));
    moveTo(position);
}

void RecordWalk::move(qint64 records, const QVariant &start)
{
    leaveRecord();
    const RecordView::Place from = placeOf(start);
    const qint64 last = count();
    const bool isAtEnd = from.isThere && (records > 0 ? from.number > last : records < 0 && from.number < 1);
    const bool isOnDeleted = m_recordset.EditMode() == adEditDelete;
    if ((last == 0 && !isOnDeleted) || isAtEnd)
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    if (!from.isThere && records == 0)
        return;
    // When moving backwards from between two records, the first step leads to the one before.
    const qint64 begin = !from.isThere && records < 0 ? from.number + 1 : from.number;
    moveTo(std::clamp(begin + std::clamp(records, -last - 1, last + 1), qint64{0}, last + 1));
}

void RecordWalk::moveTo(qint64 place)
{
    const qint64 last = count();
    m_latestPlace = place;
    if (place >= 1 && place <= last) {
        m_recordset.PutAbsolutePosition(m_view.recordAt(place));
        return;
    }
    const qint64 all = m_recordset.RecordCount();
    if (all > 0)
        m_recordset.Move(place < 1 && last > 0 ? -all : all, adBookmarkFirst);
    else if (m_recordset.EditMode() == adEditDelete)
        m_recordset.Move(1); // moves past the last record
}

void RecordWalk::remove()
{
    m_latestPlace = current().number;
    m_recordset.Delete();
}

void RecordWalk::find(const QString &criteria, qint64 skip, bool isForward, const QVariant &start)
{
    leaveRecord();
    const Criteria wanted = Criteria::parseComparison(criteria, m_recordset);
    const qint64 step = isForward ? 1 : -1;
    const qint64 last = count();
    qint64 place = needPlace(start);
    place = std::clamp(place + step * std::clamp(skip, qint64{0}, last), qint64{0}, last + 1);
    while (place >= 1 && place <= last && !wanted.matches(m_recordset, m_view.recordAt(place)))
        place += step;
    moveTo(place);
}

void RecordWalk::readOn(qint64 limit, const QVariant &start, const std::function<void(qint64)> &read)
{
    leaveRecord();
    qint64 place = needPlace(start);
    const qint64 end = limit < 0 ? count() + 1 : std::min(count() + 1, place + limit);
    for (; place < end; ++place)
        read(m_view.recordAt(place));
    moveTo(place);
}

void RecordWalk::readAll(const std::function<void(qint64)> &read)
{
    for (qint64 place = 1; place <= count(); ++place)
        read(m_view.recordAt(place));
}

} // namespace ADODB
