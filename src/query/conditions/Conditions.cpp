#include "query/conditions/Conditions.h"

#include "query/CharText.h"
#include "query/QueryTexts.h"
#include "sql/AllDBType.h"
#include "sql/Like.h"
#include "sql/Literals.h"
#include "sql/Names.h"
#include "sql/Predicates.h"
#include "sql/ShownNumbers.h"
#include "sql/select/SelectParts.h"

#include <algorithm>
#include <array>

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

using Search = qsizetype (*)(const QString &, const QString &);

qsizetype findAsWritten(const QString &text, const QString &word)
{
    return Find(text, word);
}

template<std::size_t Count>
bool isAmong(const std::array<qint32, Count> &types, qint32 adoType)
{
    return std::binary_search(types.begin(), types.end(), adoType);
}

// What Access needs before ".[field]": the FROM text if it is a single name, or the alias after it; otherwise
// empty, because the text of a join can't tell which table has the field.
QString tableQualifier(const QString &fromText)
{
    const SqlScanner from(fromText);
    if (!from.isName(0))
        return {};
    qsizetype end = 1;
    while (from.isSymbol(end, u'.') && from.isName(end + 1))
        end += 2;
    const TextRange table{0, end};
    if (end < from.count())
        end += from.isWord(end, u"AS") ? 2 : 1;
    if (end == table.end)
        return textOf(from, table);
    return end == from.count() && from.isName(end - 1) ? from.text(end - 1).toString() : QString();
}

bool isBinary(std::optional<qint32> adoType)
{
    return adoType == 128 || adoType == 204 || adoType == 205;
}

constexpr qint32 singleType = 4;
constexpr qint32 doubleType = 5;
constexpr qint32 currencyType = 6;
constexpr qint32 booleanType = 11;
constexpr qint32 guidType = 72;

// With an unknown engine, currency is excluded, as it always was.
QString classOf(qint32 adoType, const EngineMode &mode)
{
    return adoType == currencyType && mode.isKnown() ? QStringLiteral("1") : classifyFieldType(adoType);
}

struct SearchedField
{
    QString operand;
    bool holdsLetters = true;
    QString name = {};
    qint32 adoType = 0;
};

// Finds a whole value if the engine's text of it differs from the shown text: for numbers with an exponent
// and for Booleans. Empty if there is no such difference.
QString conditionOfShown(const SearchedField &field, const QString &word, const Dialect &dialect)
{
    if (!dialect.isKnown())
        return {};
    if (field.adoType == booleanType) {
        const bool isTrueWord = word.compare(u"True", Qt::CaseInsensitive) == 0;
        const bool isFalseWord = word.compare(u"False", Qt::CaseInsensitive) == 0;
        return isTrueWord || isFalseWord ? isTrue(dialect, field.name, isTrueWord) : QString();
    }
    const bool isDouble = field.adoType == doubleType;
    if ((!isDouble && field.adoType != singleType) || !isNumberText(word) ||
        !word.contains(u'e', Qt::CaseInsensitive))
        return {};
    const NumberRange range =
        rangeShownAs(word, isDouble ? FloatSize::Double : FloatSize::Single, dialect.engine);
    return range.isEmpty() ? QString()
                           : QStringLiteral("%1 BETWEEN %2 AND %3").arg(field.name, range.from, range.to);
}

// The field's name for SQL. An empty name if it can't be searched; no value if that is unknown.
std::optional<QString> nameOfSearched(const TypedField &field, AllDBType database, const QString &qualifier,
                                      const EngineMode &mode)
{
    if (likesTextsOnly(mode.engine) && isBinary(field.adoType))
        return QString();
    if (!isDeclared(database))
        return QString();
    if (searchesByType(database)) {
        if (!field.adoType)
            return std::nullopt;
        if (classOf(*field.adoType, mode) == u"0")
            return QString();
    }
    if (!field.written.isEmpty())
        return field.written;
    const Dialect dialect = dialectOf(database, mode);
    if (!takesBrackets(dialect))
        return writtenName(dialect, field.name);
    return (qualifier.isEmpty() ? QString() : qualifier + u'.') + nameInBrackets(dialect, field.name);
}

