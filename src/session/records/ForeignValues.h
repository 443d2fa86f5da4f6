#pragma once

#include <QtCore/QStringList>

#include <optional>

namespace ADODB {
class Field;
}

namespace KOVAVSFDataGridLib {

class Session;

// The values that a field can take because it refers to the key of another table, in order; nothing for a
// field that refers to none, on engines that can't be asked, and where there are too many to pick from.
std::optional<QStringList> foreignValues(Session &session, const ADODB::Field &field);

} // namespace KOVAVSFDataGridLib
