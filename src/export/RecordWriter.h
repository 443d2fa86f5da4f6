#pragma once

#include "ado/Enums.h"
#include "ado/values/RawValue.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {

// One column of what is written.
struct ExportColumn
{
    int field = 0; // 0-based, of the recordset
    QString heading;
    ADODB::DataTypeEnum type = ADODB::adVarWChar;
    int scale = 0;        // digits after the decimal point, where the field says so
    int width = 0;        // pixels at 96 DPI; 0 when nobody knows
    int fittingWidth = 0; // the same for what its heading and texts need
};

using ExportColumns = std::vector<ExportColumn>;

// Converts records to text, in one thread.
class RowTexts
{
public:
    RowTexts() = default;
    virtual ~RowTexts() = default;
    Q_DISABLE_COPY_MOVE(RowTexts)

    // `cells` are those of the record, by field number.
    virtual void append(QByteArray &text, const std::vector<ADODB::RawValue> &cells) = 0;
};

// Writes records in one format. Call begin() once, row() for each record, and end() once.
class RecordWriter
{
public:
    RecordWriter() = default;
    virtual ~RecordWriter() = default;
    Q_DISABLE_COPY_MOVE(RecordWriter)

    // These throw ADODB::Error if the result can't be written.
    virtual void begin(const ExportColumns &columns) = 0;
    // `cells` are those of the record, by field number.
    virtual void row(const std::vector<ADODB::RawValue> &cells) = 0;
    virtual void end() = 0;

    // For formats where the text of a record does not depend on earlier ones: creates these texts, which are
    // then passed to add() instead of calling row(). Call it after begin(). Null for other formats.
    virtual std::unique_ptr<RowTexts> newRowTexts() const { return nullptr; }
    virtual void add(QByteArrayView /*text*/) {}
};

} // namespace KOVAVSFDataGridLib
