#pragma once

#include "Enums.h"

#include <QtCore/QString>

namespace ADODB {

// What a provider says about one column of a statement.
struct FieldInfo
{
    QString name;                   // the column's heading
    DataTypeEnum type = adVarWChar; // the type of its values
    qint32 definedSize = 0;         // characters or bytes; 0 when unlimited or unknown
    qint32 precision = 0;           // decimal digits of a number, else 0
    qint32 numericScale = 0;        // digits after the decimal point, else 0
    qint32 attributes = 0;          // FieldAttributeEnum bits
    // The table and column that its values come from; both empty for an expression. In a subquery the value
    // can come from any row, so a field with these is not always writable.
    QString baseTable;
    QString baseColumn;
    bool hasKnownOrder = true; // see Field::HasKnownOrder
};

} // namespace ADODB
