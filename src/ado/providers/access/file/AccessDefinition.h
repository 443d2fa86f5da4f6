#pragma once

#include "ado/providers/access/file/AccessColumn.h"

#include <QtCore/QtGlobal>

namespace ADODB {

class AccessFile;

// The definition of a table: its columns, its key and the pages of its rows. It is read from the file's own
// bytes, because libmdb trusts the counts and places that a damaged definition gives.
namespace AccessDefinition {

// The definition begins on `page`. The answer has no name. Throws the error of a damaged file.
AccessTable read(const AccessFile &file, quint32 page);

} // namespace AccessDefinition

} // namespace ADODB
