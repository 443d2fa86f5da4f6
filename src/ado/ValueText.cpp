#include "ado/ValueText.h"

#include "ado/Texts.h"

#include <QtCore/QDateTime>
#include <QtCore/QUuid>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

QString dateText(QDate date)
{
    // ISODate is fast, but supports only the years 0 to 9999.
    const QString text = date.toString(Qt::ISODate);
    return text.isEmpty() ? date.toString(u"yyyy-MM-dd") : text;
}

QString timeText(QTime time)
{
    if (time.msec() == 0)
        return time.toString(Qt::ISODate);
    QString text = time.toString(Qt::ISODateWithMs);
    while (text.endsWith(u'0'))
        text.chop(1);
    return text;
}

// Adding 0 turns -0 into 0.
QString realText(double value, int digits)
{
    return QString::number(value + 0.0, 'G', digits);
}

} // namespace

QString ValueText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return {};
    case QMetaType::Bool:
        return value.toBool() ? u"True"_s : u"False"_s;
    case QMetaType::Double:
        return realText(value.toDouble(), 15);
    case QMetaType::Float: // more digits would be artefacts of the conversion
        return realText(value.toDouble(), 7);
    case QMetaType::QDate:
        return dateText(value.toDate());
    case QMetaType::QTime:
        return timeText(value.toTime());
    case QMetaType::QDateTime: {
        const QDateTime moment = value.toDateTime();
        return dateText(moment.date()) + u' ' + timeText(moment.time());
    }
    case QMetaType::QUuid:
        return value.toUuid().toString();
    case QMetaType::QByteArray: {
        const qsizetype size = value.toByteArray().size();
        return Texts::bytes.arg(size, QString::number(size));
    }
    default:
        return value.toString();
    }
}

} // namespace ADODB
