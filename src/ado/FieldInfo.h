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
    qint32 numericScale = 0;        // digits behind the decimal point, else 0
    qint32 attributes = 0;          // FieldAttributeEnum bits
    // The table column its values come from; both empty for an expression. A subquery can have taken the
    // value from any row there, so this alone does not make a field one that can be written.
    QString baseTable;
    QString baseColumn;
};

} // namespace ADODB
