#pragma once

#include "sql/AllDBType.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// What the page for the part fields reads from statements and writes into one.
namespace KOVAVSFDataGridLib::PartFields {

struct NamedFields
{
    QStringList fields; // as written, but for dbAccess without the brackets around a whole name
    QString table;      // the FROM text, without blanks at its ends
    QString words = {}; // DISTINCT and the like before the list
};

// The fields that a SELECT names; "*" and "T.*" name none. Nothing when the statement has no table.
std::optional<NamedFields> read(const QString &statement, AllDBType database);

// The SELECT of these fields, with `words` before its list; empty without fields. For dbAccess each name is
// enclosed in "[" and "]".
QString compose(const QStringList &fields, const QString &table, AllDBType database,
                const QString &words = {});

// Whether both are the same field, brackets or not.
bool isSame(const QString &a, const QString &b);

} // namespace KOVAVSFDataGridLib::PartFields
