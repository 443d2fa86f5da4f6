#include "EngineStatements.h"

#include <KOVAVSFDataGridLib/ado/Error.h>
#include <KOVAVSFDataGridLib/ado/Recordset.h>

#include <QtWidgets/QMenu>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace KovaTest {

void EngineStatements::SetUp()
{
    EngineTest::SetUp();
    if (IsSkipped())
        return;
    hands->grid.resize(1400, 320);
    // Painting after each of thousands of commands takes a third of the time; it is the same on every engine.
    const bool isPainted = engine.isFilledBySqlite() && !engine.variable;
    hands->grid.setUpdatesEnabled(isPainted);
    createTables();
    connection = std::make_shared<ADODB::Connection>();
    connection->Open(database->connectionString());
}

// The fields of Odd, as the engine's statements write them.
QStringList EngineStatements::oddNames() const
{
    QStringList names{u"order"_s,  u"group by"_s, u"no#"_s, u"it's"_s, u"a\"b"_s,
                      u"2023年"_s, u"占比%"_s,    u"A-B"_s, u"a]b"_s,  u"No"_s};
    if (engine.isFilledBySqlite())
        names.append(u"where "_s); // MariaDB doesn't allow a trailing blank
    const QString quote = engine.quoted({}).left(1);
    for (QString &name : names)
        name = engine.quoted(name.replace(quote, quote + quote));
    return names;
}

void EngineStatements::createTables()
{
    const QStringList odd = oddNames();
    const QStringList types{u"INTEGER PRIMARY KEY"_s, u"VARCHAR(20)"_s, u"INTEGER"_s};
    QStringList columns;
    for (qsizetype i = 0; i < odd.size(); ++i)
        columns.append(odd.at(i) + u' ' + types.value(i, u"VARCHAR(20)"_s));
    const QString collation =
        engine.isMariaDb() ? u" CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s : QString();
    database->run(
        {u"DROP VIEW IF EXISTS AllCust"_s, u"DROP TABLE IF EXISTS Item"_s, u"DROP TABLE IF EXISTS Ord"_s,
         u"DROP TABLE IF EXISTS Cust"_s, u"DROP TABLE IF EXISTS 客户"_s, u"DROP TABLE IF EXISTS Odd"_s,
         u"CREATE TABLE Odd("_s + columns.join(u',') + u')' + collation,
         u"CREATE TABLE Cust(ID INTEGER PRIMARY KEY, Name VARCHAR(40), City VARCHAR(40))"_s + collation,
         u"CREATE VIEW AllCust AS SELECT ID, Name, City FROM Cust"_s,
         u"CREATE TABLE Ord(ID INTEGER PRIMARY KEY, Name VARCHAR(40), Qty INTEGER, Price DECIMAL(8,2), "
         "Cust INTEGER)"_s +
             collation,
         u"CREATE TABLE Item(Ord INTEGER, Item VARCHAR(40), N INTEGER)"_s + collation,
         u"CREATE TABLE 客户(名称 VARCHAR(20), 城市 VARCHAR(20))"_s + collation});
    fillTables();
}

void EngineStatements::fillTables()
{
    QStringList rows{u"(1,'anna',5"_s, u"(2,'bob',NULL"_s, u"(3,'zoe',2"_s};
    for (qsizetype field = 3; field < oddNames().size(); ++field) {
        for (qsizetype row = 0; row < rows.size(); ++row)
            rows[row] += row == 1 ? u",NULL"_s : u",'text %1'"_s.arg(field * (row + 1));
    }
    database->run(
        {u"DELETE FROM Odd"_s, u"DELETE FROM Cust"_s, u"DELETE FROM Ord"_s, u"DELETE FROM Item"_s,
         u"DELETE FROM 客户"_s, u"INSERT INTO Odd VALUES "_s + rows.join("),"_L1) + u')',
         u"INSERT INTO Cust VALUES (1,'anna','B'),(2,'bob','A'),(3,'cid','B'),(4,'b order by c','A')"_s,
         u"INSERT INTO Ord VALUES (1,'bob',5,1.5,1),(2,'anna',2,2.25,2),(3,'zoe',1,9,1),"
         "(4,'a order by b',3,4,3),(5,'x where y',2,0.5,2),(6,' FROM x',NULL,3,1),(7,'anna',4,2.25,3),"
         "(8,NULL,1,8,4)"_s,
         u"INSERT INTO Item VALUES (1,'tea',3),(1,'cup',0),(2,'tea',1),(3,'pot',2),(7,'jug',5),(7,'tea',4)"_s,
         u"INSERT INTO 客户 VALUES ('甲','北京'),('乙','上海'),('丙',''),('丁','北京')"_s});
}

std::optional<StatementAnswer> EngineStatements::read(const QString &statement) const
{
    try {
        ADODB::Recordset records;
        records.Open(statement, connection);
        StatementAnswer answer;
        for (int field = 0; field < records.Fields().Count(); ++field)
            answer.names.append(records.Fields().Item(field).Name());
        for (qint64 record = 1; record <= records.RecordCount(); ++record) {
            QStringList row;
            for (int field = 0; field < answer.names.size(); ++field)
                row.append(records.CellText(record, field));
            answer.rows.push_back(row);
        }
        return answer;
    } catch (const ADODB::Error &) {
        return std::nullopt;
    }
}

