#include "query/clsStringComFuncs.h"

#include "query/CharText.h"

namespace KOVAVSFDataGridLib {

using namespace CharText;

bool clsStringComFuncs::QNComSplitString1(const QString &strInput, QStringList &RetStringCol,
                                          const QString &strPrefixSep, const QString &strSuffixSep,
                                          bool bExtend) const
{
    if (strInput.isEmpty() || strPrefixSep.isEmpty() || strSuffixSep.isEmpty())
        return false;
    QString rest = strInput;
    for (auto prefix = Find(rest, strPrefixSep); prefix > 0; prefix = Find(rest, strPrefixSep)) {
        const auto behindPrefix = prefix + strPrefixSep.size();
        if (Find(rest, strSuffixSep, behindPrefix) == 0)
            break;
        if (bExtend)
            RetStringCol.append(First(rest, prefix));
        rest = From(rest, behindPrefix);
    }
    if (bExtend && !rest.isEmpty())
        RetStringCol.append(rest);
    return true;
}

bool clsStringComFuncs::QNComSplitString2(const QString &strInput, QStringList &RetStringCol,
                                          const QString &strSep, bool bHasSep) const
{
    if (strInput.isEmpty() || strSep.isEmpty())
        return false;
    QString rest = strInput;
    for (auto position = Find(rest, strSep); position > 0; position = Find(rest, strSep)) {
        const auto size = bHasSep ? position : position - strSep.size();
        if (size < 0)
            return false;
        RetStringCol.append(First(rest, size));
        rest = From(rest, position + strSep.size());
    }
    if (!rest.isEmpty())
        RetStringCol.append(rest);
    return true;
}

bool clsStringComFuncs::QNComSplitString3(const QString &strInput, QString &strPrptyName,
                                          QString &strPrptyContent, const QString &strSep) const
{
    strPrptyName.clear();
    strPrptyContent.clear();
    const auto position = Find(strInput, strSep);
    if (position == 0)
        return true;
    strPrptyName = First(strInput, position);
    const auto size = strInput.size() - position - strSep.size();
    if (size < 0)
        return false;
    strPrptyContent = Last(strInput, size);
    return true;
}

} // namespace KOVAVSFDataGridLib
