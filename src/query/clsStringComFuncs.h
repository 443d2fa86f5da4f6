#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// General text splitting. Every search is letter for letter; found pieces are added to what a list already
// holds. The cuts are exactly as described, also where they keep or lose a character of the separator.
class clsStringComFuncs
{
public:
    // Cuts behind every prefix that a suffix follows. With bExtend each cut adds the text up to and with the
    // prefix's first character, and what is left over at the end. False, and nothing added, when a text is
    // empty.
    bool QNComSplitString1(const QString &strInput, QStringList &RetStringCol, const QString &strPrefixSep,
                           const QString &strSuffixSep, bool bExtend) const;

    // Adds a piece per separator: the text up to and with the separator's first character with bHasSep, else
    // the text before it less the separator's further characters; then what is left over. False when a text
    // is empty or a piece is shorter than the separator's further characters (what was added before stays).
    bool QNComSplitString2(const QString &strInput, QStringList &RetStringCol, const QString &strSep,
                           bool bHasSep = false) const;

    // The name is the text up to and with the separator's first character, the content the text from the
    // second character behind the separator on. False, the content empty, when not even one character follows
    // the separator. Both are empty when there is no separator.
    bool QNComSplitString3(const QString &strInput, QString &strPrptyName, QString &strPrptyContent,
                           const QString &strSep) const;
};

} // namespace KOVAVSFDataGridLib
