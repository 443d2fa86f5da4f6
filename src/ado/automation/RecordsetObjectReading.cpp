#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "ado/ValueText.h"
#include "ado/automation/FieldsObject.h"
#include "ado/automation/Guarded.h"
#include "ado/automation/RecordWalk.h"
#include "ado/automation/RecordsetCsv.h"
#include "ado/automation/RecordsetObject.h"
#include "ado/automation/RecordsetXml.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <numeric>

// The members of RecordsetObject that read many records.

namespace ADODB {

using namespace Qt::Literals::StringLiterals;

namespace {

// An optional argument.
qint64 number(const QVariant &argument, qint64 byDefault)
{
    if (!argument.isValid())
        return byDefault;
    bool isNumber = false;
    const qint64 value = argument.toLongLong(&isNumber);
    if (!isNumber)
        badArgument(argument);
    return value;
}

qint64 limitIn(const QVariant &rows)
{
    const qint64 limit = number(rows, adGetRowsRest);
    if (limit < adGetRowsRest)
        badArgument(rows);
    return limit;
}

QString text(const QVariant &argument, const QString &byDefault)
{
    return argument.isValid() ? argument.toString() : byDefault;
}

} // namespace

void RecordsetObject::Find(const QString &criteria, const QVariant &skipRecords,
                           const QVariant &searchDirection, const QVariant &start)
{
    guarded(this, [&] {
        const qint64 direction = number(searchDirection, adSearchForward);
        if (direction != adSearchForward && direction != adSearchBackward)
            badArgument(searchDirection);
        m_walk->find(criteria, number(skipRecords, 0), direction == adSearchForward, start);
    });
}

QVariant RecordsetObject::GetRows(const QVariant &rows, const QVariant &start, const QVariant &fields)
{
    return guarded(this, [&] {
        std::vector<int> columns(static_cast<std::size_t>(m_recordset.Fields().Count()));
        std::iota(columns.begin(), columns.end(), 0);
        if (fields.isValid())
            columns = m_fields->columns(fields);
        std::vector<QVariantList> values(columns.size());
        m_walk->readOn(limitIn(rows), start, [&](qint64 record) {
            for (std::size_t i = 0; i < columns.size(); ++i)
                values[i].push_back(m_recordset.CellValue(record, columns[i]));
        });
        QVariantList whole;
        for (const QVariantList &field : values)
            whole.push_back(QVariant(field));
        return QVariant(whole);
    });
}

QString RecordsetObject::GetString(const QVariant &format, const QVariant &rows,
                                   const QVariant &columnDelimiter, const QVariant &rowDelimiter,
                                   const QVariant &nullText)
{
    return guarded(this, [&] {
        if (number(format, adClipString) != adClipString)
            throw Error(adErrFeatureNotAvailable, Texts::onlyClipString());
        const QString betweenColumns = text(columnDelimiter, u"\t"_s);
        const QString afterRow = text(rowDelimiter, u"\r"_s);
        const QString null = text(nullText, {});
        const int columns = m_recordset.Fields().Count();
        QString whole;
        m_walk->readOn(limitIn(rows), {}, [&](qint64 record) {
            for (int i = 0; i < columns; ++i) {
                if (i > 0)
                    whole += betweenColumns;
                whole += m_recordset.IsNull(record, i) ? null : m_recordset.CellText(record, i);
            }
            whole += afterRow;
        });
        return whole;
    });
}

QObject *RecordsetObject::Clone(qint32)
{
    return guarded(this, [&]() -> QObject * { return new RecordsetObject(m_recordset.Clone(), this); });
}

qint32 RecordsetObject::CompareBookmarks(const QVariant &first, const QVariant &second)
{
    return guarded(this, [&]() -> qint32 {
        const qint64 left = m_walk->recordOf(first);
        const qint64 right = m_walk->recordOf(second);
        return left < right ? 0 : left == right ? 1 : 2;
    });
}

bool RecordsetObject::Supports(qint32 cursorOptions)
{
    return guarded(this, [&] {
        qint32 possible = adHoldRecords | adMovePrevious | adBookmark | adApproxPosition | adNotify | adFind;
        if (m_recordset.IsWritable() && m_recordset.LockType() != adLockReadOnly)
            possible |= adAddNew | adDelete | adUpdate | adResync;
        return (cursorOptions & ~possible) == 0;
    });
}

void RecordsetObject::Save(const QString &fileName, qint32 persistFormat)
{
    guarded(this, [&] {
        if (persistFormat != adPersistXML && persistFormat != adPersistProviderSpecific)
            throw Error(adErrFeatureNotAvailable, Texts::onlyXmlOrCsv());
        if (QFile::exists(fileName))
            throw Error(adErrWriteFile, Texts::fileExists().arg(fileName));
        QSaveFile file(fileName);
        const auto need = [&](bool isDone) {
            if (!isDone)
                throw Error(adErrWriteFile, Texts::fileNotWritten().arg(fileName, file.errorString()));
        };
        need(file.open(QIODevice::WriteOnly));
        const auto write = [&](auto &&writer) {
            m_walk->readAll([&](qint64 record) { writer.write(record); });
            need(writer.end() && file.commit());
        };
        if (persistFormat == adPersistXML)
            write(RecordsetXml(file, m_recordset));
        else
            write(RecordsetCsv(file, m_recordset));
    });
}

void RecordsetObject::Requery(qint32)
{
    guarded(this, [] { throw Error(adErrFeatureNotAvailable, Texts::noRequery()); });
}

void RecordsetObject::UpdateBatch(qint32)
{
    guarded(this, [] { throw Error(adErrFeatureNotAvailable, Texts::noBatch()); });
}

void RecordsetObject::CancelBatch(qint32)
{
    guarded(this, [] { throw Error(adErrFeatureNotAvailable, Texts::noBatch()); });
}

QObject *RecordsetObject::NextRecordset()
{
    guarded(this, [] { throw Error(adErrFeatureNotAvailable, Texts::oneResult()); });
    return nullptr;
}

} // namespace ADODB
