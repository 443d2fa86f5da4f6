#pragma once

#include "ado/providers/access/file/AccessColumn.h"
#include "ado/providers/access/file/AccessPage.h"

#include <optional>

namespace ADODB {

// Finds the fields in the bytes of one row. The bytes must outlive it. Throws the error for a damaged file if
// the bytes can't be a row.
class AccessRow
{
public:
    AccessRow() = default;
    // `hasVariableColumns` is a property of the table. Rows of Jet 3 (Access 97) use smaller numbers.
    AccessRow(QByteArrayView bytes, bool hasVariableColumns, bool isJet3);

    // Empty for Null, and for a column that was added after the row was written.
    std::optional<QByteArrayView> field(const AccessColumn &column) const;
    // The value of a Yes/No column. It is stored in the bitmap, not in a field.
    bool flag(const AccessColumn &column) const;

private:
    int variableStart(int variable) const;

    QByteArrayView m_bytes;
    bool m_isJet3 = false;
    qsizetype m_flags = 0; // offset of the bitmap of columns that are not Null
    int m_variableColumns = 0;
};

} // namespace ADODB
