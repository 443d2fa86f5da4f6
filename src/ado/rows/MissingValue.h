#pragma once

#include "ado/FieldInfo.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// The SQLSTATE of a database that refuses a record because a field has no value. Providers give it wherever
// they know that this is the reason.
inline const QString nullRefused = QStringLiteral("23502");

// The name of the field that such a refusal is about, of those that have no value; empty when nobody can
// tell. `words` are the database's own: in any language, but with the column's name.
QString missingField(const QString &words, const std::vector<FieldInfo> &withoutValue);

} // namespace ADODB
