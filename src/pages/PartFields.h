#pragma once

#include "sql/AllDBType.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

// What the page for the part fields reads from statements and writes into one.
namespace KOVAVSFDataGridLib::PartFields {

struct NamedFields
{
    QStringList fields; // as written, but for dbAccess without the brackets around a whole name
    QString table;      // the FROM text, without blanks at its ends
    QString words = {}; // DISTINCT and the like before the list
    QString group = {}; // GROUP BY and HAVING
};

// The names of the fields that a SELECT of no conditions has; nothing when they can't be read.
using StarReader = std::function<std::optional<QStringList>(const QString &statement)>;

// The fields that a SELECT names; "*" and "T.*" stand for those that the reader gives, without one for none.
// Nothing when the statement has no table.
std::optional<NamedFields> read(const QString &statement, AllDBType database, const StarReader &reader = {});

// The SELECT of these fields; empty without fields. For dbAccess each name is enclosed in "[" and "]".
QString compose(const NamedFields &named, AllDBType database);

// Whether both are the same field, brackets or not.
bool isSame(const QString &a, const QString &b);

} // namespace KOVAVSFDataGridLib::PartFields
