// Values, names and typed words from a corpus of attacks, in every statement that a session derives, in each
// mode of engines and drivers: they return the right records, the tokens of the statement are the same for
// every text, and a table that no statement names is never shown.
#include "InjectionModes.h"
#include "SessionFixture.h"

#include "../journeys/JourneyDatabase.h"

#include "ado/Error.h"
#include "filter/conditions/FilterCondition.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/LoadResult.h"
#include "session/WindowRules.h"
#include "session/statement/ShownStatement.h"
#include "sql/Names.h"

#include <QtCore/QMimeData>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString secret = u"KOVA-7-SECRET"_s;

class Window final : public PlainWindow
{
public:
    std::vector<int> shownColumns() const override
    {
        std::vector<int> columns;
        for (int c = 1; c < Cols(); ++c)
            columns.push_back(c);
        return columns;
    }
    MarkedCells markedCells() const override { return {currentRow, currentRow, shownColumns()}; }
    void putOnClipboard(std::unique_ptr<QMimeData> data) override { clipboard = data->text(); }

    QString clipboard;
};

// Chooses the second field wherever one is asked for, and sorts by it downwards.
class User final : public Questions
{
public:
    std::optional<QString> ChooseVisibleFields(const QString &, const QList<OfferedField> &offered,
                                               const QStringList &) override
    {
        return offered.value(1).written;
    }
    std::optional<QString> ChooseSort(const QString &, const QList<OfferedField> &offered,
                                      const QStringList &) override
    {
        return offered.value(1).written + u" DESC"_s;
    }
    void show(const QString &text) override { messages += text; }
    void showWithCause(const QString &text, const QString &cause) override { messages += text + cause; }
    bool ask(const QString &, const QString &) override { return true; }
    // Gives up a condition that the database refuses.
    QString askCondition(const ConditionRequest &request) override
    {
        if (request.refusal.isEmpty())
            return condition;
        messages += request.refusal;
        return {};
    }
    std::optional<FindAnswer> askWords(const colDataFields &) override
    {
        return FindAnswer{words, false, {}};
    }

    QString condition;
    QString words;
    QStringList messages;
};

