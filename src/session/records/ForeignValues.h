#pragma once

#include <QtCore/QStringList>

#include <optional>

namespace ADODB {
class Field;
}

namespace KOVAVSFDataGridLib {

class Session;

// The keys of another table, each with what a person reads beside it.
struct ForeignValues
{
    QStringList keys = {};
    QStringList shown = {};
    bool hasMore = false;
};

// The values that a field can take because it refers to the key of another table, in order, with the first
// text field of that table. `search` is a text that the key or the text contains; all where it is empty.
// Nothing for a field that refers to none, and on engines that can't be asked.
std::optional<ForeignValues> foreignValues(Session &session, const ADODB::Field &field,
                                           const QString &search);

} // namespace KOVAVSFDataGridLib
