// Random statements, simple and difficult, over a small database: a Delete or an Update changes exactly the
// row that was shown, or it changes nothing and reports an error. Copies of all tables, read by SQLite
// itself, are compared.

#include "TestDatabase.h"
#include "Throwing.h"

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::TestDatabase;

namespace {

using Rows = QList<QStringList>;

// The values of one table are keys of others and of other rows, so a wrong key finds a row too.
const QString schema = u"CREATE TABLE S(id INTEGER PRIMARY KEY, v INTEGER, name TEXT);"
                       "CREATE TABLE N(a TEXT, b INTEGER);"
                       "CREATE TABLE P(k TEXT PRIMARY KEY, v INTEGER);"
                       "CREATE TABLE W(k TEXT, n INTEGER, v INTEGER, PRIMARY KEY(k, n)) WITHOUT ROWID;"
                       "CREATE VIEW SV AS SELECT * FROM S;"_s;
const QString content =
    u"DELETE FROM S; DELETE FROM N; DELETE FROM P; DELETE FROM W;"
    "INSERT INTO S VALUES (1, 2, 'x'), (2, 3, 'x'), (3, 3, NULL), (5, 1, '5'), (7, NULL, 'y');"
    "INSERT INTO N VALUES ('x', 2), ('x', 2), ('y', 1), (NULL, 3), ('5', 5);"
    "INSERT INTO P VALUES ('x', 1), ('y', 3), ('3', 2), (NULL, 2), (NULL, 2);"
    "INSERT INTO W VALUES ('x', 1, 2), ('x', 2, 1), ('y', 1, 2), ('5', 3, 7);"_s;

struct Table
{
    QString name;
    QStringList columns;
    QStringList key; // with which a row is told from all others; a rowid is no column
};

const std::vector<Table> tables{
    {u"S"_s, {u"id"_s, u"v"_s, u"name"_s}, {u"id"_s}},
    {u"N"_s, {u"a"_s, u"b"_s}, {u"rowid"_s}},
    {u"P"_s, {u"k"_s, u"v"_s}, {u"rowid"_s}},
    {u"W"_s, {u"k"_s, u"n"_s, u"v"_s}, {u"k"_s, u"n"_s}},
};

struct Case
{
    const Table *table = nullptr;
    QString sql;
    QString asked;          // the same, followed by all columns of the table
    QStringList fields;     // the column that each field shows; empty for a computed one
    bool isRefused = false; // rows of this result are none of the table
};

class Generator
{
public:
    explicit Generator(unsigned seed) : m_engine(seed) {}

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_engine); }

    template<typename List>
    auto one(const List &list)
    {
        return list[static_cast<typename List::size_type>(below(static_cast<int>(list.size())))];
    }

    Case next()
    {
        Case made;
        made.table = &tables[static_cast<std::size_t>(below(static_cast<int>(tables.size())))];
        const QString alias = one(QStringList{made.table->name, u"A"_s, u"\"a,b\""_s});
        QStringList items;
        for (int i = 1 + below(4); i > 0; --i)
            items += item(made, alias);
        const bool isNasty = below(5) == 0;
        if (isNasty) {
            made.isRefused = true;
            nasty(made, alias, items);
            return made;
        }
        const QString source = made.table->name + (alias == made.table->name ? QString() : u" AS "_s + alias);
        const QStringList key = qualified(alias, made.table->key);
        const QString tail =
            u" FROM "_s + source +
            one(QStringList{QString(), u" WHERE 1"_s, u" WHERE (SELECT count(*) FROM S) > 0"_s,
                            u" WHERE %1 IS NOT (SELECT 'none')"_s.arg(key.front())}) +
            u" ORDER BY "_s + one(QStringList{QString(), key.back() + u" % 2, "_s}) + key.join(u", "_s) +
            one(QStringList{QString(), u" DESC"_s}) +
            one(QStringList{QString(), u" LIMIT 3"_s, u" LIMIT 4 OFFSET 1"_s});
        made.sql = decorated(u"SELECT "_s + items.join(u", "_s) + tail);
        made.asked = u"SELECT "_s + (items + qualified(alias, stored(*made.table))).join(u", "_s) + tail;
        return made;
    }

    // Distinguishes the copies of rows: the rowid, if that is not a column, and all columns.
    static QStringList stored(const Table &table)
    {
        return table.columns.contains(table.key.front()) ? table.columns : table.key + table.columns;
    }