class SessionInjection : public testing::TestWithParam<InjectionMode>
{
protected:
    void SetUp() override
    {
        SharedValues::instance() = {};
        corpus = chosenTexts(mode);
        for (const JourneyEngine &candidate : journeyEngines()) {
            if (qstrcmp(candidate.name, mode.engine) == 0)
                engine = &candidate;
        }
        ASSERT_TRUE(engine);
        if (!engine->isThere())
            GTEST_SKIP() << engine->variable << " is not set";
        database.emplace(*engine);
        dropTables();
        QStringList script{
            u"CREATE TABLE kova_secret (secret VARCHAR(40))"_s,
            u"INSERT INTO kova_secret VALUES ('"_s + secret + u"')"_s,
            u"CREATE TABLE kova_words (id INTEGER PRIMARY KEY, t VARCHAR(200), n INTEGER)"_s +
                (engine->isMariaDb() ? u" CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s : QString())};
        for (qsizetype i = 0; i < corpus.size(); ++i)
            script += u"INSERT INTO kova_words VALUES (%1,%2,1)"_s.arg(i + 1).arg(literal(corpus[i]));
        script += u"INSERT INTO kova_words VALUES (1000,'abc',1)"_s;
        database->run(script);
        SharedValues::instance().dbType = static_cast<AllDBType>(engine->dbType);
    }
    void TearDown() override
    {
        session->detach();
        if (database && engine->store == JourneyEngine::Server)
            dropTables();
    }
    void dropTables()
    {
        if (engine->store == JourneyEngine::Server)
            database->run({u"DROP TABLE IF EXISTS kova_secret"_s, u"DROP TABLE IF EXISTS kova_words"_s,
                           u"DROP TABLE IF EXISTS kova_names"_s});
    }
    // Written without any quote inside, past the code under test.
    QString literal(const QString &text) const
    {
        const QString hex = QString::fromLatin1(text.toUtf8().toHex());
        if (engine->isFilledBySqlite())
            return u"CAST(X'%1' AS TEXT)"_s.arg(hex);
        return (engine->isMariaDb() ? u"CONVERT(X'%1' USING utf8mb4)"_s : u"convert_from('\\x%1','UTF8')"_s)
            .arg(hex);
    }
    QString stored(int id)
    {
        const QString value = engine->isFilledBySqlite() ? u"hex(t)"_s
                              : engine->isMariaDb()      ? u"HEX(CONVERT(t USING utf8mb4))"_s
                                                         : u"encode(convert_to(t,'UTF8'),'hex')"_s;
        const QString hex = database->ask(u"SELECT "_s + value + u" FROM kova_words WHERE id = %1"_s.arg(id));
        return QString::fromUtf8(QByteArray::fromHex(hex.toLatin1()));
    }
    QString connectionString() const
    {
        const QString settings = QString::fromLatin1(mode.settings);
        return settings.isEmpty() ? database->connectionString()
                                  : settings + u';' + database->connectionString();
    }
    bool load(const QString &statement)
    {
        session->texts.connectionString = connectionString();
        session->texts.sqlShow = statement;
        return loadResult(*session);
    }
    Dialect dialect()
    {
        return dialectOf(static_cast<AllDBType>(engine->dbType), session->result().engine());
    }
    // The tokens in this mode, whatever mode the session assumes.
    QString shapeOf(const QString &statement) const
    {
        const SqlDialect reading = engine->isMariaDb()          ? SqlDialect::MySql
                                   : engine->isFilledBySqlite() ? SqlDialect::Standard
                                                                : SqlDialect::PostgreSql;
        return KovaTest::shapeOf(SqlScanner(statement, reading, mode.quoting));
    }
    QString shape() const { return shapeOf(session->shown().text()); }
    // The ids shown, after it has been seen that the planted table is not.
    QString ids()
    {
        QStringList ids;
        for (const QString &row : window.rows) {
            EXPECT_FALSE(row.contains(secret)) << session->shown().text().toStdString();
            ids += row.section(u' ', 0, 0);
        }
        return ids.join(u' ');
    }
    // Known refusals, before anything has been run.
    bool isRefused()
    {
        const bool isRefused = !user.messages.isEmpty();
        for (const QString &message : user.messages)
            EXPECT_TRUE(message.contains(u"不能含有"_s) || message.contains(u"没有执行任何操作"_s))
                << message.toStdString();
        user.messages.clear();
        return isRefused;
    }

    const InjectionMode &mode = GetParam();
    QStringList corpus;
    const JourneyEngine *engine = nullptr;
    std::optional<JourneyDatabase> database;
    ADODB::Adodc adodc;
    Window window;
    User user;
    PlainHost host;
    std::shared_ptr<Session> session = std::make_shared<Session>(window, user, host, controlRules, &adodc);
};

INSTANTIATE_TEST_SUITE_P(Modes, SessionInjection, testing::ValuesIn(injectionModes),
                         [](const auto &mode) { return std::string(mode.param.name); });

} // namespace

TEST_P(SessionInjection, ValuesAndWordsGiveTheirOwnRecords)
{
    ASSERT_TRUE(load(u"SELECT * FROM kova_words"_s)) << user.messages.join(u'\n').toStdString();
    QString cellShape;
    QString dialogShape;
    const auto filterByCell = [&](int row) {
        window.currentRow = row;
        window.currentColumn = 2;
        session->run(u"CellFilter"_s);
    };
    const auto filterByDialog = [&](FilterOperator op, const QString &text) {
        const FilterCondition condition = conditionOf(
            dialect(), {{u"t"_s, writtenName(dialect(), u"t"_s), FieldClass::Text}, op, text, text});
        EXPECT_EQ(condition.fault, QString()) << text.toStdString();
        user.condition = condition.sql;
        session->run(u"Filter"_s);
    };
    filterByCell(static_cast<int>(corpus.size()) + 1);
    ASSERT_EQ(ids(), u"1000"_s);
    cellShape = shape();
    session->run(u"ToOrigin"_s);
    filterByDialog(FilterOperator::Equals, u"abc"_s);
    ASSERT_EQ(ids(), u"1000"_s);
    dialogShape = shape();
    session->run(u"ToOrigin"_s);

    for (qsizetype i = 0; i < corpus.size(); ++i) {
        const QString text = corpus[i];
        const QString id = QString::number(i + 1);
        SCOPED_TRACE(text.toStdString());
        ASSERT_EQ(window.rows.size(), corpus.size() + 1);
        const bool isReadable = window.rows[i] == id + u' ' + text + u" 1"_s;
        filterByCell(static_cast<int>(i) + 1);
        if (!isRefused()) {
            EXPECT_EQ(shape(), cellShape) << session->shown().text().toStdString();
            // A cell's "%" and "_" are LIKE's.
            const bool isPattern = text.contains(u'%') || text.contains(u'_');
            const QString found = ids();
            EXPECT_TRUE(found == id || (isPattern && (u' ' + found + u' ').contains(u' ' + id + u' ')) ||
                        (!isReadable && !found.contains(u' ')))
                << found.toStdString() << ": " << session->shown().text().toStdString();
        }
        session->run(u"ToOrigin"_s);
        filterByDialog(FilterOperator::Equals, text);
        EXPECT_FALSE(isRefused());
        EXPECT_EQ(shape(), dialogShape) << session->shown().text().toStdString();
        EXPECT_TRUE(ids() == id || (!isReadable && !ids().contains(u' ')))
            << ids().toStdString() << ": " << session->shown().text().toStdString();
        session->run(u"ToOrigin"_s);
        user.words = text;
        session->run(u"QuickFilter"_s);
        const QString found = u' ' + ids() + u' ';
        EXPECT_TRUE(isRefused() || !isReadable || found.contains(u' ' + id + u' '))
            << session->shown().text().toStdString();
        session->run(u"ToOrigin"_s);
        if (HasFailure())
            break;
    }
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM kova_words"_s), QString::number(corpus.size() + 1));
}

TEST_P(SessionInjection, WrittenValuesAreStoredAsTheyAre)
{
    if (!engine->isWritable())
        GTEST_SKIP() << "can only be read";
    ASSERT_TRUE(load(u"SELECT * FROM kova_words"_s));
    ADODB::Recordset &recordset = *session->result().recordset();
    for (qsizetype i = 0; i < corpus.size() && !HasFailure(); ++i) {
        const QString text = corpus[i];
        SCOPED_TRACE(text.toStdString());
        recordset.PutAbsolutePosition(corpus.size() + 1);
        try {
            recordset.Fields().Item(1).PutValue(text);
            recordset.Update();
            EXPECT_EQ(recordset.CellText(corpus.size() + 1, 1), text);
            EXPECT_EQ(stored(1000), text);
        } catch (const ADODB::Error &error) {
            recordset.CancelUpdate();
            EXPECT_NE(stored(1000), text) << error.what();
        }
    }
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM kova_words"_s), QString::number(corpus.size() + 1));
}

TEST_P(SessionInjection, CopiedStatementsHoldTheirOwnValues)
{
    if (QByteArray(mode.settings).contains("SET NAMES"))
        GTEST_SKIP() << "the statements are run past the control, which sets the session right";
    ASSERT_TRUE(load(u"SELECT * FROM kova_words"_s));
    std::optional<OdbcSession> other;
    const bool isServer = engine->store == JourneyEngine::Server;
    if (isServer)
        other.emplace(connectionString());
    QString insertShape;
    QString listShape;
    for (qsizetype i = corpus.size(); i >= 0 && !HasFailure(); --i) { // the plain one first
        const QString text = corpus.value(i, u"abc"_s);
        const int id = i == corpus.size() ? 1000 : static_cast<int>(i) + 1;
        SCOPED_TRACE(text.toStdString());
        const bool isReadable = window.rows[i] == QString::number(id) + u' ' + text + u" 1"_s;
        window.currentRow = static_cast<int>(i) + 1;
        window.currentColumn = 2;
        session->run(u"CopyAsInList"_s);
        const QString list = shapeOf(window.clipboard);
        session->run(u"CopyAsInsert"_s);
        QString insert = shapeOf(window.clipboard);
        insert.replace(u" "_s + QString::number(id) + u" ,"_s, u" 1 ,"_s);
        if (listShape.isEmpty()) {
            listShape = list;
            insertShape = insert;
        }
        EXPECT_EQ(list, listShape);
        EXPECT_EQ(insert, insertShape) << window.clipboard.toStdString();
        if (!engine->isWritable() || !isReadable)
            continue;
        QString statement = window.clipboard.trimmed();
        statement.chop(1);
        const QString remove = u"DELETE FROM kova_words WHERE id = %1"_s.arg(id);
        if (isServer) {
            other->run(remove);
            other->run(statement);
        } else {
            database->run({remove, statement});
        }
        EXPECT_EQ(stored(id), text) << statement.toStdString();
    }
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM kova_words"_s), QString::number(corpus.size() + 1));
}

TEST_P(SessionInjection, NamesMeanTheirOwnFieldsAndTables)
{
    if (!engine->isWritable() || qstrlen(mode.settings) != 0)
        GTEST_SKIP() << "names are written the same way there as in the engine's own mode";
    int tried = 0;
    for (const QString &name : corpus) {
        SCOPED_TRACE(name.toStdString());
        const QChar quote(engine->isMariaDb() ? u'`' : u'"');
        const QString quoted = enclosed(quote, name, quote);
        // Names that the engine accepts.
        if (name.endsWith(u' ') || name.toUtf8().size() > 60 || name.contains(u'\r') ||
            (engine->isMariaDb() && (name.contains(u'/') || name.contains(u'\\') || name.contains(u'.'))))
            continue;
        for (const bool isTable : {false, true}) {
            const QString table = isTable ? quoted : u"kova_names"_s;
            const QString field = isTable ? u"f"_s : quoted;
            if (isTable && (name.compare(u"kova_secret"_s) == 0 || name.startsWith(u"sqlite_"_s)))
                continue;
            database->run(
                {u"DROP TABLE IF EXISTS "_s + table,
                 u"CREATE TABLE %1 (id INTEGER, %2 VARCHAR(10), PRIMARY KEY (id))"_s.arg(table, field),
                 u"INSERT INTO %1 VALUES (1,'a')"_s.arg(table),
                 u"INSERT INTO %1 VALUES (2,'b')"_s.arg(table)});
            user.messages.clear();
            const bool isLoaded =
                load(u"SELECT * FROM "_s +
                     (isTable ? quotedName(dialectOf(static_cast<AllDBType>(engine->dbType),
                                                     engine->isMariaDb()          ? Engine::MySQL
                                                     : engine->isFilledBySqlite() ? Engine::SQLite
                                                                                  : Engine::PostgreSQL),
                                           name)
                              : table));
            if (isLoaded) {
                ++tried;
                const QString whole = ids();
                EXPECT_EQ(whole, u"1 2"_s);
                window.currentRow = 2;
                window.currentColumn = 2;
                session->run(u"CellFilter"_s);
                // Where a name can't be written the command is refused and everything stays.
                EXPECT_TRUE(ids() == u"2"_s || ids() == whole) << session->shown().text().toStdString();
                session->run(u"ToOrigin"_s);
                session->run(u"Sort"_s);
                EXPECT_TRUE(ids() == u"2 1"_s || ids() == whole) << session->shown().text().toStdString();
                session->run(u"ToOrigin"_s);
                session->run(u"SelField"_s);
                for (const QString &row : window.rows)
                    EXPECT_FALSE(row.contains(secret)) << session->shown().text().toStdString();
                session->run(u"ToFullTable"_s);
                for (const QString &row : window.rows)
                    EXPECT_FALSE(row.contains(secret)) << session->shown().text().toStdString();
            }
            session->clear();
            database->run({u"DROP TABLE "_s + table});
        }
        if (HasFailure())
            break;
    }
    EXPECT_GT(tried, corpus.size() / 2) << "names that the engine takes";
}
