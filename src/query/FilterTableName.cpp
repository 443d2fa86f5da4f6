#include "query/FilterTableName.h"

#include "query/derivation/SqlText.h"

namespace KOVAVSFDataGridLib {

QString SetFilterTableName(const QString &name)
{
    return CutStringEnds(CutStringEnds(name, QStringLiteral("["), 1), QStringLiteral("]"), 2);
}

FilterTableName SplitFilterTableName(const QString &name)
{
    const auto dot = name.indexOf(u'.');
    if (dot < 0)
        return {};
    const auto quote = QStringLiteral("\"");
    return {CutStringEnds(name.first(dot), quote, 3), CutStringEnds(name.mid(dot + 1), quote, 3)};
}

} // namespace KOVAVSFDataGridLib
