#pragma once

#include "Field.h"

#include <unordered_map>
#include <vector>

namespace ADODB {

// The columns of a recordset; empty while it is closed. Owned by the recordset.
class KOVA_EXPORT Fields
{
public:
    // How many there are.
    qint32 Count() const { return static_cast<qint32>(m_fields.size()); }
    // By 0-based index, or by name (case-insensitive; the first field if a name occurs twice). Throws 3265 if
    // there is no such field.
    Field &Item(int index);
    const Field &Item(int index) const;
    Field &Item(const QString &name);
    const Field &Item(const QString &name) const;
    // The 0-based index of a name, -1 when there is none.
    int IndexOf(const QString &name) const;

private:
    friend class Recordset;
    void reset(Recordset &owner, const std::vector<FieldInfo> &infos);
    void clear();

    std::vector<Field> m_fields;
    std::unordered_map<QString, int> m_indexes; // by name in folded case
};

} // namespace ADODB
