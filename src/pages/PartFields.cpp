#include "pages/PartFields.h"

#include "query/SharedValues.h"
#include "query/SqlText.h"
#include "query/modQNVSFHFDataMain.h"

#include <QtCore/QRegularExpression>

#include <stdexcept>

namespace KOVAVSFDataGridLib::PartFields {

using namespace Qt::StringLiterals;

namespace {

QString withoutBrackets(const QString &name)
{
    const bool isOnePair = name.startsWith(u'[') && name.indexOf(u']') == name.size() - 1;
    return isOnePair ? name.mid(1, name.size() - 2) : name;
}

// Brackets would make a strange name of an expression or an alias, and can't stand around others.
bool isMoreThanAName(const QString &field)
{
    static const QRegularExpression signs(uR"x([\[\]()"'`]|\sas\s)x"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return field.contains(signs);
}

QString enclosed(const QString &field)
{
    return isMoreThanAName(field) ? field : u'[' + QString(field).replace(u'.', "].["_L1) + u']';
}

} // namespace

std::optional<NamedFields> read(const QString &statement, AllDBType database)
{
    const QString line = JoinStatementLines(statement);
    if (!line.contains("select"_L1, Qt::CaseInsensitive) || GetFromPart(line).isEmpty())
        return std::nullopt;
    NamedFields named;
    named.table = GetSQLTableName(line).trimmed();
    try {
        ParseSelFieldList(line);
    } catch (const std::invalid_argument &) {
        return std::nullopt; // not to be understood: what was listed before is better than half of it
    }
    for (const QString &written : SharedValues::instance().parsed.colSelFields) {
        if (!written.isEmpty() && written != "*"_L1 && !written.endsWith(".*"_L1))
            named.fields += database == dbAccess ? withoutBrackets(written) : written;
    }
    return named.table.isEmpty() ? std::nullopt : std::make_optional(named);
}

QString compose(const QStringList &fields, const QString &table, AllDBType database)
{
    if (fields.isEmpty())
        return {};
    QStringList written;
    for (const QString &field : fields)
        written += database == dbAccess ? enclosed(field) : field;
    return u"select "_s + written.join(u',') + u" from "_s + table;
}

bool isSame(const QString &a, const QString &b)
{
    return withoutBrackets(a).compare(withoutBrackets(b), Qt::CaseInsensitive) == 0;
}

} // namespace KOVAVSFDataGridLib::PartFields