private:
    static QStringList qualified(const QString &alias, QStringList names)
    {
        for (QString &name : names)
            name.prepend(alias + u'.');
        return names;
    }

    static QString filled(QString text, const QString &alias, const QString &table, const QString &column)
    {
        return text.replace("{alias}"_L1, alias).replace("{table}"_L1, table).replace("{column}"_L1, column);
    }

    QString item(Case &made, const QString &alias)
    {
        const QString column = one(made.table->columns);
        switch (below(8)) {
        case 0:
            made.fields += made.table->columns;
            return filled(one(QStringList{u"*"_s, alias + u".*"_s}), alias, made.table->name, column);
        case 1:
        case 2:
        case 3:
            made.fields += column;
            return filled(one(QStringList{u"{column}"_s, u"{alias}.{column}"_s, u"[{column}]"_s,
                                          u"\"{column}\" AS [x,y]"_s, u"{alias}.`{column}` 'z'"_s,
                                          u"{alias}.{column} AS {column}"_s}),
                          alias, made.table->name, column);
        case 4:
            if (made.isRefused || below(3) > 0) // SQLite allows no two of them that differ in kind
                break;
            made.fields += QString();
            made.isRefused = true;
            return filled(
                one(QStringList{u"max({alias}.{column})"_s, u"(SELECT max({alias}.{column}))"_s,
                                u"count(*)"_s, u"(SELECT (SELECT min({alias}.{column})) FROM (SELECT 1))"_s,
                                u"sum({alias}.{column}) OVER ()"_s, u"1 + total({column})"_s}),
                alias, made.table->name, column);
        default:
            break;
        }
        made.fields += QString();
        // Named like a column wherever that could mislead.
        return filled(
            one(QStringList{
                u"(SELECT x.{column} FROM {table} x WHERE x.{column} > {alias}.{column} ORDER BY 1 LIMIT 1) AS {column}"_s,
                u"(SELECT x.{column} FROM {table} x ORDER BY x.{column} DESC) AS {column}"_s,
                u"(SELECT id FROM S WHERE id = 5) AS {column}"_s,
                u"(SELECT id FROM SV) AS id"_s,
                u"(SELECT k FROM W WHERE n = 3) AS k"_s,
                u"(SELECT max(x.{column}) FROM {table} x) AS {column}"_s,
                u"(SELECT {alias}.{column}) AS {column}"_s,
                u"({column}) AS {column}"_s,
                u"{column} + 0 AS {column}"_s,
                u"+{column} AS {column}"_s,
                u"coalesce({column}, 3) AS {column}"_s,
                u"CASE WHEN 1 THEN {column} END AS {column}"_s,
                u"CAST({column} AS TEXT) AS {column}"_s,
                u"{column} COLLATE NOCASE"_s,
                u"'{column}'"_s,
                u"7 AS {column}"_s,
                u"(WITH c AS (SELECT * FROM {table}) SELECT {column} FROM c) AS {column}"_s,
                u"{column} ISNULL"_s,
                u"(SELECT count(*)) AS v"_s,
                u"{column} IN (SELECT id FROM S) AS {column}"_s}),
            alias, made.table->name, column);
    }

    void nasty(Case &made, const QString &alias, const QStringList &items)
    {
        // Stars and bare names would be ambiguous or mean more columns in a join.
        QString sql = one(QStringList{
            u"SELECT {column} FROM {table} {alias}, S other"_s,
            u"SELECT {column} FROM S o1 JOIN {table} {alias} ON o1.id = 5"_s,
            u"SELECT {column} FROM {table} {alias} LEFT JOIN {table} o2 ON 0"_s,
            u"SELECT {list} FROM (SELECT * FROM {table}) AS {alias}"_s,
            u"WITH c AS (SELECT * FROM {table}) SELECT {list} FROM c AS {alias}"_s,
            u"WITH {table} AS (SELECT * FROM main.{table}) SELECT {list} FROM {table} AS {alias}"_s,
            u"SELECT DISTINCT {list} FROM {table} AS {alias}"_s,
            u"SELECT {list} FROM {table} AS {alias} GROUP BY {column}"_s,
            u"SELECT {column} FROM {table} AS {alias} UNION ALL SELECT {column} FROM {table} AS {alias}"_s,
            u"SELECT id, v, name FROM SV"_s, u"VALUES (1), (2)"_s});
        made.fields.clear();
        sql.replace("{list}"_L1, items.join(u", "_s));
        made.sql =
            decorated(filled(sql, alias, made.table->name, alias + u'.' + made.table->columns.front()));
    }

    // Adds blanks and comments between the words, which have no meaning.
    QString decorated(const QString &sql)
    {
        QStringList words = sql.split(u' ');
        for (qsizetype i = 1; i < words.size(); ++i)
            words[i].prepend(one(QStringList{u" "_s, u" "_s, u" "_s, u"\n\t"_s, u" /* , FROM S ( */ "_s,
                                             u" -- (SELECT ' \n"_s}));
        return words.join(QString()) + one(QStringList{QString(), u";"_s, u" -- , end"_s});
    }

    std::mt19937 m_engine;
};

