#pragma once

#include "sql/select/SelectParts.h"

namespace KOVAVSFDataGridLib {

// What FROM names, in its order.
struct SelectSources
{
    std::vector<SelectParts::Source> sources;
    bool arePlain = true; // see SelectParts::hasPlainSources

    // `from` are the tokens between FROM and the next clause.
    static SelectSources in(const SqlScanner &statement, TextRange from);
};

} // namespace KOVAVSFDataGridLib
