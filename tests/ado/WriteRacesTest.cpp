// Random tables, statements and changes by others between reading and writing, on every engine: a write
// changes exactly the row that was shown, or it changes nothing and reports an error. Full copies of the
// table are compared.
#include "OdbcEngines.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include "servers/OdbcSession.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <random>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

// What can be done to a database past the code under test, and through it.
struct Place
{
    QString engine;
    std::function<void(const QString &)> execute;
    std::function<QString(const QString &)> ask;
    std::function<std::shared_ptr<Recordset>(const QString &)> open;
};

// A kind of table; {text} is a text type, {key} an additional clause of the engine. Rows are identified by
// `tag`, which is not a key.
struct Kind
{
    const char *engines;
    const char *table;
    bool isKeyed;
    bool hasTagInKey = false; // so that mostly a part of the key is shown
};

constexpr Kind kinds[] = {
    {"all", "CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a {text}, b INTEGER, d {text}, tag {text})", true},
    {"all", "CREATE TABLE kova_a(id INTEGER, a {text}, b INTEGER, d {text}, tag {text})", false},
    {"all",
     "CREATE TABLE kova_a(id INTEGER NOT NULL, a {text}, b INTEGER, d {text}, tag {text}, UNIQUE (id))",
     true},
    {"native ODBC/SQLite",
     "CREATE TABLE kova_a(id INTEGER, a TEXT, b INTEGER, d TEXT, tag TEXT, PRIMARY KEY (id)) WITHOUT ROWID",
     true},
    {"native", "CREATE TABLE kova_a(id TEXT PRIMARY KEY, a TEXT, b INTEGER, d TEXT, tag TEXT)", true},
    {"MariaDB",
     "CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a {text}, b INTEGER, d {text}, tag {text}) ENGINE=MyISAM",
     true},
    {"MariaDB",
     "CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a {text}, b INTEGER, d {text}, tag {text}) ENGINE=MEMORY",
     true},
    {"MariaDB",
     "CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a {text}, b INTEGER, d {text}, tag {text}) "
     "ENGINE=Aria TRANSACTIONAL=1",
     true},
    {"all",
     "CREATE TABLE kova_a(id INTEGER NOT NULL, a {text}, b INTEGER, d {text}, tag {text} NOT NULL, PRIMARY "
     "KEY (id, tag))",
     true, true},
    {"native ODBC/SQLite",
     "CREATE TABLE kova_a(id INTEGER, a TEXT, b INTEGER, d TEXT, tag TEXT, PRIMARY KEY (id, tag)) WITHOUT "
     "ROWID",
     true, true},
    {"MariaDB",
     "CREATE TABLE kova_a(id INTEGER NOT NULL, a {text}, b INTEGER, d {text}, tag {text} NOT NULL, PRIMARY "
     "KEY (id, tag)) ENGINE=MyISAM",
     true, true},
};

enum Meanwhile {
    Nothing,
    ChangeColumn,
    DeleteRow,
    ReplaceRow, // by another one with its key
    ChangeOther,
    DeleteOther,
    AddTwin,
    Compact,
    Last = Compact
};

using Row = QStringList; // id, a, b, d, tag
const QStringList names{u"id"_s, u"a"_s, u"b"_s, u"d"_s, u"tag"_s};

class Races
{
public:
    Races(Place place, const Kind &kind, unsigned seed)
        : m_place(std::move(place)), m_kind(kind), m_random(seed)
    {
    }