StatementAnswer EngineStatements::shownBy(const QTableView &table, int mostRows)
{
    StatementAnswer answer;
    const QAbstractItemModel &model = *table.model();
    std::vector<int> columns;
    for (int col = 0; col < model.columnCount(); ++col) {
        if (!table.isColumnHidden(col))
            columns.push_back(col);
    }
    for (const int col : columns)
        answer.names.append(model.headerData(col, Qt::Horizontal).toString());
    const int rows = std::min(mostRows, model.rowCount());
    for (int row = 0; row < rows; ++row) {
        QStringList texts;
        for (const int col : columns)
            texts.append(model.index(row, col).data().toString());
        answer.rows.push_back(texts);
    }
    return answer;
}

void EngineStatements::expectShown(StatementAnswer expected, const char *after) const
{
    StatementAnswer actual = shown();
    std::sort(actual.rows.begin(), actual.rows.end());
    std::sort(expected.rows.begin(), expected.rows.end());
    EXPECT_EQ(actual.names, expected.names) << after << '\n' << qUtf8Printable(hands->statement());
    EXPECT_TRUE(actual.rows == expected.rows)
        << after << '\n'
        << qUtf8Printable(hands->statement()) << '\n'
        << actual.rows.size() << " rows instead of " << expected.rows.size();
    EXPECT_TRUE(hands->messages.shown().empty()) << after << '\n'
                                                 << qUtf8Printable(hands->messages.texts().join(u'|')) << '\n'
                                                 << qUtf8Printable(hands->statement());
    hands->messages.clear();
}

void EngineStatements::back(const StatementAnswer &all)
{
    hands->click(u"ToPreview"_s);
    expectShown(all, "ToPreview");
}

bool EngineStatements::canUse(const QString &key)
{
    const QAction &action = *hands->button(key);
    if (!action.isEnabled())
        ADD_FAILURE() << qUtf8Printable(key) << ' ' << qUtf8Printable(action.toolTip());
    return action.isEnabled();
}

StatementAnswer EngineStatements::sameText(const StatementAnswer &all, qsizetype column,
                                           const QString &text) const
{
    const bool hasTwoForms = engine.isFilledBySqlite() && engine.variable;
    const auto isSame = [&](const QString &other) {
        bool isNumber = false;
        const double value = text.toDouble(&isNumber);
        return other == text || (hasTwoForms && isNumber && !other.isEmpty() &&
                                 other.toDouble(&isNumber) == value && isNumber);
    };
    StatementAnswer kept = all;
    std::erase_if(kept.rows, [&](const QStringList &row) { return !isSame(row.at(column)); });
    return kept;
}

bool EngineStatements::canChoose(int item)
{
    const auto *action = hands->grid.findChild<QAction *>(u"PopMnuDataAction%1"_s.arg(item));
    const QString toolTipOfText = QAction(action->text()).toolTip(); // of an action that has none
    EXPECT_EQ(action->isEnabled(), action->toolTip() == toolTipOfText);
    return action->isEnabled();
}

int EngineStatements::recordsInTables()
{
    return database->ask(u"SELECT count(*) FROM Ord"_s).toInt() +
           database->ask(u"SELECT count(*) FROM Cust"_s).toInt() +
           database->ask(u"SELECT count(*) FROM Item"_s).toInt() +
           database->ask(u"SELECT count(*) FROM Odd"_s).toInt() +
           database->ask(u"SELECT count(*) FROM 客户"_s).toInt();
}

std::vector<Case> EngineStatements::cases() const
{
    std::vector<Case> all = ReadCases({u"statements.cases"_s, u"server_statements.cases"_s});
    const QString list = u"SELECT "_s + oddNames().join(u", "_s) + u" FROM Odd"_s;
    all.push_back({u"odd names"_s, {{u"statement"_s, list}, {u"whole"_s, list}}});
    all.push_back({u"odd names under *"_s, {{u"statement"_s, u"SELECT * FROM Odd"_s}}});
    return all;
}

int EngineStatements::forEachTaken(const std::function<void(const TakenCase &)> &use)
{
    int taken = 0;
    const std::vector<Case> all = cases();
    for (std::size_t number = 0; number < all.size() && !HasFatalFailure(); ++number) {
        SCOPED_TRACE(all[number].place.toStdString());
        const QString statement = all[number][u"statement"_s];
        if (const auto answer = read(statement)) {
            ++taken;
            use({all[number], number, statement, *answer});
        } else {
            leftOut.append(all[number].place); // syntax of another engine
        }
    }
    return taken;
}

void EngineStatements::runShare(const TakenCase &taken,
                                const std::vector<std::function<void()>> &commands) const
{
    std::size_t shares = 0;
    std::size_t own = 0;
    for (const JourneyEngine &other : enginesOfStatements()) {
        if (QLatin1StringView(other.name) == QLatin1StringView(engine.name))
            own = shares;
        if (engine.isMariaDb() && other.isMariaDb() && other.isThere())
            ++shares;
    }
    if (engine.isFilledBySqlite() && engine.variable)
        shares = 2;
    shares = std::max<std::size_t>(shares, 1);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if ((taken.number + i) % shares == own)
            commands[i]();
    }
}

Qt::CaseSensitivity EngineStatements::letters() const
{
    return engine.store == JourneyEngine::Server ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

bool EngineStatements::isOnlyOne(const StatementAnswer &all, qsizetype column)
{
    return all.names.count(all.names.at(column)) == 1;
}

const std::vector<JourneyEngine> &enginesOfStatements()
{
    static const std::vector<JourneyEngine> engines = [] {
        std::vector<JourneyEngine> some = journeyEngines();
        std::erase_if(some, [](const JourneyEngine &engine) { // another way to an engine that is there
            return QLatin1StringView(engine.name).contains(QLatin1StringView("Bouncer"));
        });
        return some;
    }();
    return engines;
}

} // namespace KovaTest
