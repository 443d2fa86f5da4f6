#pragma once

#include "sql/select/SelectParts.h"

namespace KOVAVSFDataGridLib {

// The sources in FROM, in order.
struct SelectSources
{
    std::vector<SelectParts::Source> sources;
    bool arePlain = true; // see SelectParts::hasPlainSources
    // The subqueries among them, with their brackets. Not LATERAL ones: they are run for each record.
    std::vector<TextRange> derivedTables;

    // `from` is the range between FROM and the next clause.
    static SelectSources in(const SqlScanner &statement, TextRange from);
};

} // namespace KOVAVSFDataGridLib