    void run(int rounds)
    {
        const QString text = m_place.engine == "MariaDB"_L1
                                 ? u"VARCHAR(60) CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci"_s
                                 : u"VARCHAR(60)"_s;
        m_place.execute(QString::fromLatin1(m_kind.table).replace(u"{text}"_s, text));
        for (int i = 0; i < rounds && !testing::Test::HasFailure(); ++i)
            once();
        EXPECT_GT(m_saved, rounds / 5);
        EXPECT_GT(m_refused, rounds / 8);
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    template<typename List>
    auto one(const List &list)
    {
        return list[below(static_cast<int>(list.size()))];
    }

    static QString literal(const QString &value)
    {
        // In hexadecimal if backslashes would have to be escaped.
        return u'\'' + QString(value).replace(u'\'', u"''"_s) + u'\'';
    }
    QString value(const QString &column, const QString &text) const
    {
        const QString backslash =
            m_place.engine == "MariaDB"_L1 ? QString(text).replace(u'\\', u"\\\\"_s) : text;
        return column == "b"_L1 || column == "id"_L1 ? text : literal(backslash);
    }

    void fill()
    {
        static const QStringList texts{u"x"_s,  u"X"_s, u"x "_s,      u"it's"_s, u"a\\b"_s,
                                       u"甲"_s, u"é"_s, u"e\u0301"_s, u""_s};
        m_place.execute(u"DELETE FROM kova_a"_s);
        for (int i = 1; i <= 5; ++i)
            insert({QString::number(i), one(texts), QString::number(below(3)), one(texts), u"t%1"_s.arg(i)});
    }
    void insert(const Row &row)
    {
        QStringList values;
        for (qsizetype i = 0; i < names.size(); ++i)
            values += value(names[i], row[i]);
        m_place.execute(u"INSERT INTO kova_a VALUES ("_s + values.join(u", "_s) + u')');
    }

    std::vector<Row> dump() const
    {
        const bool isPostgreSql = m_place.engine == "PostgreSQL"_L1;
        const bool isMariaDb = m_place.engine == "MariaDB"_L1;
        const QString type = isMariaDb ? u"CHAR"_s : isPostgreSql ? u"VARCHAR"_s : u"TEXT"_s;
        QStringList parts;
        for (const QString &name : names)
            parts += u"CAST(%1 AS %2)"_s.arg(name, type);
        const QString text =
            isMariaDb ? u"CONCAT("_s + parts.join(u", '|', "_s) + u')' : parts.join(u" || '|' || "_s);
        const QString all =
            m_place.ask(isPostgreSql ? u"SELECT string_agg(%1, '#') FROM kova_a"_s.arg(text)
                        : isMariaDb  ? u"SELECT GROUP_CONCAT(%1 SEPARATOR '#') FROM kova_a"_s.arg(text)
                                     : u"SELECT group_concat(%1, '#') FROM kova_a"_s.arg(text));
        std::vector<Row> rows;
        for (const QString &row : all.split(u'#', Qt::SkipEmptyParts))
            rows.push_back(row.split(u'|'));
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    // Whether the write must be refused then.
    bool meanwhile(Meanwhile what, const Row &row, const QStringList &shown)
    {
        const QString where = u" WHERE tag = "_s + literal(row.last());
        const QString other = u" WHERE tag = "_s + literal(row.last() == u"t1"_s ? u"t2"_s : u"t1"_s);
        const bool seesAll = !m_kind.isKeyed || m_place.engine == "PostgreSQL"_L1;
        const bool hasRowid =
            m_place.engine == "native"_L1 && !QByteArray(m_kind.table).contains("WITHOUT ROWID");
        const bool isFoundByTag = m_kind.hasTagInKey && !hasRowid;
        switch (what) {
        case ChangeColumn: {
            const QString column = one(QStringList{u"a"_s, u"b"_s, u"d"_s});
            // Differences that a sort order ignores must be detected.
            const QString text = row[names.indexOf(column)];
            const QString next = column == "b"_L1              ? u"7"_s
                                 : below(2) && text == u"x"_s  ? u"X"_s
                                 : below(2) && text == u"x "_s ? u"x"_s
                                                               : u"other"_s;
            m_place.execute(u"UPDATE kova_a SET %1 = %2"_s.arg(column, value(column, next)) + where);
            return seesAll || shown.contains(column);
        }
        case DeleteRow:
            m_place.execute(u"DELETE FROM kova_a"_s + where);
            return true;
        case ReplaceRow:
            m_place.execute(u"DELETE FROM kova_a"_s + where);
            insert({row[0], u"another"_s, u"9"_s, u"another"_s, u"new"_s});
            return seesAll || isFoundByTag || shown.contains(u"a"_s) || shown.contains(u"b"_s) ||
                   shown.contains(u"d"_s) || shown.contains(u"tag"_s);
        case ChangeOther:
            m_place.execute(u"UPDATE kova_a SET a = 'changed'"_s + other);
            return false;
        case DeleteOther:
            m_place.execute(u"DELETE FROM kova_a"_s + other);
            return false;
        case AddTwin:
            if (m_kind.isKeyed)
                return false;
            insert(row);
            return m_place.engine != "native"_L1; // which has a rowid
        case Compact:
            if (m_place.engine != "native"_L1)
                return false;
            // Where no column is the rowid, the rows move up.
            m_place.execute(u"DELETE FROM kova_a"_s + other);
            m_place.execute(u"VACUUM"_s);
            return false; // unless they did
        case Nothing:
            break;
        }
        return false;
    }
    void once()
    {
        fill();
        QStringList shown;
        for (const QString &name : names) {
            if (below(5) < 2)
                shown += name;
        }
        QStringList items = shown;
        if (items.isEmpty() || below(4) == 0) {
            items += u"upper(a)"_s;
            shown += u"a"_s; // as much of it as can be seen
        }
        const QString sql = u"SELECT "_s + items.join(u", "_s) + u" FROM kova_a ORDER BY tag"_s;
        const auto recordset = m_place.open(sql);
        ASSERT_EQ(recordset->RecordCount(), 5);
        const int record = below(5);
        recordset->PutAbsolutePosition(record + 1);
        QString tag = u"t%1"_s.arg(record + 1);
        const auto rowIn = [&tag](std::vector<Row> &rows) {
            return std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return row.last() == tag; });
        };
        auto before = dump();
        const Row row = *rowIn(before);

        const bool canEdit = items.contains(u"a"_s) || items.contains(u"b"_s) || items.contains(u"d"_s);
        const bool isEdit = canEdit && below(2) == 0;
        QString column;
        while (isEdit && !items.contains(column))
            column = one(QStringList{u"a"_s, u"b"_s, u"d"_s});
        const QString written =
            column == "b"_L1 ? QString::number(100 + below(100)) : u"new\\'%1"_s.arg(below(100));

        const auto what = static_cast<Meanwhile>(below(3) == 0 ? 0 : below(Last + 1));
        const bool onlyUpper = items.contains(u"upper(a)"_s) && !items.contains(u"a"_s);
        const bool mustFail = meanwhile(what, row, shown) && !(onlyUpper && what == ChangeColumn);
        SCOPED_TRACE(testing::Message()
                     << m_kind.table << "\n"
                     << sql.toStdString() << "\nmeanwhile " << what << " to " << tag.toStdString() << ", "
                     << (isEdit ? "edit of " + column.toStdString() : "deletion"));
        const auto then = dump();
        auto expected = then;
        bool saved = false;
        QString why;
        try {
            if (isEdit) {
                recordset->Fields().Item(column).PutValue(written);
                recordset->Update();
            } else {
                recordset->Delete();
            }
            saved = true;
        } catch (const Error &error) {
            why = error.Description();
            EXPECT_TRUE(error.is(dbErrConcurrency)) << error.what();
        }
        const auto after = dump();
        if (!saved) {
            EXPECT_EQ(after, then) << "refused, and yet it changed something: " << why.toStdString();
            const bool mayFail = what == ChangeColumn || what == ReplaceRow || what == Compact;
            EXPECT_TRUE(mustFail || mayFail) << why.toStdString();
            ++m_refused;
            return;
        }
        EXPECT_FALSE(mustFail) << "another row than the one shown";
        // Where nothing but its key was shown, the row that replaced it is the row shown.
        if (what == ReplaceRow)
            tag = u"new"_s;
        const auto target = rowIn(expected);
        ASSERT_TRUE(target != expected.end());
        if (isEdit)
            (*target)[names.indexOf(column)] = written;
        else
            expected.erase(target);
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(after, expected);
        ++m_saved;
    }

