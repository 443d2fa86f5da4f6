#pragma once

#include <QtCore/QStringList>

#include <optional>

namespace ADODB {
class Field;
}

namespace KOVAVSFDataGridLib {

class Session;

// The keys of another table, each with a description for the user.
struct ForeignValues
{
    QStringList keys = {};
    QStringList shown = {};
    bool hasMore = false;
};

// The values that a field can have because it references the key of another table, in order, each with the
// first text field of that table. `search` is a text that the key or the description contains; empty for all.
// No value if the field references no table, or if the engine can't tell.
std::optional<ForeignValues> foreignValues(Session &session, const ADODB::Field &field,
                                           const QString &search);

} // namespace KOVAVSFDataGridLib
