#pragma once

namespace KOVAVSFDataGridLib {

// What the numbers of all spreadsheets have in common: doubles, of which so many digits are kept and shown.
constexpr int exactDigits = 15;

} // namespace KOVAVSFDataGridLib
