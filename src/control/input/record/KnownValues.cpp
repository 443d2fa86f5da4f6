#include "control/input/record/KnownValues.h"

#include "ado/Recordset.h"
#include "control/input/record/FieldRules.h"
#include "control/parts/GridTexts.h"
#include "filter/FilterTexts.h"
#include "filter/conditions/FilterValue.h"
#include "session/Session.h"
#include "session/records/ForeignValues.h"

#include <QtCore/QSet>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr qint64 recordsSearched = 20000; // for the values that a column has
constexpr qsizetype mostValues = 200;

// In order. If there are more than are listed, one more.
QStringList valuesOfColumn(const ADODB::Recordset &recordset, int field, const QString &search)
{
    const qint64 last = std::min(recordset.RecordCount(), recordsSearched);
    QSet<QString> found;
    for (qint64 record = 1; record <= last && found.size() <= mostValues; ++record) {
        const QString text = shownFormat(recordset, record, field).applied(recordset.CellText(record, field));
        if (!text.isEmpty() && !text.contains(u'\n') && text.contains(search, Qt::CaseInsensitive))
            found.insert(text);
    }
    QStringList values = found.values();
    if (fieldClassOf(recordset.Fields().Item(field).Type()) == FieldClass::Number)
        std::ranges::sort(values, {}, [](const QString &number) { return number.toDouble(); });
    else
        values.sort();
    return values;
}

} // namespace

ListedValues knownValues(Session &session, int field, const QString &search)
{
    const ADODB::Recordset &recordset = *session.result().recordset();
    ListedValues list;
    bool hasMore = false;
    if (auto foreign = foreignValues(session, recordset.Fields().Item(field), search)) {
        list = {.values = foreign->keys, .shown = foreign->shown};
        hasMore = foreign->hasMore;
    } else {
        const QStringList values = valuesOfColumn(recordset, field, search);
        list.values = values.first(std::min(values.size(), mostValues));
        hasMore = values.size() > mostValues;
    }
    if (hasMore)
        list.end = GridTexts::MoreValuesByTyping;
    else if (list.values.isEmpty())
        list.end = search.isEmpty() ? FilterTexts::NoValues() : FilterTexts::NothingFound.arg(search);
    return list;
}

} // namespace KOVAVSFDataGridLib
