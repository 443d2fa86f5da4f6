#include "sql/words/KnownFunctions.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr QStringView aggregates[] = {u"ANY_VALUE",
                                      u"APPROX_COUNT_DISTINCT",
                                      u"ARRAY_AGG",
                                      u"AVG",
                                      u"BIT_AND",
                                      u"BIT_OR",
                                      u"BIT_XOR",
                                      u"BOOL_AND",
                                      u"BOOL_OR",
                                      u"CHECKSUM_AGG",
                                      u"COLLECT",
                                      u"CORR",
                                      u"COUNT",
                                      u"COUNT_BIG",
                                      u"COVAR_POP",
                                      u"COVAR_SAMP",
                                      u"CUME_DIST",
                                      u"DENSE_RANK",
                                      u"EVERY",
                                      u"FIRST",
                                      u"GROUPING",
                                      u"GROUPING_ID",
                                      u"GROUP_CONCAT",
                                      u"JSONB_AGG",
                                      u"JSONB_AGG_STRICT",
                                      u"JSONB_GROUP_ARRAY",
                                      u"JSONB_GROUP_OBJECT",
                                      u"JSONB_OBJECT_AGG",
                                      u"JSON_AGG",
                                      u"JSON_ARRAYAGG",
                                      u"JSON_GROUP_ARRAY",
                                      u"JSON_GROUP_OBJECT",
                                      u"JSON_OBJECTAGG",
                                      u"JSON_OBJECT_AGG",
                                      u"LAST",
                                      u"LISTAGG",
                                      u"MAX",
                                      u"MEDIAN",
                                      u"MIN",
                                      u"MODE",
                                      u"PERCENTILE_CONT",
                                      u"PERCENTILE_DISC",
                                      u"PERCENT_RANK",
                                      u"RANGE_AGG",
                                      u"RANGE_INTERSECT_AGG",
                                      u"RANK",
                                      u"REGR_AVGX",
                                      u"REGR_AVGY",
                                      u"REGR_COUNT",
                                      u"REGR_INTERCEPT",
                                      u"REGR_R2",
                                      u"REGR_SLOPE",
                                      u"REGR_SXX",
                                      u"REGR_SXY",
                                      u"REGR_SYY",
                                      u"STATS_MODE",
                                      u"STD",
                                      u"STDDEV",
                                      u"STDDEV_POP",
                                      u"STDDEV_SAMP",
                                      u"STDEV",
                                      u"STDEVP",
                                      u"STRING_AGG",
                                      u"SUM",
                                      u"TOTAL",
                                      u"VAR",
                                      u"VARIANCE",
                                      u"VARP",
                                      u"VAR_POP",
                                      u"VAR_SAMP",
                                      u"WM_CONCAT",
                                      u"XMLAGG"};

constexpr QStringView rowFunctions[] = {u"GENERATE_SERIES",
                                        u"GENERATE_SUBSCRIPTS",
                                        u"JSONB_ARRAY_ELEMENTS",
                                        u"JSONB_ARRAY_ELEMENTS_TEXT",
                                        u"JSONB_EACH",
                                        u"JSONB_EACH_TEXT",
                                        u"JSONB_OBJECT_KEYS",
                                        u"JSONB_PATH_QUERY",
                                        u"JSONB_POPULATE_RECORDSET",
                                        u"JSON_ARRAY_ELEMENTS",
                                        u"JSON_ARRAY_ELEMENTS_TEXT",
                                        u"JSON_EACH",
                                        u"JSON_EACH_TEXT",
                                        u"JSON_OBJECT_KEYS",
                                        u"JSON_POPULATE_RECORDSET",
                                        u"REGEXP_MATCHES",
                                        u"REGEXP_SPLIT_TO_TABLE",
                                        u"STRING_TO_TABLE",
                                        u"UNNEST"};

template<std::size_t Count>
bool contains(const QStringView (&names)[Count], QStringView name)
{
    return std::ranges::any_of(names, [&](QStringView known) {
        return known.size() == name.size() && known.compare(name, Qt::CaseInsensitive) == 0;
    });
}

} // namespace

bool isAggregateFunction(QStringView name)
{
    return contains(aggregates, name);
}

bool isRowFunction(QStringView name)
{
    return contains(rowFunctions, name);
}

} // namespace KOVAVSFDataGridLib
