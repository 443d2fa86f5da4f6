#include "query/Conditions.h"

#include "query/CharText.h"
#include "query/QueryTexts.h"
#include "sql/Like.h"
#include "sql/Literals.h"
#include "sql/Names.h"

#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

using Search = qsizetype (*)(const QString &, const QString &);

qsizetype FindAsWritten(const QString &text, const QString &word)
{
    return Find(text, word);
}

template<std::size_t Count>
bool Contains(const std::array<qint32, Count> &types, qint32 adoType)
{
    return std::binary_search(types.begin(), types.end(), adoType);
}

// What Access is to write before ".[field]": the FROM text when it is one name, the alias when one follows,
// else nothing, because the fields of a join can't be told apart by its text.
QString TableQualifier(const QString &fromText)
{
    static const QRegularExpression oneName = [] {
        const auto part = QStringLiteral(R"((?:\[[^\]]+\]|"[^"]+"|[\p{L}_][\p{L}\p{N}_$#]*))");
        const auto name = QStringLiteral(R"(%1(?:\.%1)*)").arg(part);
        return QRegularExpression(QStringLiteral(R"(\A(%1)(?: +(?:AS +)?(%1))?\z)").arg(name),
                                  QRegularExpression::CaseInsensitiveOption |
                                      QRegularExpression::UseUnicodePropertiesOption);
    }();
    const auto match = oneName.match(fromText);
    return match.captured(match.lastCapturedIndex() == 2 ? 2 : 1);
}

bool IsBinary(std::optional<qint32> adoType)
{
    return adoType == 128 || adoType == 204 || adoType == 205;
}

// The field as it is written; empty when it can't be searched, nothing when nobody can tell.
std::optional<QString> SearchedField(const TypedField &field, AllDBType database, const QString &qualifier,
                                     Engine engine)
{
    if (LikesTextsOnly(engine) && IsBinary(field.adoType))
        return QString();
    if (database == dbOracle || database == dbSQLServer)
        return WrittenName(DialectOf(database, engine), field.name);
    if (database != dbAccess)
        return QString();
    if (!field.adoType)
        return std::nullopt;
    if (ClassifyFieldType(*field.adoType) == u"0")
        return QString();
    return (qualifier.isEmpty() ? QString() : qualifier + u'.') + u'[' + field.name + u']';
}

std::optional<QStringList> SearchedFields(std::span<const TypedField> fields, AllDBType database,
                                          const QString &strSQL, Engine engine)
{
    const auto table = GetTableOfSQL(strSQL);
    if (!table)
        return std::nullopt;
    const QString qualifier = database == dbAccess ? TableQualifier(*table) : QString();
    QStringList searched;
    for (const TypedField &field : fields) {
        const auto name = SearchedField(field, database, qualifier, engine);
        if (!name)
            return std::nullopt;
        if (!name->isEmpty())
            searched.append(LikeOperand(engine, *name));
    }
    return searched;
}

QString WordCondition(const QStringList &searchedFields, const QString &word, Engine engine)
{
    const QString pattern = QStringLiteral(" LIKE ") +
                            TextLiteral(DialectOf({}, engine), u'%' + LikePattern(engine, word) + u'%') +
                            u' ';
    return searchedFields.join(pattern + QStringLiteral("OR ")) + pattern;
}

// Numbers are compared as numbers where LIKE takes none: as texts they may end in more digits than are shown.
QString NumberCondition(const QString &field, qint32 adoType, const QString &cellText, Engine engine)
{
    constexpr qint32 single = 4;
    constexpr qint32 guid = 72;
    if (!LikesTextsOnly(engine))
        return field + QStringLiteral(" like ") + cellText;
    if (adoType == guid)
        return field + QStringLiteral(" = ") + TextLiteral(DialectOf({}, engine), cellText);
    // Only as a number of the same few digits it is the same number.
    return field + QStringLiteral(" = ") +
           (adoType == single ? QStringLiteral("CAST(%1 AS REAL)").arg(cellText) : cellText);
}

} // namespace

QStringList SplitText(const QString &text, const QString &separator, bool keepsSeparator)
{
    if (text.isEmpty())
        return {};
    if (separator.isEmpty())
        return {text};
    QStringList pieces = text.split(separator);
    const QString rest = pieces.takeLast();
    if (keepsSeparator) {
        for (QString &piece : pieces)
            piece += separator;
    }
    if (!rest.isEmpty())
        pieces.append(rest);
    return pieces;
}

QString ClassifyFieldType(qint32 adoType)
{
    static constexpr std::array<qint32, 14> numbers{2, 3, 4, 5, 14, 16, 17, 18, 19, 20, 21, 72, 131, 139};
    static constexpr std::array<qint32, 7> texts{8, 129, 130, 200, 201, 202, 203};
    static constexpr std::array<qint32, 5> dates{7, 64, 133, 134, 135};
    if (Contains(numbers, adoType))
        return QStringLiteral("1");
    if (Contains(texts, adoType))
        return QStringLiteral("2");
    return Contains(dates, adoType) ? QStringLiteral("3") : QStringLiteral("0");
}

std::optional<QString> GetTableOfSQL(const QString &strSQL)
{
    const QString fromWord = QStringLiteral("FROM ");
    const QString statement = Trim(strSQL);
    const Search find = Find(statement, fromWord) > 0 ? FindAsWritten : FindUpper;
    const auto from = find(statement, fromWord);
    if (from == 0)
        return QString();
    const auto begin = from + fromWord.size();
    auto end = find(statement, QStringLiteral("WHERE "));
    if (end == 0)
        end = find(statement, QStringLiteral("ORDER BY "));
    if (end == 0)
        end = statement.size() + 1;
    if (end < begin)
        return std::nullopt;
    return Trim(First(From(statement, begin), end - begin));
}

bool BuildLikeCondition(const QString &strText, std::span<const TypedField> fields, const QString &strSQL,
                        AllDBType database, QString &strCondition, Engine engine)
{
    QString condition;
    if (!strText.isEmpty()) {
        const auto searched = SearchedFields(fields, database, strSQL, engine);
        if (!searched || searched->isEmpty())
            return false;
        QStringList words;
        for (const QString &word : SplitText(strText, QStringLiteral("%")))
            words.append(QStringLiteral(" (") + WordCondition(*searched, word, engine) +
                         QStringLiteral(") "));
        condition = words.join(QStringLiteral("And "));
    }
    strCondition = condition;
    return true;
}

bool BuildLikeAllCondition(const QString &strText, const TypedField &field, const QString &strSQL,
                           AllDBType database, QString &strCondition, Engine engine)
{
    return BuildLikeCondition(strText, std::span(&field, 1), strSQL, database, strCondition, engine);
}

CellFilter BuildCellFilter(const QString &realName, std::optional<qint32> adoType,
                           const std::optional<QString> &cellText, Engine engine)
{
    // Narrower than the quick filter's classes on purpose: equality makes no sense for the types left out.
    static constexpr std::array<qint32, 12> numbers{2, 3, 4, 5, 14, 16, 18, 20, 21, 72, 131, 139};
    static constexpr std::array<qint32, 4> texts{129, 130, 200, 202};
    if (realName.isEmpty() || !adoType)
        return {};
    const bool isText = Contains(texts, *adoType);
    if (!isText && !Contains(numbers, *adoType))
        return {{}, QueryTexts::TypeNotFiltered()};
    if (!cellText)
        return {realName + QStringLiteral(" IS NULL"), {}};
    if (!isText)
        return {NumberCondition(realName, *adoType, *cellText, engine), {}};
    if (cellText->contains(u'\''))
        return {{}, QueryTexts::ApostropheInFilter()};
    return {LikeOperand(engine, realName) + QStringLiteral(" like ") +
                TextLiteral(DialectOf({}, engine), LikePattern(engine, *cellText)),
            {}};
}

} // namespace KOVAVSFDataGridLib
