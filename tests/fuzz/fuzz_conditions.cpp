#include "FuzzInput.h"

#include "query/FilterTableName.h"
#include "query/conditions/Conditions.h"
#include "query/conditions/FindText.h"
#include "query/conditions/SelectionText.h"

#include <vector>

using namespace KOVAVSFDataGridLib;
using KovaTest::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList texts = KovaTest::TextsOf(data, size);
    const QString typed = texts.value(0);
    const QString statement = texts.value(1);
    const QString name = texts.value(2);

    const auto words = prepareFindText(typed);
    Require(!words || !words->contains(u"%%"));
    const std::vector<TypedField> fields{{name, 202}, {QStringLiteral("B"), 3}};
    QString condition;
    for (const AllDBType database : {dbAccess, dbOracle, dbSQLServer, AllDBType{}}) {
        if (BuildLikeCondition(typed, fields, statement, database, condition))
            Require(condition.isEmpty() == typed.isEmpty());
        else
            Require(database == AllDBType{} || !GetTableOfSQL(statement));
    }
    // Whatever is typed stays inside its quotes: they come in pairs.
    if (BuildLikeCondition(typed, std::vector<TypedField>{{QStringLiteral("B"), 3}}, QString(), dbSQLServer,
                           condition))
        Require(condition.count(u'\'') % 2 == 0);

    Require(splitText(typed, QStringLiteral("%"), true).join(QString()) == typed);
    const CellFilter filter = buildCellFilter(name, 202, typed);
    Require(filter.condition.isEmpty() || filter.condition.count(u'\'') == 2 + name.count(u'\''));
    const SortTerm term = splitSortTerm(typed);
    Require(typed.startsWith(term.field));
    composeFieldList({{typed, true}, {name, true}});
    SetListFieldCheck({typed}, {name});
    SetFilterTableName(typed);
    const FilterTableName table = SplitFilterTableName(typed);
    Require(table.owner.size() + table.table.size() <= typed.size());
    pressFind(typed, name);
    return 0;
}
