#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

namespace ADODB {

// A query as stored in the file: one row per part.
struct AccessQuery
{
    // Values of the column Attribute.
    enum Attribute : qint64 {
        KindRow = 1,
        ParameterRow = 2,
        OptionRow = 3,
        TableRow = 5,
        ColumnRow = 6,
        JoinRow = 7,
        WhereRow = 8,
        GroupRow = 9,
        HavingRow = 10,
        OrderRow = 11
    };

    struct Row
    {
        qint64 attribute = 0;
        qint64 flag = 0;
        QString expression;
        QString name1;
        QString name2;
        QByteArray order; // sorts the rows with the same attribute
    };

    QString name;
    std::vector<Row> rows;

    // The query in Access's SQL, with names in brackets. Empty if it is not a query that only returns
    // records, if it has parameters, or if its joins are not supported.
    QString select() const;
};

} // namespace ADODB
