#include "session/records/SqlValue.h"

#include "ado/ValueText.h"
#include "sql/Literals.h"

#include <cmath>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QString sqlValue(const Dialect &dialect, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return u"NULL"_s;
    case QMetaType::Bool:
        return scriptBoolean(dialect, value.toBool());
    case QMetaType::Double:
        if (!std::isfinite(value.toDouble()))
            return scriptText(dialect, ADODB::ValueText(value));
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
        return ADODB::ValueText(value);
    case QMetaType::QByteArray:
        return scriptBytes(dialect, value.toByteArray());
    case QMetaType::QDate:
        return scriptDate(dialect, ADODB::ValueText(value));
    case QMetaType::QDateTime:
        return scriptMoment(dialect, ADODB::ValueText(value));
    default:
        return scriptText(dialect, ADODB::ValueText(value));
    }
}

} // namespace KOVAVSFDataGridLib
