#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

namespace ADODB {

// A query as the file keeps it: one row for each of its parts.
struct AccessQuery
{
    // What the number in a row's Attribute means.
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
        QByteArray order; // among the rows with the same attribute
    };

    QString name;
    std::vector<Row> rows;

    // The query as a statement of Access's SQL, names in brackets; empty when it is no query that only gives
    // records, asks for parameters, or joins its tables in a way that this does not follow.
    QString select() const;
};

} // namespace ADODB
