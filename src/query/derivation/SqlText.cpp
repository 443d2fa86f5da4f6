#include "query/derivation/SqlText.h"

#include "query/CharText.h"
#include "sql/SqlScanner.h"
#include "sql/select/SqlWalk.h"

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

const QString fromWord = QStringLiteral(" FROM ");
const QString whereWord = QStringLiteral(" WHERE ");
const QString orderWords = QStringLiteral(" ORDER BY ");

// The statement without its sort (including the space before that) or without its condition (excluding it).
QString headWithoutConditions(const QString &statement)
{
    QString head = statement;
    if (const auto order = findUpper(head, orderWords); order > 0)
        head = First(head, order);
    if (const auto where = findUpper(head, whereWord); where > 0)
        head = First(head, where - 1);
    return head;
}

// AND has precedence, so an OR or the like outside all brackets would return rows that AND must exclude.
bool hasOuterOr(const QString &condition, const Dialect &dialect)
{
    const SqlScanner scanned(condition, dialect);
    for (qsizetype i = 0; i < scanned.count(); ++i) {
        if (scanned.at(i).depth == 0 && bindsLooserThanAnd(scanned, i))
            return true;
    }
    return false;
}

} // namespace

std::optional<KeywordCut> SplitByKeyword(const QString &text, const QString &keyword)
{
    if (text.isEmpty() || keyword.isEmpty())
        return std::nullopt;
    const auto position = findUpper(text, keyword);
    if (position == 0)
        return KeywordCut{text, {}};
    return KeywordCut{First(text, position), Last(text, text.size() - position)};
}

std::optional<SQLSentence> SplitSQLSentence(const QString &statement)
{
    const auto byOrder = SplitByKeyword(statement, orderWords);
    if (!byOrder)
        return std::nullopt;
    const KeywordCut byWhere =
        SplitByKeyword(byOrder->before, whereWord).value_or(KeywordCut{byOrder->before, {}});
    return SQLSentence{byWhere.before, byWhere.after, byOrder->after};
}

QString joinSQLSentence(const SQLSentence &sentence)
{
    return sentence.fields + u' ' + sentence.where + u' ' + sentence.order;
}

QString ComposeSQL(const QString &head, const QString &where, const QString &order)
{
    QString text = head;
    for (const QString &part : {where, order}) {
        if (!part.isEmpty())
            text += u' ' + part;
    }
    return text;
}

void addCondition(SQLSentence &sentence, const QString &added, const Dialect &dialect)
{
    if (added.isEmpty())
        return;
    // A line comment must not include what follows.
    const QString condition = SqlScanner(added, dialect).endsInLineComment() ? added + u'\n' : added;
    const QString where = trim(sentence.where);
    if (where.isEmpty()) {
        sentence.where = whereWord + condition;
        return;
    }
    const qsizetype keyword = whereWord.size() - 2;
    if (hasOuterOr(From(where, keyword + 1), dialect))
        sentence.where = First(where, keyword) + QStringLiteral(" (") + trim(From(where, keyword + 1)) + u')';
    sentence.where +=
        QStringLiteral(" AND ") + (hasOuterOr(condition, dialect) ? u'(' + condition + u')' : condition);
}

QString ReplaceSQLFieldPart(const QString &statement, const QString &fieldStatement)
{
    auto sentence = SplitSQLSentence(statement);
    const auto newFields = SplitSQLSentence(fieldStatement);
    if (!sentence || !newFields)
        return {};
    sentence->fields = newFields->fields;
    return joinSQLSentence(*sentence);
}

QString AppendOrderWord(const QString &statement, const QString &sortList)
{
    if (statement.isEmpty() || sortList.isEmpty() || findUpper(statement, orderWords) > 0)
        return statement;
    return statement + orderWords + sortList;
}

QString replaceOrderWord(const QString &statement, const QString &sortList)
{
    QString text = statement;
    if (const auto order = findUpper(text, orderWords); order > 0)
        text = First(text, order);
    if (!sortList.isEmpty())
        text += orderWords + sortList;
    return text;
}

QString GetNoRowSQL(const QString &statement)
{
    const QString head = headWithoutConditions(statement);
    if (head.isEmpty())
        return {};
    return head + QStringLiteral(" WHERE 0=1");
}

QString GetSQLTableName(const QString &statement)
{
    const QString head = headWithoutConditions(statement);
    const auto from = findUpper(head, fromWord);
    return from == 0 ? head : From(head, from + fromWord.size());
}

QString getFromPart(const QString &statement)
{
    const auto from = findUpper(statement, fromWord);
    return from == 0 ? QString() : From(statement, from);
}

QStringList splitList(const QString &list, const Dialect &dialect)
{
    const SqlScanner scanned(list, dialect);
    QStringList entries;
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= scanned.count(); ++i) {
        const bool isEnd = i == scanned.count();
        if (!isEnd && !(scanned.isSymbol(i, u',') && scanned.at(i).depth == 0))
            continue;
        const qsizetype end = isEnd ? list.size() : scanned.at(i).start;
        const QString entry = trim(list.sliced(begin, end - begin));
        if (!entry.isEmpty())
            entries.append(entry);
        begin = end + 1;
    }
    return entries;
}

QString CutStringEnds(const QString &text, const QString &affix, CutEnds ends)
{
    if (text.isEmpty() || affix.isEmpty())
        return {};
    QString rest = text;
    if ((ends == CutBegin || ends == CutBoth) && rest.startsWith(affix))
        rest.remove(0, affix.size());
    if ((ends == CutEnd || ends == CutBoth) && rest.endsWith(affix))
        rest.chop(affix.size());
    return rest;
}

} // namespace KOVAVSFDataGridLib
