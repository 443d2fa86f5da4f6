#include "query/clsShowSQLSentence.h"

#include "query/derivation/SqlText.h"

namespace KOVAVSFDataGridLib {

bool clsShowSQLSentence::SeperateSQL(qint32)
{
    const auto sentence = SplitSQLSentence(ShowSQL);
    return sentence && UpdateSQLCompoment(sentence->fields, sentence->where, sentence->order);
}

bool clsShowSQLSentence::CompoundSQL(qint32)
{
    return false;
}

bool clsShowSQLSentence::UpdateSQLCompoment(const QString &strTableFields, const QString &strWhere,
                                            const QString &strOrder)
{
    SQLFields = strTableFields;
    SQLWhere = strWhere;
    SQLOrder = strOrder;
    return true;
}

bool clsShowSQLSentence::GetCurrUseOrderFieldSQL(QString &strCurrOrder) const
{
    strCurrOrder = CurrOrderFields.isEmpty() ? OrderFields : CurrOrderFields;
    return true;
}

bool clsShowSQLSentence::GetCurrUsePartFieldSQL(QString &strCurrSQL) const
{
    strCurrSQL = CurrPartFields.isEmpty() ? PartFields : CurrPartFields;
    return !strCurrSQL.isEmpty();
}

} // namespace KOVAVSFDataGridLib
