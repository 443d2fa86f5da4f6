#pragma once

namespace KOVAVSFDataGridLib {

// How a MySQL server reads strings and names; depends on its sql_mode.
struct SqlQuoting
{
    bool backslashEscapes = true; // false with NO_BACKSLASH_ESCAPES
    bool ansiQuotes = false;      // "…" is a name
    bool brackets = false;        // […] is a name

    bool operator==(const SqlQuoting &) const = default;
};

} // namespace KOVAVSFDataGridLib
