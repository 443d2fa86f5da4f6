#pragma once

#include "ado/providers/access/file/AccessColumn.h"

#include <QtCore/QtGlobal>

namespace ADODB {

class AccessFile;

// The definition of a table: its columns, its key and the pages with its rows. It is parsed here and not by
// libmdb, which trusts the counts and offsets in a damaged definition.
namespace AccessDefinition {

// `page` is the first page of the definition. The result has no name. Throws if the file is damaged.
AccessTable read(const AccessFile &file, quint32 page);

} // namespace AccessDefinition

} // namespace ADODB
