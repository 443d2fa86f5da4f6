#include "Shop.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

const QString Script =
    u"CREATE TABLE 商品 (ID INTEGER PRIMARY KEY, 名称 VARCHAR(20) NOT NULL, \"Unit Price\" NUMERIC(8,2),"
    " 城市 VARCHAR(10), 日期 DATE, 停用 BOOLEAN, 图片 BLOB);"
    "INSERT INTO 商品 VALUES "
    "(1,'龙井茶',128,'杭州','2024-01-05',0,NULL),(2,'普洱茶',236,'昆明','2024-02-29',0,x'424D'),"
    "(3,'铁观音',168,'厦门',NULL,1,NULL),(4,'花茶',49.5,'北京','2023-12-31',0,NULL),(5,'大米',79.9,'大连','"
    "2024-03-01',0,NULL),"
    "(6,'花生油',118.9,'青岛',NULL,0,NULL),(7,'挂面',12.5,'西安','2024-01-05',1,NULL),(8,'木耳',38.8,'大连',"
    "NULL,0,NULL),"
    "(9,'香菇',45.2,NULL,'2024-04-04',0,NULL),(10,'O''Neil 红茶',88,'上海',NULL,0,NULL),"
    "(11,'绿茶',66,'杭州',NULL,0,NULL),(12,'白茶',99,'厦门',NULL,NULL,NULL);"
    "CREATE TABLE 订单 (ID INTEGER PRIMARY KEY, 商品 INTEGER REFERENCES 商品(ID)); INSERT INTO 订单 VALUES (1,3);"_s;

} // namespace

ShopDatabase::ShopDatabase() : database(Script) {}

Shop::Shop() : Hands(database.connectionString(), KOVAVSFDataGrid::dbAccess) {}

bool Shop::load(const QString &statement, const QString &part)
{
    return Hands::load(statement, part);
}

void Shop::makeCurrent(const QString &field)
{
    const QModelIndex cell = list->model()->index(listedRow(field), 1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(cell).center());
    list->setFocus();
}

QString Shop::stored(const QString &field, int id) const
{
    return computed(u'"' + field + u'"', id);
}

QString Shop::computed(const QString &expression, int id) const
{
    return database.ask(u"SELECT %1 FROM 商品 WHERE ID = %2"_s.arg(expression).arg(id));
}

} // namespace KovaTest
