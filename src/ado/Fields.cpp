#include "ado/Fields.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <utility>

namespace ADODB {

void Fields::reset(Recordset &owner, const std::vector<FieldInfo> &infos)
{
    clear();
    for (const FieldInfo &info : infos) {
        const auto index = static_cast<int>(m_fields.size());
        m_fields.emplace_back(owner, index);
        m_indexes.try_emplace(info.name.toCaseFolded(), index);
    }
}

void Fields::clear()
{
    m_fields.clear();
    m_indexes.clear();
}

Field &Fields::Item(int index)
{
    if (index < 0 || index >= Count())
        throw Error(adErrItemNotFound, Texts::noSuchField().arg(index));
    return m_fields[static_cast<std::size_t>(index)];
}

const Field &Fields::Item(int index) const
{
    return const_cast<Fields *>(this)->Item(index);
}

Field &Fields::Item(const QString &name)
{
    const int index = IndexOf(name);
    if (index < 0)
        throw Error(adErrItemNotFound, Texts::noSuchField().arg(name));
    return Item(index);
}

const Field &Fields::Item(const QString &name) const
{
    return const_cast<Fields *>(this)->Item(name);
}

int Fields::IndexOf(const QString &name) const
{
    const auto found = m_indexes.find(name.toCaseFolded());
    return found == m_indexes.end() ? -1 : found->second;
}

} // namespace ADODB
