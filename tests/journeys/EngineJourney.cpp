#include "EngineJourney.h"

#include "SpreadTable.h"

#include "support/Dialogs.h"

#include <QtWidgets/QComboBox>

using namespace Qt::StringLiterals;

namespace KovaTest {

void EngineTest::SetUp()
{
    if (!engine.isThere())
        GTEST_SKIP() << engine.variable
                     << " is not set: its server or driver is not installed, or the test was "
                     << "not started by tests/servers/with-servers";
    database = std::make_unique<JourneyDatabase>(engine);
    hands = std::make_unique<Hands>(database->connectionString(), engine.dbType);
}

void EngineJourney::SetUp()
{
    EngineTest::SetUp();
    if (IsSkipped())
        return;
    // What a column's comparisons mean is its collation's affair; here the plain one everywhere.
    const QString create =
        u"CREATE TABLE journey_goods (id INTEGER PRIMARY KEY, 名称 VARCHAR(60) NOT NULL, %1"
        " DECIMAL(10,2), qty INTEGER, 城市 VARCHAR(20), 日期 DATE, 停用 BOOLEAN, 图片 %2)%3"_s;
    const QString insert = u"INSERT INTO journey_goods (id,名称,%1,qty,城市,日期,停用,图片) VALUES "_s;
    const QString yes = engine.isFilledBySqlite() ? u"1"_s : u"TRUE"_s;
    const QString no = engine.isFilledBySqlite() ? u"0"_s : u"FALSE"_s;
    const QString rows =
        u"(1,'龙井茶',128,3,'杭州','2024-01-05',%2,NULL),(2,'普洱茶',236,12,'昆明','2024-02-29',%2,%3),"
        "(3,'铁观音',168.5,-7,'厦门',NULL,%1,NULL),(4,'花茶',49.5,0,'北京','2023-12-31',%2,NULL),"
        "(5,'大米',79.9,12,'大连','2024-03-01',%2,NULL),(6,'花生油',118.9,5,'青岛',NULL,%2,NULL),"
        "(7,'挂面',12.5,8,'西安','2024-01-05',%1,NULL),(8,'木耳',38.8,NULL,'大连',NULL,%2,NULL),"
        "(9,'香菇',45.2,1,NULL,'2024-04-04',%2,NULL),(10,'O''Neil 红茶',88,1,'上海',NULL,%2,NULL),"
        "(11,'绿茶 🍵',66,2,'杭州',NULL,%2,NULL),(12,'白茶',99,4,'厦门',NULL,NULL,NULL)"_s;
    database->run(
        {u"DROP TABLE IF EXISTS journey_orders"_s, u"DROP TABLE IF EXISTS journey_goods"_s,
         create.arg(engine.quoted(price), QString::fromLatin1(engine.binary),
                    engine.isMariaDb() ? u" CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s : QString()),
         insert.arg(engine.quoted(price)) + rows.arg(yes, no, engine.bytes("424D00FF"))});
    if (engine.isSpread())
        return spreadTable(engine, u"journey_goods"_s);
    database->run({u"CREATE TABLE journey_orders (id INTEGER PRIMARY KEY, goods INTEGER,"
                   " FOREIGN KEY (goods) REFERENCES journey_goods(id))"_s,
                   u"INSERT INTO journey_orders VALUES (1,3)"_s});
}

bool EngineJourney::load()
{
    // Records of several databases come in any order.
    const QString order = engine.isSpread() ? u" ORDER BY id"_s : QString();
    return hands->load(u"SELECT * FROM journey_goods"_s + order, u"SELECT id,名称 FROM journey_goods"_s);
}

QString EngineJourney::writtenPrice() const
{
    if (!price.contains(u' '))
        return price;
    if (engine.isMariaDb())
        return u"`%1`"_s.arg(price);
    return (engine.dbType == KOVAVSFDataGrid::dbOracle ? u"\"%1\""_s : u"[%1]"_s).arg(price);
}

QStringList EngineJourney::allFields() const
{
    return {u"id"_s, u"名称"_s, price, u"qty"_s, u"城市"_s, u"日期"_s, u"停用"_s, u"图片"_s};
}

void buildFilter(QDialog &dialog, const QString &field, const QString &op, const QString &value)
{
    part<QComboBox>(dialog, "cmbField1").setCurrentText(field);
    part<QComboBox>(dialog, "cmbOperator1").setCurrentText(op);
    if (!value.isNull()) {
        part<QLineEdit>(dialog, "txtValue1").clear();
        compose(part<QLineEdit>(dialog, "txtValue1"), value);
    }
    press(dialog, "cmd_Filter");
}

} // namespace KovaTest
