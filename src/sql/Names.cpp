#include "sql/Names.h"

#include "sql/AllDBType.h"
#include "sql/words/ReservedWords.h"

#include <QtCore/QList>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool hasCapital(const QString &name)
{
    return std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c >= u'A' && c <= u'Z'; });
}

bool hasSmall(const QString &name)
{
    return std::any_of(name.cbegin(), name.cend(), [](QChar c) { return c >= u'a' && c <= u'z'; });
}

// In other engines, "#" begins a comment or a date, or is an operator.
bool readsNumberSign(Engine engine)
{
    return engine == Engine::SqlServer || engine == Engine::Oracle;
}

// Oracle converts a bare name to upper case, PostgreSQL to lower case. If only the declared type suggests
// such an engine, it may be either.
bool losesItsCase(const Dialect &dialect, const QString &name)
{
    if (dialect.engine == Engine::PostgreSQL)
        return hasCapital(name);
    if (dialect.engine == Engine::Oracle)
        return hasSmall(name);
    const bool folds = dialect.database == dbOracle;
    return folds && hasCapital(name) && hasSmall(name);
}

// Where there is no Access, SQLite is the engine that reads its files, in Access's SQL.
bool isReserved(const Dialect &dialect, const QString &name)
{
    const Engine engine = dialect.likelyEngine();
    const bool canBeAccess = engine == Engine::SQLite && dialect.database == dbAccess;
    return isReservedWord(engine, name) || (canBeAccess && isWordOfAccess(name));
}

} // namespace

bool isPlainName(const QString &name)
{
    const auto letters = name.toUcs4();
    const auto isInner = [](uint c) {
        return QChar::isLetterOrNumber(c) || c == '_' || c == '$' || c == '#';
    };
    return !letters.isEmpty() && (QChar::isLetter(letters.front()) || letters.front() == '_') &&
           std::all_of(letters.cbegin(), letters.cend(), isInner);
}

QString writtenName(const Dialect &dialect, const QString &name)
{
    const Engine engine = dialect.likelyEngine();
    const bool isBare = isPlainName(name) && (!name.contains(u'#') || readsNumberSign(engine)) &&
                        !losesItsCase(dialect, name) && !isReserved(dialect, name);
    return isBare ? name : quotedName(dialect, name);
}

QString quotedName(const Dialect &dialect, const QString &name)
{
    switch (dialect.engine) {
    case Engine::MySQL:
        return enclosed(u'`', name, u'`');
    case Engine::SQLite: // it also reads brackets, but none inside them
        if (dialect.database != dbOracle && !name.contains(u']'))
            return enclosed(u'[', name, u']');
        return enclosed(u'"', name, u'"');
    case Engine::Access:
    case Engine::SqlServer:
        return enclosed(u'[', name, u']');
    case Engine::Other:
        if (dialect.database != dbOracle)
            return enclosed(u'[', name, u']');
        break;
    case Engine::Oracle:
    case Engine::PostgreSQL:
    case Engine::Standard:
        break;
    }
    return enclosed(u'"', name, u'"');
}

QString nameInBrackets(const Dialect &dialect, const QString &name)
{
    return dialect.engine == Engine::Other ? enclosedAsIs(u'[', name, u']') : quotedName(dialect, name);
}

bool isOneName(const Dialect &dialect, const QString &a, const QString &b)
{
    const bool tellsCase = dialect.engine == Engine::PostgreSQL || dialect.engine == Engine::Oracle;
    return a.compare(b, tellsCase ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
}

bool takesBrackets(const Dialect &dialect)
{
    const Engine engine = dialect.engine;
    return writesBrackets(dialect.database) && (engine == Engine::Other || engine == Engine::Access ||
                                                engine == Engine::SQLite || engine == Engine::SqlServer);
}

QString enclosed(QChar opening, QString name, QChar closing)
{
    return opening + name.replace(closing, QString(2, closing)) + closing;
}

QString enclosedAsIs(QChar opening, const QString &name, QChar closing)
{
    return opening + name + closing;
}

QChar closingQuote(QChar opening)
{
    switch (opening.unicode()) {
    case u'\'':
    case u'"':
    case u'`':
        return opening;
    case u'[':
        return u']';
    default:
        return {};
    }
}

QString lastNamePart(const QString &writtenName)
{
    const QChar last = writtenName.isEmpty() ? QChar() : writtenName.back();
    const QChar opening = last == u']' ? QChar(u'[') : last == u'"' || last == u'`' ? last : QChar();
    if (opening.isNull())
        return writtenName.mid(writtenName.lastIndexOf(u'.') + 1);
    const QString name = writtenName.chopped(1);
    const auto open = name.lastIndexOf(opening);
    const bool isAlias = open > 0 && name.at(open - 1) != u'.';
    return isAlias ? QString() : name.mid(open + 1);
}

QString bracketsToQuotes(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool opens = c == u'[' || c == u'\'' || c == u'"';
        const auto end = opens ? text.indexOf(closingQuote(c), i + 1) : -1;
        if (end < 0) {
            result += c;
            continue;
        }
        if (c == u'[')
            result += enclosed(u'"', text.mid(i + 1, end - i - 1), u'"');
        else
            result += QStringView(text).mid(i, end + 1 - i);
        i = end;
    }
    return result;
}

} // namespace KOVAVSFDataGridLib
