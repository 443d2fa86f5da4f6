#pragma once

namespace KOVAVSFDataGridLib {

// How a MySQL server reads texts and names, which its sql_mode changes.
struct SqlQuoting
{
    bool backslashEscapes = true; // not with NO_BACKSLASH_ESCAPES
    bool ansiQuotes = false;      // "…" is a name
    bool brackets = false;        // […] is a name

    bool operator==(const SqlQuoting &) const = default;
};

} // namespace KOVAVSFDataGridLib
