#include "query/FilterTableName.h"

#include "query/derivation/SqlText.h"
#include "sql/Brackets.h"

namespace KOVAVSFDataGridLib {

QString SetFilterTableName(const QString &name)
{
    return withoutBrackets(name);
}

FilterTableName SplitFilterTableName(const QString &name)
{
    const auto dot = name.indexOf(u'.');
    if (dot < 0)
        return {};
    const auto quote = QStringLiteral("\"");
    return {CutStringEnds(name.first(dot), quote, CutBoth), CutStringEnds(name.mid(dot + 1), quote, CutBoth)};
}

} // namespace KOVAVSFDataGridLib
