#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// General text splitting. All searches are case-sensitive. Pieces are appended to the lists. The results are
// exactly as described, even where they keep or lose a character of the separator.
class clsStringComFuncs
{
public:
    // Splits after every prefix that is followed by a suffix. With bExtend, each piece includes the text up
    // to and including the prefix's first character, and the rest is added at the end. Returns false and adds
    // nothing if a text is empty.
    bool QNComSplitString1(const QString &strInput, QStringList &RetStringCol, const QString &strPrefixSep,
                           const QString &strSuffixSep, bool bExtend) const;

    // Adds a piece per separator: with bHasSep the text up to and including the separator's first character,
    // otherwise the text before it without as many characters as the separator has after its first; then the
    // rest. Returns false if a text is empty or a piece is too short for that (earlier pieces stay).
    bool QNComSplitString2(const QString &strInput, QStringList &RetStringCol, const QString &strSep,
                           bool bHasSep = false) const;

    // The name is the text up to and including the separator's first character. The content starts at the
    // second character after the separator. Returns false with empty content if no character follows the
    // separator. Both are empty if there is no separator.
    bool QNComSplitString3(const QString &strInput, QString &strPrptyName, QString &strPrptyContent,
                           const QString &strSep) const;
};

} // namespace KOVAVSFDataGridLib
