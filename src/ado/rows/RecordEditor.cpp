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
#include <utility>

namespace ADODB {

namespace {

// Updates the snapshot after a save. If that fails, the shown record is not the saved one.
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

// Whether the field's values show that it stores time zones, for drivers that don't report it. If it doesn't,
// a database would silently drop the zone.
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
    if (converted.typeId() == QMetaType::QString && converted.toString().contains(QChar::Null) &&
        !writer().keepsNulCharacters())
        throw Error(adErrDataConversion, Texts::nulInText().arg(field.name));
    m_values[column] = converted;
    if (m_mode == adEditNone)
        m_mode = adEditInProgress;
}

void RecordEditor::cancel()
{
    m_mode = adEditNone;
    m_values.clear();
    m_sent.reset();
    m_removed = 0;
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
        if (!findSavedNew(snapshot)) {
            try {
                insert(snapshot.columns());
            } catch (const Error &error) {
                // The previous attempt may have finished only now.
                if (!error.is(dbErrIntegrity) || !findSavedNew(snapshot))
                    throw;
            }
        }
        changeSaved();
    } catch (const Error &error) {
        throw named(error, snapshot);
    }
    showNew(snapshot);
}

bool RecordEditor::findNew(Snapshot &snapshot)
{
    if (!m_sent || m_sent->values != m_values || !findSavedNew(snapshot))
        return false;
    showNew(snapshot);
    return true;
}

void RecordEditor::showNew(Snapshot &snapshot)
{
    showSaved([&] { snapshot.append(m_sent->row); });
    cancel();
}

// Whether the previous attempt, whose result is unknown, has saved the new record.
bool RecordEditor::findSavedNew(const Snapshot &snapshot)
{
    if (!m_sent)
        return false;
    if (m_sent->row.rows() == 0)
        throw Error(dbErrPerhapsSaved, Texts::newKeyUnknown());
    RowStore now(m_sent->row.columns());
    if (!writer().read(m_sent->row.row(0), now))
        return false;
    const Snapshot found(snapshot.fields(), now);
    // Others may have changed the record, or have got the key after a rollback.
    const bool isSame =
        now.rows() == 1 && std::all_of(m_sent->values.begin(), m_sent->values.end(), [&](const auto &value) {
            return RowComparison::isSame(now.cell(0, value.first), m_sent->row.cell(0, value.first)) ||
                   found.value(1, value.first) == value.second;
        });
    if (!isSame)
        throw Error(dbErrPerhapsSaved, Texts::newKeyTaken());
    m_sent->row = std::move(now);
    return true;
}

// Makes an attempt with the pending values. `attempt` receives a row for what is stored.
void RecordEditor::send(int columns, const std::function<void(RowStore &)> &attempt)
{
    // Allocated first, so that nothing can fail after the save.
    std::unique_ptr<Sent> sent(new Sent{m_values, RowStore(columns)});
    try {
        attempt(sent->row);
    } catch (const Error &error) {
        if (error.is(dbErrInDoubt))
            m_sent = std::move(sent);
        throw;
    }
    m_sent = std::move(sent);
}

void RecordEditor::insert(int columns)
{
    send(columns, [this](RowStore &stored) {
        if (m_sent)
            writer().insertAgain(changes(), m_sent->row.row(0), stored);
        else
            writer().insert(changes(), stored);
    });
}

// Saves what was written to the record since the attempt that saved it.
void RecordEditor::changeSaved()
{
    if (m_sent->values != m_values)
        send(m_sent->row.columns(),
             [this](RowStore &stored) { writer().update(m_sent->row.row(0), changes(), stored); });
}

void RecordEditor::saveChanges(Snapshot &snapshot, qint64 record)
{
    try {
        update(snapshot, record);
    } catch (const Error &error) {
        throw named(error, snapshot);
    }
    showChanges(snapshot, record);
}

bool RecordEditor::findChanges(Snapshot &snapshot, qint64 record)
{
    if (!m_sent || m_sent->values != m_values || !findSaved(snapshot, record))
        return false;
    showChanges(snapshot, record);
    return true;
}

void RecordEditor::showChanges(Snapshot &snapshot, qint64 record)
{
    showSaved([&] { snapshot.replace(record, m_sent->row); });
    cancel();
}

void RecordEditor::update(const Snapshot &snapshot, qint64 record)
{
    try {
        send(snapshot.columns(),
             [&](RowStore &stored) { writer().update(snapshot.raw(record), changes(), stored); });
    } catch (const Error &error) {
        // The change may come from the previous attempt, whose result is unknown.
        if (!m_sent || !error.is(dbErrConcurrency) || !findSaved(snapshot, record))
            throw;
        changeSaved();
    }
}

// Whether the database has the values of the previous attempt, under the key they were sent with.
bool RecordEditor::findSaved(const Snapshot &snapshot, qint64 record)
{
    const bool isRowKnown = m_sent->row.rows() == 1;
    RowStore now(snapshot.columns());
    if (!writer().read(isRowKnown ? m_sent->row.row(0) : snapshot.raw(record), now) || now.rows() != 1)
        return false;
    const Snapshot found(snapshot.fields(), now);
    const auto isSaved = [&](const auto &change) {
        return isRowKnown
                   ? RowComparison::isSame(now.cell(0, change.first), m_sent->row.cell(0, change.first))
                   : found.value(1, change.first) == change.second;
    };
    if (!std::all_of(m_sent->values.begin(), m_sent->values.end(), isSaved))
        return false;
    m_sent->row = std::move(now);
    return true;
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
    try {
        writer().remove(snapshot.raw(record));
    } catch (const Error &error) {
        // The previous attempt, whose result is unknown, may have deleted it.
        if (error.is(dbErrConcurrency) && findRemoval(snapshot, record))
            return;
        if (error.is(dbErrInDoubt))
            m_removed = record;
        throw;
    }
    m_removed = record;
    showRemoval(snapshot, record);
}

bool RecordEditor::findRemoval(Snapshot &snapshot, qint64 record)
{
    RowStore now(snapshot.columns());
    if (record == 0 || m_removed != record || writer().read(snapshot.raw(record), now))
        return false;
    showRemoval(snapshot, record);
    return true;
}

void RecordEditor::showRemoval(Snapshot &snapshot, qint64 record)
{
    showSaved([&] { snapshot.remove(record); });
    cancel();
}

} // namespace ADODB
