#pragma once

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <memory>

// 1,000,000 records of 12 fields: numbers, texts in two scripts, dates, and one field that is always Null.
inline constexpr char millionRecords[] =
    "WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 1000000) "
    "SELECT I, I * 7 AS A, I / 100.0 AS P, '名称' || I AS T, "
    "date('2020-01-01', (I % 1000) || ' days') AS D, I % 2 AS B, I * 1.5 AS R, "
    "'text, with a comma' AS C, NULL AS N, 'x' || (I % 10) AS X, I + 5 AS Y, "
    "'2024-02-29 10:11:12' AS M FROM N";

inline void openMillionRecords(ADODB::Recordset &recordset)
{
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(QStringLiteral("Provider=SQLite;Data Source=:memory:"));
    recordset.Open(QString::fromUtf8(millionRecords), connection);
}
