#pragma once

#include "sql/AllDBType.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

// Reading and writing of the part fields in statements, for their page.
namespace KOVAVSFDataGridLib::PartFields {

struct NamedFields
{
    QStringList fields; // as written, but for dbAccess without brackets around a whole name
    QString table;      // the trimmed FROM text
    QString words = {}; // DISTINCT and the like before the list
    QString group = {}; // GROUP BY and HAVING
};

// Returns the field names of a SELECT without conditions; nothing if they can't be read.
using StarReader = std::function<std::optional<QStringList>(const QString &statement)>;

// The fields named in a SELECT. For "*" and "T.*" the reader is called; without a reader they mean no fields.
// Nothing if the statement has no table.
std::optional<NamedFields> read(const QString &statement, AllDBType database, const StarReader &reader = {});

// A SELECT of these fields; empty if there are none. For dbAccess each name is enclosed in "[" and "]".
QString compose(const NamedFields &named, AllDBType database);

// Whether both are the same field, with or without brackets.
bool isSame(const QString &a, const QString &b);

} // namespace KOVAVSFDataGridLib::PartFields
