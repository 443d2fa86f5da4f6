#include "sql/Brackets.h"

#include <QtCore/QRegularExpression>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QString inBrackets(const QString &name)
{
    return u'[' + name + u']';
}

QString partsInBrackets(const QString &name)
{
    return inBrackets(QString(name).replace(u'.', "].["_L1));
}

bool hasBracket(const QString &name)
{
    return name.startsWith(u'[') || name.endsWith(u']');
}

bool isMoreThanAName(const QString &field)
{
    static const QRegularExpression signs(uR"x([\[\]()"'`*/+|<>=-]|\sas\s)x"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return field.contains(signs);
}

QString withoutBrackets(QString name)
{
    if (name.startsWith(u'['))
        name.remove(0, 1);
    if (name.endsWith(u']'))
        name.chop(1);
    return name;
}

QString withoutSpareBrackets(const QString &name)
{
    static const QRegularExpression spare(uR"(\A\[([\p{L}\p{N}_ ]+)\]\z)"_s,
                                          QRegularExpression::UseUnicodePropertiesOption);
    const auto match = spare.match(name);
    return match.hasMatch() ? match.captured(1) : name;
}

} // namespace KOVAVSFDataGridLib
