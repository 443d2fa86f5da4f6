#include "ado/rows/RecordEditor.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/ValueText.h"
#include "ado/providers/Provider.h"
#include "ado/rows/MissingValue.h"
#include "ado/rows/RowComparison.h"
#include "ado/rows/Snapshot.h"
#include "ado/values/DateText.h"
#include "ado/values/FieldValue.h"

#include <algorithm>
#include <new>

namespace ADODB {

namespace {

// Takes what was just saved into the snapshot. When that fails, the record shown is not the one saved.
template<typename Action>
void showSaved(Action &&action)
{
    try {
        action();
    } catch (const Error &error) {
        throw Error(dbErrInDoubt, Texts::savedUnseen().arg(error.Description()));
    } catch (const std::bad_alloc &) {
        throw Error(dbErrInDoubt, Texts::savedUnseen().arg(Texts::outOfMemory()));
    }
}

bool isZonedMoment(const QVariant &value)
{
    return value.typeId() == QMetaType::QString &&
           DateText::isZonedMoment(value.toString().trimmed().toUtf8());
}

// Whether the field keeps zones, as its values show where no driver tells. Where it doesn't, a database would
// drop the zone without a word.
bool showsZones(const Snapshot &snapshot, int column)
{
    constexpr qint64 recordsLookedAt = 1000;
    for (qint64 record = 1; record <= std::min(snapshot.records(), recordsLookedAt); ++record) {
        if (!snapshot.isNull(record, column))
            return DateText::isZonedMoment(snapshot.text(record, column).toUtf8());
    }
    return false;
}

} // namespace

RecordEditor::RecordEditor(std::unique_ptr<RowWriter> writer, const QString &whyReadOnly)
    : m_writer(std::move(writer)), m_whyReadOnly(whyReadOnly)
{
}

RecordEditor::~RecordEditor() = default;

RowWriter &RecordEditor::writer() const
{
    if (!m_writer)
        throw Error(adErrFeatureNotAvailable, m_whyReadOnly);
    return *m_writer;
}

const QVariant *RecordEditor::pending(int column) const
{
    const auto found = m_values.find(column);
    return found == m_values.end() ? nullptr : &found->second;
}

void RecordEditor::beginNew()
{
    writer();
    m_mode = adEditAdd;
}

void RecordEditor::set(int column, const QVariant &value, const Snapshot &snapshot)
{
    const FieldInfo &field = snapshot.fields()[static_cast<std::size_t>(column)];
    if (!writer().isWritable(column))
        throw Error(adErrFeatureNotAvailable, Texts::readOnlyField().arg(field.name));
    bool ok = false;
    QVariant converted = FieldValue::convert(value, field.type, &ok);
    if (!ok && isZonedMoment(value) && (writer().keepsZones(column) || showsZones(snapshot, column))) {
        converted = ValueText(value).trimmed();
        ok = true;
    }
    if (!ok) {
        const bool binary = value.typeId() == QMetaType::QByteArray;
        throw Error(adErrDataConversion,
                    Texts::badValue().arg(binary ? Texts::binaryValue() : ValueText(value), field.name));
    }
    m_values[column] = converted;
    if (m_mode == adEditNone)
        m_mode = adEditInProgress;
}

void RecordEditor::cancel()
{
    m_mode = adEditNone;
    m_values.clear();
    m_isInDoubt = false;
    m_sent.reset();
}

std::vector<Change> RecordEditor::changes() const
{
    std::vector<Change> changes;
    changes.reserve(m_values.size());
    for (const auto &[column, value] : m_values)
        changes.push_back({column, FieldValue::toStorage(value)});
    return changes;
}

Error RecordEditor::named(const Error &error, const Snapshot &snapshot) const
{
    if (error.SQLState() != nullRefused)
        return error;
    std::vector<FieldInfo> withoutValue;
    for (int column = 0; column < static_cast<int>(snapshot.fields().size()); ++column) {
        const QVariant *const value = pending(column);
        if (writer().isWritable(column) && (value ? !value->isValid() : m_mode == adEditAdd))
            withoutValue.push_back(snapshot.fields()[static_cast<std::size_t>(column)]);
    }
    const QString field = missingField(error.Description(), withoutValue);
    if (field.isEmpty())
        return error;
    return {dbErrIntegrity, Texts::valueNeeded().arg(field) + u'\n' + error.Description(), error.Source(),
            error.SQLState(), error.NativeError()};
}

void RecordEditor::saveNew(Snapshot &snapshot)
{
    try {
        if (!findSaved())
            insert(snapshot.columns());
        else if (m_sent->values != m_values)
            changeSaved();
    } catch (const Error &error) {
        throw named(error, snapshot);
    }
    showSaved([&] { snapshot.append(m_sent->row); });
    cancel();
}

// Whether the attempt before this one, whose answer never came, has saved the new record.
bool RecordEditor::findSaved()
{
    if (!m_sent)
        return false;
    if (m_sent->row.rows() == 0)
        throw Error(dbErrPerhapsSaved, Texts::newKeyUnknown());
    RowStore now(m_sent->row.columns());
    if (!writer().read(m_sent->row.row(0), now))
        return false;
    // Somebody else may have changed it, or have got the key that was undone.
    const bool isSame =
        now.rows() == 1 && std::all_of(m_sent->values.begin(), m_sent->values.end(), [&](const auto &value) {
            return RowComparison::isSame(now.cell(0, value.first), m_sent->row.cell(0, value.first));
        });
    if (!isSame)
        throw Error(dbErrPerhapsSaved, Texts::newKeyTaken());
    m_sent->row = std::move(now);
    return true;
}

void RecordEditor::insert(int columns)
{
    // Made before, so that nothing can fail once it is saved.
    std::unique_ptr<NewRecord> sent(new NewRecord{m_values, RowStore(columns)});
    try {
        writer().insert(changes(), sent->row);
    } catch (const Error &error) {
        if (error.is(dbErrInDoubt))
            m_sent = std::move(sent);
        throw;
    }
    m_sent = std::move(sent);
}

// What was written into the new record since it was saved.
void RecordEditor::changeSaved()
{
    std::unique_ptr<NewRecord> sent(new NewRecord{m_values, RowStore(m_sent->row.columns())});
    writer().update(m_sent->row.row(0), changes(), sent->row);
    m_sent = std::move(sent);
}

void RecordEditor::saveChanges(Snapshot &snapshot, qint64 record)
{
    try {
        const RowStore stored = update(snapshot, record);
        showSaved([&] { snapshot.replace(record, stored); });
    } catch (const Error &error) {
        m_isInDoubt = m_isInDoubt || error.is(dbErrInDoubt);
        throw named(error, snapshot);
    }
    cancel();
}

RowStore RecordEditor::update(const Snapshot &snapshot, qint64 record) const
{
    RowStore stored(snapshot.columns());
    try {
        writer().update(snapshot.raw(record), changes(), stored);
        return stored;
    } catch (const Error &error) {
        if (!m_isInDoubt || !error.is(dbErrConcurrency))
            throw;
        // What has changed the record may be the attempt before this one, whose answer never came.
        RowStore now(snapshot.columns());
        if (!writer().read(snapshot.raw(record), now) || now.rows() != 1 ||
            !holdsChanges(Snapshot(snapshot.fields(), now)))
            throw;
        return now;
    }
}

bool RecordEditor::holdsChanges(const Snapshot &row) const
{
    return std::all_of(m_values.begin(), m_values.end(),
                       [&](const auto &change) { return row.value(1, change.first) == change.second; });
}

RowStore RecordEditor::readAgain(const Snapshot &snapshot, qint64 record) const
{
    RowStore now(snapshot.columns());
    if (!writer().read(snapshot.raw(record), now))
        throw Error(dbErrDeletedRow, Texts::rowDeleted());
    if (now.rows() > 1)
        throw Error(dbErrConcurrency, Texts::rowNotUnique().arg(now.rows()));
    return now;
}

void RecordEditor::remove(Snapshot &snapshot, qint64 record)
{
    writer().remove(snapshot.raw(record));
    showSaved([&] { snapshot.remove(record); });
    cancel();
}

} // namespace ADODB
