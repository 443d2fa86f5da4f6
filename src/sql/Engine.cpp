#include "sql/Engine.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString withBackslashesDoubled(QString text)
{
    return text.replace("\\"_L1, "\\\\"_L1);
}

} // namespace

Engine EngineNamed(const QString &name)
{
    const auto begins = [&name](QLatin1StringView word) {
        return name.startsWith(word, Qt::CaseInsensitive);
    };
    if (begins("SQLite"_L1))
        return Engine::SQLite;
    if (begins("PostgreSQL"_L1))
        return Engine::PostgreSQL;
    return begins("MySQL"_L1) || begins("MariaDB"_L1) ? Engine::MySQL : Engine::Other;
}

bool LikesTextsOnly(Engine engine)
{
    return engine == Engine::PostgreSQL;
}

// Texts too: a driver reports many types as text that LIKE refuses (JSON, network addresses, enumerations),
// and casting a real text costs nothing.
QString LikeOperand(Engine engine, const QString &field)
{
    return LikesTextsOnly(engine) ? "CAST("_L1 + field + " AS TEXT)"_L1 : field;
}

QString TextLiteral(Engine engine, QString text)
{
    if (engine == Engine::MySQL)
        text = withBackslashesDoubled(text);
    return u'\'' + text.replace("'"_L1, "''"_L1) + u'\'';
}

// The backslash is LIKE's own escape on these, quite apart from what literals make of it.
QString LikePattern(Engine engine, QString text)
{
    const bool isEscape = engine == Engine::PostgreSQL || engine == Engine::MySQL;
    return isEscape ? withBackslashesDoubled(text) : text;
}

} // namespace KOVAVSFDataGridLib
