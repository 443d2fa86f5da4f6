#include "session/WindowRules.h"

#include <cmath>

namespace KOVAVSFDataGridLib {

namespace {

int truncated(double twips)
{
    return static_cast<int>(twips);
}

int rounded(double twips)
{
    return static_cast<int>(std::lround(twips));
}

} // namespace

const WindowRules controlRules = {
    .hasAllCommands = true,
    .worksOnLentResult = false,
    .writesFilter = true,
    .asksHostForCondition = true,
    .trimsCondition = false,
    .remembersForDialogs = true,
    .choosesFieldsWithoutRecords = true,
    .alwaysResetsWidths = false,
    .alwaysOpensFields = false,
    .narrowsShown = false,
    .movesRecordset = true,
    .fillsToTheEnd = false,
    .keepsTypedPage = false,
    .beginsWithHostSort = false,
    .reportsOpenErrors = true,
    .compressShowsHidden = false,
    .roundWidth = truncated,
};

const WindowRules viewerRules = {
    .hasAllCommands = false,
    .worksOnLentResult = true,
    .writesFilter = false,
    .asksHostForCondition = false,
    .trimsCondition = true,
    .remembersForDialogs = false,
    .choosesFieldsWithoutRecords = false,
    .alwaysResetsWidths = true,
    .alwaysOpensFields = true,
    .narrowsShown = true,
    .movesRecordset = false,
    .fillsToTheEnd = true,
    .keepsTypedPage = true,
    .beginsWithHostSort = true,
    .reportsOpenErrors = false,
    .compressShowsHidden = true,
    .roundWidth = rounded,
};

} // namespace KOVAVSFDataGridLib
