#pragma once

#include "ado/FieldInfo.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

// The SQLSTATE for a record that is refused because a field has no value. Providers set it whenever they know
// that this is the reason.
inline const QString nullRefused = QStringLiteral("23502");

// The name of the field in `withoutValue` that such an error is about; empty if it can't be determined.
// `words` is the database's own message, in any language, but with the column's name.
QString missingField(const QString &words, const std::vector<FieldInfo> &withoutValue);

} // namespace ADODB
