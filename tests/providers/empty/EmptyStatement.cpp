#include "providers/empty/EmptyStatement.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/rows/RowStore.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

EmptyStatement::EmptyStatement(qint64 rows) : m_rows(rows), m_fields(2)
{
    m_fields[0].name = u"number"_s;
    m_fields[0].type = adBigInt;
    m_fields[1].name = u"text"_s;
    m_fields[1].type = adVarWChar;
}

void EmptyStatement::fetch(RowStore &rows, const std::function<bool(qint64)> &shouldContinue)
{
    constexpr qint64 rowsBetweenQuestions = 1000; // well below 20 ms
    for (qint64 row = 1; row <= m_rows; ++row) {
        if (row % rowsBetweenQuestions == 0 && !shouldContinue(rows.rows()))
            throw Error(dbErrCancelled, Texts::cancelled());
        rows.addInteger(row);
        rows.addText(QByteArray::number(row));
        rows.endRow();
    }
}

QString EmptyStatement::whyReadOnly() const
{
    return Texts::readOnlyNoTable();
}

} // namespace ADODB