std::optional<std::vector<SearchedField>> searchedFields(std::span<const TypedField> fields,
                                                         AllDBType database, const QString &strSQL,
                                                         const EngineMode &mode)
{
    const auto table = GetTableOfSQL(strSQL);
    const bool needsTable = std::any_of(fields.begin(), fields.end(),
                                        [](const TypedField &field) { return field.written.isEmpty(); });
    if (!table && needsTable)
        return std::nullopt;
    const QString qualifier = writesBrackets(database) && table ? tableQualifier(*table) : QString();
    std::vector<SearchedField> searched;
    for (const TypedField &field : fields) {
        const auto name = nameOfSearched(field, database, qualifier, mode);
        if (!name)
            return std::nullopt;
        if (name->isEmpty())
            continue;
        const QString kind = field.adoType ? classOf(*field.adoType, mode) : QString();
        const auto operand = field.adoType == doubleType     ? likeOperandOfDouble
                             : field.adoType == currencyType ? likeOperandOfMoney
                                                             : likeOperand;
        searched.push_back({operand(mode.engine, *name),
                            (kind != u"1" && kind != u"3") || field.adoType == guidType, *name,
                            field.adoType.value_or(0)});
    }
    return searched;
}

// A number contains no letters, and casting every number of a large table to find none is slow.
QStringList operandsFor(const std::vector<SearchedField> &fields, const QString &word, Engine engine)
{
    const bool hasLetter = std::any_of(word.cbegin(), word.cend(), [](QChar c) { return c.isLetter(); });
    QStringList able;
    QStringList all;
    for (const SearchedField &field : fields) {
        all.append(field.operand);
        if (field.holdsLetters)
            able.append(field.operand);
    }
    return likesTextsOnly(engine) && hasLetter && !able.isEmpty() ? able : all;
}

// Splits words that begin a clause, so that later derivations don't take them for keywords. How that is done
// is known only for known engines.
QString literalOf(AllDBType database, const EngineMode &mode, const QString &text)
{
    const Dialect dialect = dialectOf(database, mode);
    return mode.isKnown() ? textWithoutClauses(dialect, text) : textLiteral(dialect, text);
}

QString wordCondition(const std::vector<SearchedField> &fields, const QString &word, AllDBType database,
                      const EngineMode &mode)
{
    const QString pattern = QStringLiteral(" LIKE ") +
                            literalOf(database, mode, u'%' + likePattern(mode.engine, word) + u'%') + u' ';
    const QStringList operands = operandsFor(fields, word, mode.engine);
    QString condition = operands.join(pattern + QStringLiteral("OR ")) + pattern;
    for (const SearchedField &field : fields) {
        if (const QString shown = conditionOfShown(field, word, dialectOf(database, mode)); !shown.isEmpty())
            condition += QStringLiteral("OR ") + shown + u' ';
    }
    return condition;
}

NumberKind kindOf(qint32 adoType)
{
    switch (adoType) {
    case singleType:
        return NumberKind::Single;
    case doubleType:
        return NumberKind::Double;
    case currencyType:
        return NumberKind::Currency;
    default:
        return NumberKind::Exact;
    }
}

QString numberCondition(const QString &field, qint32 adoType, const QString &cellText, const EngineMode &mode,
                        bool isComputed)
{
    const QString like = field + QStringLiteral(" like ");
    if (!mode.isKnown())
        return like + cellText;
    const Engine engine = mode.engine;
    if (adoType != guidType && isNumberText(cellText))
        return showsNumber(engine, field, kindOf(adoType), cellText, isComputed);
    // The declared type of a column doesn't guarantee that each value is a number.
    return likesTextsOnly(engine) ? field + QStringLiteral(" = ") + literalOf({}, mode, cellText)
                                  : like + literalOf({}, mode, likePattern(engine, cellText));
}

} // namespace

QStringList splitText(const QString &text, const QString &separator, bool keepsSeparator)
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

