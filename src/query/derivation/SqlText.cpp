#include "query/derivation/SqlText.h"

#include "query/CharText.h"
#include "sql/Names.h"
#include "sql/SqlScanner.h"

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

const QString fromWord = QStringLiteral(" FROM ");
const QString whereWord = QStringLiteral(" WHERE ");
const QString orderWords = QStringLiteral(" ORDER BY ");

// The statement before its sort (with the blank that stands there) and before its condition (without).
QString headWithoutConditions(const QString &statement)
{
    QString head = statement;
    if (const auto order = findUpper(head, orderWords); order > 0)
        head = First(head, order);
    if (const auto where = findUpper(head, whereWord); where > 0)
        head = First(head, where - 1);
    return head;
}

// AND binds closer, so an OR outside all brackets would take rows in that AND is to keep out.
bool hasOuterOr(const QString &condition, const Dialect &dialect)
{
    const SqlScanner scanned(condition, dialect);
    for (qsizetype i = 0; i < scanned.count(); ++i) {
        if (scanned.at(i).depth == 0 && scanned.isWord(i, u"OR"))
            return true;
    }
    return false;
}

bool isBreak(QChar c)
{
    return c == u'\n' || c == u'\r' || c == u'\t';
}

// Up to and with the character that closes what the first one opens; all of it where none does.
qsizetype sizeUpTo(QStringView text, QChar closing)
{
    const auto end = text.indexOf(closing, 1);
    return end < 0 ? text.size() : end + 1;
}

qsizetype sizeOfBlockComment(QStringView text)
{
    const auto end = text.indexOf(u"*/", 2);
    return end < 0 ? text.size() : end + 2;
}

// Whether only the engine can say what follows: a number sign begins a comment, a date or an operator, two
// dashes without a blank after them can be two operators, a backslash can keep a quote from closing a text,
// comments can contain comments, and a dollar sign can begin a text.
bool isReadInSeveralWays(QStringView rest)
{
    const QChar c = rest.front();
    if (c == u'\'' || c == u'"') {
        const auto size = sizeUpTo(rest, c);
        return size > 2 && rest.at(size - 2) == u'\\' && rest.at(size - 1) == c;
    }
    if (rest.startsWith(u"--"))
        return rest.size() > 2 && rest.at(2) != u' ' && !isBreak(rest.at(2));
    if (rest.startsWith(u"/*"))
        return rest.first(sizeOfBlockComment(rest)).indexOf(u"/*", 1) > 0;
    if (c == u'$') {
        qsizetype end = 1;
        while (end < rest.size() && (rest.at(end).isLetterOrNumber() || rest.at(end) == u'_'))
            ++end;
        return end < rest.size() && rest.at(end) == u'$';
    }
    return c == u'#';
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
    // What stands before a keyword holds at least the keyword's own blank, so there is always a text to
    // split.
    const auto byWhere = SplitByKeyword(byOrder->before, whereWord);
    return SQLSentence{byWhere->before, byWhere->after, byOrder->after};
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

void addCondition(SQLSentence &sentence, const QString &condition, const Dialect &dialect)
{
    if (condition.isEmpty())
        return;
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

QString CutStringEnds(const QString &text, const QString &affix, int mode)
{
    if (text.isEmpty() || affix.isEmpty())
        return {};
    QString rest = text;
    if ((mode == CutBegin || mode == CutBoth) && rest.startsWith(affix))
        rest.remove(0, affix.size());
    if ((mode == CutEnd || mode == CutBoth) && rest.endsWith(affix))
        rest.chop(affix.size());
    return rest;
}

QString joinStatementLines(const QString &statement)
{
    QString joined;
    joined.reserve(statement.size());
    qsizetype quotedEnd = 0;
    for (qsizetype i = 0; i < statement.size();) {
        const QChar c = statement.at(i);
        if (isReadInSeveralWays(QStringView(statement).sliced(i))) {
            joined += QStringView(statement).sliced(i);
            return joined;
        }
        if (const QChar closing = closingQuote(c); !closing.isNull()) {
            const auto size = sizeUpTo(QStringView(statement).sliced(i), closing);
            joined += QStringView(statement).mid(i, size);
            i += size;
            quotedEnd = joined.size();
        } else if (QStringView(statement).mid(i).startsWith(u"/*")) {
            // Kept, because some engines read hints in it; quotes and dashes mean nothing there.
            const auto size = sizeOfBlockComment(QStringView(statement).sliced(i));
            for (const QChar part : QStringView(statement).mid(i, size))
                joined += isBreak(part) ? QChar(u' ') : part;
            i += size;
            quotedEnd = joined.size();
        } else if (QStringView(statement).mid(i).startsWith(u"--")) {
            while (i < statement.size() && statement.at(i) != u'\n' && statement.at(i) != u'\r')
                ++i;
        } else if (c == u' ' || isBreak(c)) {
            const auto start = i;
            bool hasBreak = false;
            for (; i < statement.size() && (statement.at(i) == u' ' || isBreak(statement.at(i))); ++i)
                hasBreak = hasBreak || isBreak(statement.at(i));
            joined += hasBreak ? QStringView(u" ") : QStringView(statement).mid(start, i - start);
        } else {
            joined += c;
            ++i;
        }
    }
    qsizetype end = joined.size();
    while (end > quotedEnd && (joined.at(end - 1) == u';' || joined.at(end - 1) == u' '))
        --end;
    if (QStringView(joined).mid(end).contains(u';'))
        joined.truncate(end);
    return joined;
}

} // namespace KOVAVSFDataGridLib
