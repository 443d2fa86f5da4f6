#include "sql/StatementLines.h"

#include "sql/Names.h"

namespace KOVAVSFDataGridLib {

namespace {

bool isBreak(QChar c)
{
    return c == u'\n' || c == u'\r' || c == u'\t';
}

// Up to and including the character that closes the first one; the whole text if there is none.
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

// Whether only the engine can tell what follows: # begins a comment, a date or an operator; -- without a
// space after it can be two operators; a backslash can escape a quote; comments can be nested; $ can begin a
// string.
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
            // Kept, because some engines read hints in it. Quotes and dashes have no meaning inside.
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
