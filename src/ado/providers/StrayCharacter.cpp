#include "ado/providers/StrayCharacter.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "sql/SqlScanner.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

void refuseStrayCharacter(const SqlScanner &statement, const QString &source)
{
    const qsizetype place = statement.strayCharacter();
    if (place < 0)
        return;
    const QString code = u"%1"_s.arg(statement.sql().at(place).unicode(), 4, 16, QLatin1Char('0')).toUpper();
    throw Error(dbErrPermissionDenied, Texts::strayCharacter().arg(place + 1).arg(code), source, u"42000"_s);
}

} // namespace ADODB
