#include "export/writers/FormulaGuard.h"

#include <algorithm>
#include <array>

namespace KOVAVSFDataGridLib {

namespace {

bool isPlainNumber(QByteArrayView text)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto unsignedPart = text.sliced(1);
    return !unsignedPart.isEmpty() &&
           std::all_of(unsignedPart.begin(), unsignedPart.end(),
                       [&](char c) { return isDigit(c) || c == '.'; }) &&
           std::count(unsignedPart.begin(), unsignedPart.end(), '.') <= 1 &&
           std::any_of(unsignedPart.begin(), unsignedPart.end(), isDigit);
}

} // namespace

bool isFormula(QByteArrayView utf8)
{
    if (utf8.isEmpty())
        return false;
    switch (utf8.front()) {
    case '+':
    case '-':
        return !isPlainNumber(utf8);
    case '=':
    case '@':
    case '\t':
    case '\r':
    case '\n':
        return true;
    case '\xef': {
        static constexpr std::array wide{"＝", "＋", "－", "＠"};
        return std::any_of(wide.begin(), wide.end(), [&](const char *sign) { return utf8.startsWith(sign); });
    }
    default:
        return false;
    }
}

} // namespace KOVAVSFDataGridLib
