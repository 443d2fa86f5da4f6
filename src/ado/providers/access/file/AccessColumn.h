#pragma once

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// Column types, with their numbers in the file.
enum class AccessType : int {
    YesNo = 0x01,
    Byte = 0x02,
    Integer = 0x03,
    LongInteger = 0x04,
    Currency = 0x05,
    Single = 0x06,
    Double = 0x07,
    DateTime = 0x08,
    Binary = 0x09,
    Text = 0x0a,
    OleObject = 0x0b,
    Memo = 0x0c,
    Guid = 0x0f,
    Numeric = 0x10,
    Complex = 0x12, // an attachment or multiple values; the cell has the number under which they are stored
    LargeNumber = 0x13
};

struct AccessColumn
{
    QString name;
    AccessType type = AccessType::Text;
    int size = 0;         // in bytes; 0 for Memo and OLE objects
    int declaredSize = 0; // the same, but in characters for texts
    int precision = 0;
    int scale = 0;
    bool isAutoNumber = false;
    bool isKey = false;

    // Where a row stores its value.
    int number = 0; // the column's bit in the Null bitmap
    bool isFixed = false;
    int fixedOffset = 0;    // relative to the end of the column count at the start of a row
    int variableNumber = 0; // index among the columns of variable length
};

struct AccessTable
{
    QString name;
    std::vector<AccessColumn> columns;
    qint64 rows = 0; // as stored in the file; an estimate
    quint32 definitionPage = 0;
    std::vector<quint32> pages; // those with its rows, in reading order
    bool hasVariableColumns = false;
};

} // namespace ADODB