std::vector<Rows> copyOf(const TestDatabase &database)
{
    std::vector<Rows> copies;
    for (const Table &table : tables) {
        copies.push_back(
            database.rows(u"SELECT %1 FROM %2"_s.arg(Generator::stored(table).join(u", "_s), table.name)));
        std::sort(copies.back().begin(), copies.back().end());
    }
    return copies;
}

bool succeeds(const std::function<void()> &action)
{
    try {
        action();
        return true;
    } catch (const Error &error) {
        EXPECT_FALSE(error.Description().isEmpty());
        return false;
    }
}

struct Tally
{
    int deleted = 0;
    int updated = 0;
    int refused = 0;
};

class WriteBackProperty : public testing::TestWithParam<unsigned>
{
protected:
    WriteBackProperty() : m_database(schema), m_generator(GetParam()) {}

    void nothingMayChange(const Case &made)
    {
        const auto recordset = m_database.open(made.sql);
        const auto before = copyOf(m_database);
        for (int i = 0; i < recordset->Fields().Count(); ++i) {
            EXPECT_EQ(recordset->Fields().Item(i).Attributes() & adFldUpdatable, 0);
            EXPECT_FALSE(succeeds([&] { recordset->Fields().Item(i).PutValue(1); }));
        }
        EXPECT_FALSE(succeeds([&] { recordset->Delete(); }));
        EXPECT_EQ(copyOf(m_database), before);
        ++m_tally.refused;
    }

    void oneRowChanges(const Case &made)
    {
        const Rows asked = m_database.rows(made.asked);
        const auto recordset = m_database.open(made.sql);
        ASSERT_EQ(recordset->RecordCount(), asked.size());
        ASSERT_EQ(recordset->Fields().Count(), made.fields.size());
        const int record = m_generator.below(static_cast<int>(asked.size()));
        recordset->PutAbsolutePosition(record + 1);
        QStringList row = asked[record].sliced(made.fields.size());

        if (m_generator.below(3) > 0) {
            const int field = m_generator.below(static_cast<int>(made.fields.size()));
            update(*recordset, made, field, row);
        }
        remove(*recordset, made, row);
    }

    // `row` receives its new values.
    void update(Recordset &recordset, const Case &made, int field, QStringList &row)
    {
        auto model = copyOf(m_database);
        const auto before = model;
        const QString column = made.fields[field];
        const qint32 number = 1000 + m_generator.below(1000);
        const bool done = succeeds([&] {
            recordset.Fields().Item(field).PutValue(number);
            recordset.Update();
        });
        if (!done) {
            EXPECT_TRUE(column.isEmpty());
            EXPECT_EQ(copyOf(m_database), before);
            ++m_tally.refused;
            recordset.CancelUpdate();
            return;
        }
        EXPECT_FALSE(column.isEmpty()) << "computed";
        const auto place = Generator::stored(*made.table).indexOf(column);
        Rows &rows = model[static_cast<std::size_t>(made.table - tables.data())];
        EXPECT_TRUE(rows.removeOne(row));
        const bool isText = QStringList{u"name"_s, u"a"_s, u"k"_s}.contains(column);
        row[place] = (isText ? u"3:"_s : u"1:"_s) + QString::number(number);
        rows += row;
        std::sort(rows.begin(), rows.end());
        EXPECT_EQ(copyOf(m_database), model);
        EXPECT_EQ(recordset.CellText(recordset.AbsolutePosition(), field), QString::number(number));
        ++m_tally.updated;
    }

    void remove(Recordset &recordset, const Case &made, const QStringList &row)
    {
        auto model = copyOf(m_database);
        ASSERT_TRUE(succeeds([&] { recordset.Delete(); }));
        EXPECT_TRUE(model[static_cast<std::size_t>(made.table - tables.data())].removeOne(row));
        EXPECT_EQ(copyOf(m_database), model);
        ++m_tally.deleted;
    }

    TestDatabase m_database;
    Generator m_generator;
    Tally m_tally;
};

TEST_P(WriteBackProperty, ChangesTheRowThatWasSeenOrNothing)
{
    for (int i = 0; i < 150 && !HasFailure(); ++i) {
        m_database.execute(content);
        const Case made = m_generator.next();
        SCOPED_TRACE(made.sql.toStdString());
        if (made.isRefused)
            nothingMayChange(made);
        else
            oneRowChanges(made);
    }
    EXPECT_GT(m_tally.deleted, 50);
    EXPECT_GT(m_tally.updated, 20);
    EXPECT_GT(m_tally.refused, 20);
}

INSTANTIATE_TEST_SUITE_P(Seeds, WriteBackProperty, testing::Range(1U, 5U));

} // namespace
