// A host that has only a QWidget and names: everything is called through the meta-object.
#include <KOVAVSFDataGrid>

#include "support/TestDatabase.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QTableView>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct LateBound : testing::Test
{
    TestDatabase database{u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Name TEXT);"
                          "INSERT INTO T VALUES (1,'甲'),(2,NULL),(3,'丙')"_s};
    std::unique_ptr<QWidget> control = std::make_unique<KOVAVSFDataGrid>();
};

} // namespace

TEST_F(LateBound, LoadsAndWalksTheResultByName)
{
    QWidget *grid = control.get();
    EXPECT_TRUE(grid->setProperty("ConnectionString", database.connectionString()));
    EXPECT_TRUE(grid->setProperty("DBType", 1));
    EXPECT_TRUE(grid->setProperty("SQLShow", u"select * from T order by ID"_s));
    bool isLoaded = false;
    ASSERT_TRUE(QMetaObject::invokeMethod(grid, "IsLoadData", Q_RETURN_ARG(bool, isLoaded)));
    ASSERT_TRUE(isLoaded);
    EXPECT_EQ(grid->property("RecordSource").toString(), u"select * from T order by ID"_s);

    auto *recordset = grid->property("RecordSet").value<QObject *>();
    ASSERT_NE(recordset, nullptr);
    EXPECT_EQ(recordset->property("RecordCount").toInt(), 3);
    QStringList names;
    while (!recordset->property("EOF").toBool()) {
        QObject *field = nullptr;
        ASSERT_TRUE(QMetaObject::invokeMethod(recordset, "Fields", Q_RETURN_ARG(QObject *, field),
                                              Q_ARG(QString, u"Name"_s)));
        ASSERT_NE(field, nullptr);
        names.append(field->property("Value").isValid() ? field->property("Value").toString() : u"Null"_s);
        ASSERT_TRUE(QMetaObject::invokeMethod(recordset, "MoveNext"));
    }
    EXPECT_EQ(names, QStringList({u"甲"_s, u"Null"_s, u"丙"_s}));
    EXPECT_TRUE(recordset->setProperty("AbsolutePosition", 2));
    EXPECT_EQ(grid->property("CurrPosition").toInt(), 2);
}

TEST_F(LateBound, CallsMethodsWithPlainNumbers)
{
    QWidget *grid = control.get();
    grid->setProperty("ConnectionString", database.connectionString());
    grid->setProperty("SQLShow", u"select * from T"_s);
    bool isLoaded = false;
    QMetaObject::invokeMethod(grid, "IsLoadData", Q_RETURN_ARG(bool, isLoaded));
    ASSERT_TRUE(isLoaded);

    bool isLocated = false;
    EXPECT_TRUE(
        QMetaObject::invokeMethod(grid, "LocateSelRecord", Q_RETURN_ARG(bool, isLocated), Q_ARG(qint32, 3)));
    EXPECT_TRUE(isLocated);
    EXPECT_TRUE(QMetaObject::invokeMethod(grid, "SetGridCol", Q_ARG(int, 2)));
    QString text;
    EXPECT_TRUE(QMetaObject::invokeMethod(grid, "CellTextL", Q_RETURN_ARG(QString, text), Q_ARG(qint32, 3),
                                          Q_ARG(qint32, 2)));
    EXPECT_EQ(text, u"丙"_s);
    EXPECT_TRUE(QMetaObject::invokeMethod(grid, "CellText", Q_RETURN_ARG(QString, text), Q_ARG(qint16, 1),
                                          Q_ARG(qint16, 2)));
    EXPECT_EQ(text, u"甲"_s);
    qint16 column = 0;
    EXPECT_TRUE(QMetaObject::invokeMethod(grid, "GetGridCol", Q_RETURN_ARG(qint16, column)));
    EXPECT_EQ(column, 2);
    qint32 index = 0;
    EXPECT_TRUE(QMetaObject::invokeMethod(grid, "GetBindFieldIndex", Q_RETURN_ARG(qint32, index),
                                          Q_ARG(QString, u"Name"_s)));
    EXPECT_EQ(index, 2);
    QObject *bond = nullptr;
    EXPECT_TRUE(QMetaObject::invokeMethod(grid, "GetBond", Q_RETURN_ARG(QObject *, bond)));
    ASSERT_NE(bond, nullptr);
    EXPECT_EQ(bond->objectName(), u"Adodc1"_s);
    EXPECT_EQ(bond->property("Recordset").value<QObject *>(), grid->property("RecordSet").value<QObject *>());
}

TEST_F(LateBound, EnumerationsAreWrittenByNumberAndByName)
{
    QWidget *grid = control.get();
    EXPECT_TRUE(grid->setProperty("DBType", u"dbOracle"_s));
    EXPECT_EQ(grid->property("DBType").toInt(), 2);
    EXPECT_TRUE(grid->setProperty("DBType", qint16(3)));
    EXPECT_EQ(grid->property("DBType").toInt(), 3);
    EXPECT_TRUE(grid->setProperty("DBType", 1));
    EXPECT_TRUE(grid->setProperty("ShowModel", 1));
    EXPECT_EQ(grid->property("ShowModel").toInt(), 1);
}

TEST_F(LateBound, SeesEventsByName)
{
    QWidget *grid = control.get();
    QSignalSpy located(grid, SIGNAL(RecordChanged(qint32, qint32)));
    QSignalSpy pressed(grid, SIGNAL(DataMouseDown(qint16 &, qint16 &, float &, float &)));
    EXPECT_TRUE(located.isValid());
    EXPECT_TRUE(pressed.isValid());
    grid->setProperty("ConnectionString", database.connectionString());
    grid->setProperty("SQLShow", u"select * from T"_s);
    bool isLoaded = false;
    QMetaObject::invokeMethod(grid, "IsLoadData", Q_RETURN_ARG(bool, isLoaded));
    bool isLocated = false;
    QMetaObject::invokeMethod(grid, "LocateSelRecord", Q_RETURN_ARG(bool, isLocated), Q_ARG(qint32, 2));
    EXPECT_EQ(located.last(), QList<QVariant>({3, 1}));
    QTest::mouseClick(grid->findChild<QTableView *>(u"vsfgDataGrid"_s)->viewport(), Qt::LeftButton,
                      Qt::ControlModifier, QPoint(20, 10));
    ASSERT_EQ(pressed.count(), 1);
    EXPECT_EQ(pressed.at(0).at(0).toInt(), 1);
    EXPECT_EQ(pressed.at(0).at(1).toInt(), 2);
}
