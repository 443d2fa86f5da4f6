#pragma once

#include "ado/providers/access/file/AccessColumn.h"
#include "ado/providers/access/file/AccessPage.h"

#include <optional>

namespace ADODB {

// Finds the fields in the bytes of one row. The bytes must outlive it. Throws the error of a damaged file
// when they can't be a row.
class AccessRow
{
public:
    AccessRow() = default;
    // `hasVariableColumns` is the table's. Rows of Jet 3 (Access 97) have shorter numbers.
    AccessRow(QByteArrayView bytes, bool hasVariableColumns, bool isJet3);

    // Nothing for Null and for a column that is younger than the row.
    std::optional<QByteArrayView> field(const AccessColumn &column) const;
    // The value of a Yes/No column, which takes no room in a row.
    bool flag(const AccessColumn &column) const;

private:
    int variableStart(int variable) const;

    QByteArrayView m_bytes;
    bool m_isJet3 = false;
    qsizetype m_flags = 0; // where the bits begin that tell what is not Null
    int m_variableColumns = 0;
};

} // namespace ADODB
