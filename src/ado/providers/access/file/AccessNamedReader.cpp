#include "ado/providers/access/file/AccessNamedReader.h"

#include <algorithm>

namespace ADODB {

RawValue AccessNamedReader::value(QLatin1StringView name)
{
    const std::vector<AccessColumn> &columns = m_reader.table().columns;
    const auto column = std::find_if(columns.begin(), columns.end(),
                                     [&](const AccessColumn &candidate) { return candidate.name == name; });
    return column == columns.end() ? RawValue() : m_reader.value(static_cast<int>(column - columns.begin()));
}

} // namespace ADODB
