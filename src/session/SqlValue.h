#pragma once

#include "sql/AllDBType.h"
#include "sql/Engine.h"

#include <QtCore/QVariant>

// Names and values as a statement for the database at hand writes them.
namespace KOVAVSFDataGridLib {

struct SqlWriting
{
    AllDBType database = dbAccess;
    Engine engine = Engine::Other;
};

QString SqlName(const SqlWriting &writing, const QString &name);
// A Null is written NULL, bytes as the engine's form of hexadecimal digits.
QString SqlValue(const SqlWriting &writing, const QVariant &value);

} // namespace KOVAVSFDataGridLib
