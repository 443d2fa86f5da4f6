#include "InjectionModes.h"

#include "CorpusFile.h"

#include <algorithm>
#include <ostream>
#include <string_view>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace KovaTest {

const std::vector<InjectionMode> injectionModes = {
    {"SQLite", "SQLite", ""},
    {"Access", "Access", ""},
    {"SQLiteThroughOdbc", "SQLiteThroughOdbc", ""},
    {"PostgreSQL", "PostgreSQL", ""},
    {"PostgreSQLTextOnly", "PostgreSQL", "UseServerSidePrepare=0"},
    {"PostgreSQLOldStrings", "PostgreSQL", "ConnSettings={set standard_conforming_strings=off}"},
    {"PostgreSQLOldStringsTextOnly", "PostgreSQL",
     "UseServerSidePrepare=0;ConnSettings={set standard_conforming_strings=off}"},
    {"MariaDB", "MariaDB", ""},
    {"MariaDBSeveral", "MariaDB", "OPTION=67108864"},
    {"MariaDBNoBackslash",
     "MariaDB",
     "OPTION=67108864;INITSTMT={SET sql_mode='NO_BACKSLASH_ESCAPES'}",
     {false}},
    {"MariaDBAnsiQuotes", "MariaDB", "OPTION=67108864;INITSTMT={SET sql_mode='ANSI_QUOTES'}", {true, true}},
    {"MariaDBAnsiNoBackslash",
     "MariaDB",
     "OPTION=67108864;INITSTMT={SET sql_mode='ANSI_QUOTES,NO_BACKSLASH_ESCAPES'}",
     {false, true}},
    {"MariaDBOracle", "MariaDBInOracleMode", "", {true, true}},
    {"MariaDBSqlServer", "MariaDBInSqlServerMode", "", {true, true, true}},
    {"MariaDBGbk", "MariaDB", "OPTION=67108864;CHARSET=gbk"},
    {"MariaDBBig5", "MariaDB", "OPTION=67108864;CHARSET=big5"},
    {"MariaDBLatin1", "MariaDB", "OPTION=67108864;CHARSET=latin1"},
    {"MariaDBGbkSet", "MariaDB", "OPTION=67108864;INITSTMT={SET NAMES gbk}"},
};

std::ostream &operator<<(std::ostream &out, const InjectionMode &mode)
{
    return out << mode.name;
}

QStringList chosenTexts(const InjectionMode &mode)
{
    const QStringList all =
        readCorpus(QString::fromUtf8(KOVA_SOURCE_DIR) + u"/tests/session/data/injection.corpus"_s);
    if (qEnvironmentVariable("KOVA_INJECTION") == u"all")
        return all;
    constexpr qsizetype step = 6;
    const auto place = std::ranges::find(injectionModes, std::string_view(mode.name), &InjectionMode::name);
    QStringList chosen;
    for (qsizetype i = (place - injectionModes.begin()) % step; i < all.size(); i += step)
        chosen += all[i];
    return chosen;
}

QString shapeOf(const SqlScanner &sql)
{
    EXPECT_EQ(sql.strayCharacter(), -1) << sql.sql().toStdString();
    QString shape;
    for (qsizetype i = 0; i < sql.count(); ++i) {
        switch (sql.at(i).kind) {
        case SqlToken::Kind::String:
            shape += u"T "_s;
            break;
        case SqlToken::Kind::QuotedName:
            shape += u"name "_s;
            break;
        default:
            shape += sql.text(i).toString().toUpper() + u' ';
        }
    }
    shape.prepend(u' ');
    shape.replace(u" N T "_s, u" T "_s);
    shape.replace(u" E T "_s, u" T "_s);
    for (QString before; before != shape;) {
        before = shape;
        shape.replace(u"{ FN CONCAT ( T , T ) } "_s, u"T "_s);
        shape.replace(u"( T | | T ) "_s, u"T "_s);
        shape.replace(u"( T || T ) "_s, u"T "_s);
    }
    return shape;
}

} // namespace KovaTest
