#pragma once

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// The types of columns by the numbers that the file has for them.
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
    Complex = 0x12, // an attachment or several values; the cell holds the number of its rows elsewhere
    LargeNumber = 0x13
};

struct AccessColumn
{
    QString name;
    AccessType type = AccessType::Text;
    int size = 0;         // in bytes; 0 for Memo and OLE objects
    int declaredSize = 0; // the same, but of a text in characters
    int precision = 0;
    int scale = 0;
    bool isAutoNumber = false;
    bool isKey = false;

    // Where a row keeps its value.
    int number = 0; // its bit among those that tell what is Null
    bool isFixed = false;
    int fixedOffset = 0;    // behind the number of columns that a row starts with
    int variableNumber = 0; // among those of variable length
};

struct AccessTable
{
    QString name;
    std::vector<AccessColumn> columns;
    qint64 rows = 0; // as the file says; an estimate
    quint32 definitionPage = 0;
    std::vector<quint32> pages; // of its rows, in the order in which they are read
    bool hasVariableColumns = false;
};

} // namespace ADODB