QString classifyFieldType(qint32 adoType)
{
    static constexpr std::array<qint32, 14> numbers{2, 3, 4, 5, 14, 16, 17, 18, 19, 20, 21, 72, 131, 139};
    static constexpr std::array<qint32, 7> texts{8, 129, 130, 200, 201, 202, 203};
    static constexpr std::array<qint32, 5> dates{7, 64, 133, 134, 135};
    if (isAmong(numbers, adoType))
        return QStringLiteral("1");
    if (isAmong(texts, adoType))
        return QStringLiteral("2");
    return isAmong(dates, adoType) ? QStringLiteral("3") : QStringLiteral("0");
}

std::optional<QString> GetTableOfSQL(const QString &strSQL)
{
    const QString fromWord = QStringLiteral("FROM ");
    const QString statement = trim(strSQL);
    const Search find = Find(statement, fromWord) > 0 ? findAsWritten : findUpper;
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
    return trim(First(From(statement, begin), end - begin));
}

bool BuildLikeCondition(const QString &strText, std::span<const TypedField> fields, const QString &strSQL,
                        AllDBType database, QString &strCondition, const EngineMode &mode)
{
    QString condition;
    if (!strText.isEmpty()) {
        const auto searched = searchedFields(fields, database, strSQL, mode);
        if (!searched || searched->empty())
            return false;
        QStringList words;
        for (const QString &word : splitText(strText, QStringLiteral("%")))
            words.append(QStringLiteral(" (") + wordCondition(*searched, word, database, mode) +
                         QStringLiteral(") "));
        condition = words.join(QStringLiteral("And "));
    }
    strCondition = condition;
    return true;
}

bool BuildLikeAllCondition(const QString &strText, const TypedField &field, const QString &strSQL,
                           AllDBType database, QString &strCondition, const EngineMode &mode)
{
    return BuildLikeCondition(strText, std::span(&field, 1), strSQL, database, strCondition, mode);
}

namespace {

// 10.0.0.1 or fe80::1, of which the type says no more than that it is a text.
bool isLikeAnAddress(const QString &text)
{
    const auto isPart = [](QChar c) {
        return c == u'.' || c == u':' ||
               (c.unicode() < 128 && (c.isDigit() || (c.toLower() >= u'a' && c.toLower() <= u'f')));
    };
    return std::ranges::all_of(text, isPart) && (text.count(u'.') == 3 || text.count(u':') >= 2);
}

} // namespace

CellFilter buildCellFilter(const QString &realName, std::optional<qint32> adoType,
                           const std::optional<QString> &cellText, const EngineMode &mode, bool isComputed)
{
    // Deliberately fewer types than in the quick filter: equality makes no sense for the others.
    static constexpr std::array<qint32, 12> numbers{2, 3, 4, 5, 14, 16, 18, 20, 21, 72, 131, 139};
    static constexpr std::array<qint32, 4> texts{129, 130, 200, 202};
    static constexpr std::array<qint32, 2> paddedTexts{129, 130}; // padded with spaces to the field's length
    if (realName.isEmpty() || !adoType)
        return {};
    const bool isText = isAmong(texts, *adoType);
    const bool isNumber = isAmong(numbers, *adoType) || (*adoType == currencyType && mode.isKnown());
    if (!isText && !isNumber)
        return {{}, QueryTexts::TypeNotFiltered};
    if (!cellText)
        return {realName + QStringLiteral(" IS NULL"), {}};
    if (isComputed && isNumberText(*cellText)) {
        if (const QString shown = showsComputedNumber(mode.engine, realName, *cellText); !shown.isEmpty())
            return {shown, {}};
    }
    if (!isText)
        return {numberCondition(realName, *adoType, *cellText, mode, isComputed), {}};
    if (cellText->contains(u'\''))
        return {{}, QueryTexts::ApostropheInFilter};
    QString text = *cellText;
    // The cast of the operand removes the padding.
    if (likesTextsOnly(mode.engine) && isAmong(paddedTexts, *adoType)) {
        while (text.endsWith(u' '))
            text.chop(1);
    }
    const QString operand =
        isLikeAnAddress(text) ? shownOperand(mode.engine, realName) : likeOperand(mode.engine, realName);
    return {operand + QStringLiteral(" like ") + literalOf({}, mode, likePattern(mode.engine, text)), {}};
}

} // namespace KOVAVSFDataGridLib