    Place m_place;
    const Kind &m_kind;
    std::mt19937 m_random;
    int m_saved = 0;
    int m_refused = 0;
};

bool has(const Kind &kind, const char *engine)
{
    return qstrcmp(kind.engines, "all") == 0 || QByteArray(kind.engines).split(' ').contains(engine);
}

// More with KOVA_TEST_RACES, for a long run.
int rounds(int usual)
{
    return qEnvironmentVariable("KOVA_TEST_RACES").isEmpty()
               ? usual
               : qEnvironmentVariableIntValue("KOVA_TEST_RACES");
}

class OdbcWriteRaces : public AdoTest::OnOdbc
{
};

KOVA_ON_ODBC_ENGINES(OdbcWriteRaces);

TEST_P(OdbcWriteRaces, WriteTheRowThatWasShownOrNothing)
{
    const QByteArray engine = is("SQLite") ? "ODBC/SQLite" : GetParam().name;
    unsigned seed = 1;
    for (const Kind &kind : kinds) {
        if (!has(kind, engine.constData()))
            continue;
        KovaTest::OdbcSession session(connectionString());
        const auto connection = connect();
        Races races({QString::fromLatin1(GetParam().name), [&](const QString &sql) { session.run(sql); },
                     [&](const QString &sql) { return session.ask(sql); },
                     [&](const QString &sql) { return open(sql, connection); }},
                    kind, seed++);
        races.run(rounds(40));
        connection->Close();
        session.run(u"DROP TABLE kova_a"_s);
    }
}

TEST(WriteRaces, WriteTheRowThatWasShownOrNothing)
{
    unsigned seed = 1;
    for (const Kind &kind : kinds) {
        if (!has(kind, "native"))
            continue;
        const AdoTest::TestDatabase database;
        Races races({u"native"_s, [&](const QString &sql) { database.execute(sql); },
                     [&](const QString &sql) { return database.ask(sql).replace(u"NULL"_s, QString()); },
                     [&](const QString &sql) { return database.open(sql); }},
                    kind, seed++);
        races.run(rounds(150));
    }
}

} // namespace
