#include "filter/ticks/ColumnTicks.h"

#include "ado/Error.h"
#include "filter/FilterSource.h"
#include "filter/FilterTexts.h"
#include "filter/conditions/TickedValues.h"
#include "filter/ticks/TicksDialog.h"
#include "query/SharedValues.h"
#include "query/conditions/Conditions.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

FilterSource sourceOf(const FilterRequest &request)
{
    FilterSource source;
    source.setDatabase(request.dbType);
    if (isConnectionNeeded(request))
        source.setConnection(request.connection);
    else
        source.setConnectionString(request.connectionString);
    if (request.result)
        source.setResult(*request.result);
    else
        source.setTable(GetTableOfSQL(request.sqlShow).value_or(QString()));
    return source;
}

// Throws ADODB::Error.
FilterField fieldOf(FilterSource &source, const QString &caption, const QString &written)
{
    const std::vector<FilterField> fields = source.readFields();
    auto found = std::ranges::find(fields, written, &FilterField::written);
    if (found == fields.end())
        found = std::ranges::find_if(fields, [&](const FilterField &field) {
            return field.written.compare(written, Qt::CaseInsensitive) == 0;
        });
    if (found == fields.end())
        found = std::ranges::find(fields, caption, &FilterField::caption);
    if (found == fields.end())
        throw ADODB::Error(ADODB::adErrItemNotFound, FilterTexts::FieldMissing.arg(caption));
    return *found;
}

} // namespace

std::optional<ColumnChoice> askColumnTicks(QWidget *parent, const FilterRequest &request,
                                           const QString &written)
{
    FilterSource source = sourceOf(request);
    FilterField field;
    QString fault; // if fields can't be read, the list of values shows the reason
    try {
        field = fieldOf(source, request.field, written);
    } catch (const ADODB::Error &error) {
        fault = error.Description();
    }
    const auto answer = askTicks(
        parent,
        {.title = FilterTexts::TicksTitle.arg(request.field),
         .fieldClass = field.fieldClass,
         .requests =
             [&](const QString &search) {
                 if (!fault.isEmpty())
                     throw ADODB::Error(ADODB::adErrItemNotFound, fault);
                 return source.tickRequest(field, request.condition, search);
             },
         .ticked = tickedValuesOf(QJsonDocument::fromJson(request.built.toUtf8()).object()),
         .canChoose = [&](const TickedValues &ticked) { return fault.isEmpty() && !ticked.isNothing(); },
         .whyNot =
             [&](const TickedValues &ticked) { return conditionOf(source.dialect(), field, ticked).fault; },
         .offersBuilder = true});
    if (!answer)
        return {};
    if (answer->wantsBuilder)
        return ColumnChoice{.wantsBuilder = true};
    return ColumnChoice{
        .condition = conditionOf(source.dialect(), field, answer->ticked).sql,
        .built = QString::fromUtf8(QJsonDocument(toJson(answer->ticked)).toJson(QJsonDocument::Compact))};
}

} // namespace KOVAVSFDataGridLib
