// Statements over the sample files, through Connection and Recordset as a host uses them.
#include "AccessSamples.h"
#include "Throwing.h"

#include <QtCore/QElapsedTimer>
#include <gtest/gtest.h>

using namespace AdoTest;
using namespace ADODB;
using namespace Qt::Literals::StringLiterals;

namespace {

class AccessTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString path = KovaTest::sampleFile(u"nwind.mdb"_s);
        if (path.isEmpty())
            GTEST_SKIP() << "nwind.mdb is not here; see sampleFile()";
        connection = openAccess(path);
    }

    QString ask(const QString &sql) const { return cells(connection, sql); }

    std::shared_ptr<Connection> connection;
};

} // namespace

TEST_F(AccessTest, FieldsHaveAccessTypes)
{
    const auto orders = query(connection, u"SELECT * FROM [Orders]"_s);
    const auto type = [](const std::shared_ptr<Recordset> &records, const QString &name) {
        return records->Fields().Item(name).Type();
    };
    EXPECT_EQ(type(orders, u"OrderID"_s), adInteger);
    EXPECT_EQ(type(orders, u"CustomerID"_s), adVarWChar);
    EXPECT_EQ(orders->Fields().Item(u"CustomerID"_s).DefinedSize(), 5);
    EXPECT_EQ(type(orders, u"OrderDate"_s), adDate);
    EXPECT_EQ(type(orders, u"Freight"_s), adCurrency);
    const auto details = query(connection, u"SELECT * FROM [Order Details]"_s);
    EXPECT_EQ(type(details, u"Quantity"_s), adSmallInt);
    EXPECT_EQ(type(details, u"Discount"_s), adSingle);
    const auto categories = query(connection, u"SELECT T.[Picture], T.[Description] FROM Categories AS T"_s);
    EXPECT_EQ(type(categories, u"Picture"_s), adLongVarBinary);
    EXPECT_EQ(type(categories, u"Description"_s), adLongVarWChar);
    EXPECT_EQ(type(query(connection, u"SELECT Discontinued FROM Products"_s), u"Discontinued"_s), adBoolean);
}

TEST_F(AccessTest, KeysAndAutoNumbersAreMarked)
{
    const auto orders = query(connection, u"SELECT OrderID, CustomerID FROM Orders"_s);
    const qint32 key = orders->Fields().Item(u"OrderID"_s).Attributes();
    EXPECT_TRUE(key & adFldKeyColumn);
    EXPECT_TRUE(key & adFldRowID);
    EXPECT_FALSE(key & adFldIsNullable);
    const qint32 plain = orders->Fields().Item(u"CustomerID"_s).Attributes();
    EXPECT_FALSE(plain & (adFldKeyColumn | adFldRowID));
    EXPECT_TRUE(plain & adFldIsNullable);
    const auto keysOf = [&](const QString &table) {
        const auto records = query(connection, u"SELECT * FROM ["_s + table + u']');
        QStringList keys;
        for (int i = 0; i < records->Fields().Count(); ++i) {
            const Field &field = records->Fields().Item(i);
            if (field.Attributes() & adFldKeyColumn)
                keys += field.Name();
        }
        return keys.join(u',');
    };
    EXPECT_EQ(keysOf(u"Order Details"_s), u"OrderID,ProductID"_s);
    EXPECT_EQ(keysOf(u"Customers"_s), u"CustomerID"_s);
    EXPECT_EQ(keysOf(u"Products"_s), u"ProductID"_s);
}

TEST_F(AccessTest, ValuesReadAsTheyAreShown)
{
    EXPECT_EQ(ask(u"SELECT OrderID, OrderDate, Freight, ShipRegion FROM Orders WHERE OrderID = 10248"_s),
              u"10248|1994-08-04 00:00:00|32.38|"_s);
    EXPECT_EQ(ask(u"SELECT DISTINCT Discount FROM [Order Details] WHERE Discount = 0.05"_s), u"0.05"_s);
    EXPECT_EQ(ask(u"SELECT Discontinued FROM Products WHERE ProductID IN (1, 5) ORDER BY ProductID"_s),
              u"False\nTrue"_s);
}

TEST_F(AccessTest, ConditionsAndOrdersIgnoreLetterCase)
{
    EXPECT_EQ(ask(u"SELECT [CompanyName] FROM [Customers] WHERE [CustomerID] = 'alfki'"_s),
              u"Alfreds Futterkiste"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Customers WHERE City LIKE '%KÖLN%'"_s), u"1"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Customers WHERE City = 'SÃO PAULO'"_s), u"4"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Customers AS A, Suppliers AS B WHERE A.City = UCase(B.City)"_s),
              ask(u"SELECT COUNT(*) FROM Customers AS A, Suppliers AS B WHERE A.City = B.City"_s));
    EXPECT_EQ(ask(u"SELECT MIN(City) FROM Customers"_s), u"Aachen"_s);
}

TEST_F(AccessTest, LikeSeesTheShownText)
{
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE Orders.[OrderDate] LIKE '%1994-08-04%'"_s), u"1"_s);
    EXPECT_EQ(ask(u"SELECT Freight FROM Orders WHERE Freight LIKE '32.38'"_s), u"32.38"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Products WHERE UnitPrice LIKE '18'"_s),
              ask(u"SELECT COUNT(*) FROM Products WHERE UnitPrice = 18"_s));
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Customers WHERE City LIKE '50!%' ESCAPE '!'"_s), u"0"_s);
}

TEST_F(AccessTest, DatesAreWrittenInAnyWay)
{
    const QString expected = u"10248"_s;
    for (const QString &date : {u"#8/4/1994#"_s, u"#8/4/94#"_s, u"#1994-08-04#"_s, u"#1994-08-04 00:00:00#"_s,
                                u"'1994-08-04'"_s, u"'1994-08-04 00:00:00'"_s})
        EXPECT_EQ(ask(u"SELECT OrderID FROM Orders WHERE OrderDate = "_s + date), expected)
            << date.toStdString();
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderDate BETWEEN '1994-08-04' AND #8/5/1994#"_s),
              u"2"_s);
}

TEST_F(AccessTest, FunctionsOfAccessWork)
{
    EXPECT_EQ(
        ask(u"SELECT Len('abc'), Mid('abcdef', 2, 3), Left('abc', 2), Right('abc', 2), UCase('ä'), LCase('Ä')"_s),
        u"3|bcd|ab|bc|Ä|ä"_s);
    EXPECT_EQ(
        ask(u"SELECT InStr('abcabc', 'B'), InStr(3, 'abcabc', 'B'), Nz(NULL, 'x'), IsNull(NULL), IIf(True, 1, 2)"_s),
        u"2|5|x|-1|1"_s);
    EXPECT_EQ(ask(u"SELECT Year(#2/29/2020#), Month(#2/29/2020#), Day(#2/29/2020#), Weekday(#2/29/2020#)"_s),
              u"2020|2|29|7"_s);
    EXPECT_EQ(ask(u"SELECT DateSerial(2020, 14, 1), DatePart('q', #5/1/2020#), Format(#5/1/2020#, 'yyyy/mm'),"
                  " Format(1234.5, '#,##0.00')"_s),
              u"2021-02-01 00:00:00|2|2020/05|1,234.50"_s);
    EXPECT_EQ(ask(u"SELECT CInt(2.5), CInt(3.5), CCur(1.23456), CStr(5.0), Int(-1.5), Fix(-1.5), 7 Mod 4"_s),
              u"2|4|1.2346|5|-2|-1|3"_s);
    EXPECT_EQ(ask(u"SELECT Len(Now()) , Date() <= Now(), Year(Date()) >= 2024"_s), u"19|1|1"_s);
}

TEST_F(AccessTest, DatesCanBeCalculatedWith)
{
    EXPECT_EQ(ask(u"SELECT #1/31/2020# + 1, #1/31/2020 18:00# - 1.5, #3/1/2020# - #2/1/2020#"_s),
              u"2020-02-01 00:00:00|2020-01-30 06:00:00|29"_s);
    EXPECT_EQ(ask(u"SELECT ShippedDate - OrderDate, OrderDate + 7 FROM Orders WHERE OrderID = 10248"_s),
              u"12|1994-08-11 00:00:00"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderDate > Date() - 30"_s), u"0"_s);
    EXPECT_EQ(
        ask(u"SELECT COUNT(*) FROM Orders WHERE OrderDate > #8/5/1994# - 1 AND OrderDate < #8/6/1994#"_s),
        ask(u"SELECT COUNT(*) FROM Orders WHERE OrderDate = #8/5/1994#"_s));
    EXPECT_EQ(
        ask(u"SELECT DateAdd('m', 1, #1/31/2020#), DateAdd('ww', -1, #1/31/2020#), DateAdd('n', 90, #12:00#)"_s),
        u"2020-02-29 00:00:00|2020-01-24 00:00:00|1899-12-30 13:30:00"_s);
    EXPECT_EQ(
        ask(u"SELECT DateDiff('yyyy', #12/31/2019#, #1/1/2020#), DateDiff('m', #1/31/2020#, #3/1/2020#),"
            " DateDiff('d', #3/1/2020#, #2/1/2020#), DateDiff('ww', #2/1/2020#, #2/2/2020#),"
            " DateDiff('w', #2/1/2020#, #2/9/2020#), DateDiff('h', #1:59#, #2:01#), DateDiff('q', #3/31/2020#, #4/1/2020#)"_s),
        u"1|2|-29|1|1|1|1"_s);
    EXPECT_EQ(ask(u"SELECT CDbl(#1/1/1900#), Int(#1/1/1900 18:00#), TimeSerial(1, 30, 5), "
                  u"TimeValue('2020-01-01 07:08:09'),"
                  " IsDate('1/31/2020'), IsDate('x'), IsDate(NULL)"_s),
              u"2|1900-01-01 00:00:00|1899-12-30 01:30:05|1899-12-30 07:08:09|-1|0|0"_s);
}

TEST_F(AccessTest, NumbersAreCalculatedAsInAccess)
{
    EXPECT_EQ(ask(u"SELECT 7 / 2, 6 / 3 / 4, 1 + 2 - 4, 9223372036854775807 + 1, 1 + NULL"_s),
              u"3.5|0.5|-1|9.22337203685478E+18|"_s);
    EXPECT_EQ(ask(u"SELECT Round(2.5), Round(3.5), Round(0.125, 2), Round(-1.5), Log(1), Log(Exp(2))"_s),
              u"2|4|0.12|-2|0|2"_s);
    EXPECT_EQ(ask(u"SELECT 'a' + 'b', '3' + 4, 'a' + NULL, 'a' + 1, IsNumeric('1.5'), IsNumeric('1x')"_s),
              u"ab|7|||-1|0"_s);
    EXPECT_EQ(ask(u"SELECT FirstName + ' ' + LastName FROM Employees WHERE EmployeeID = 1"_s),
              u"Nancy Davolio"_s);
    EXPECT_EQ(ask(u"SELECT Switch(False, 1, True, 2, True, 3), Choose(2, 'a', 'b'), Choose(3, 'a', 'b')"_s),
              u"2|b|"_s);
}

TEST_F(AccessTest, TextsAreTakenApart)
{
    EXPECT_EQ(ask(u"SELECT InStrRev('abcABC', 'b'), StrComp('a', 'B'), StrComp('A', 'a'), StrConv('o''neil "
                  u"AND co', 3),"
                  " StrReverse('abc'), '[' & Space(2) & ']', String(3, 'xy'), Asc('A'), Chr(20013)"_s),
              u"5|-1|0|O'Neil And Co|cba|[  ]|xxx|65|中"_s);
    EXPECT_THROW(ask(u"SELECT String(-1, 'x')"_s), Error);
}

TEST_F(AccessTest, ComputedTextsAreComparedWithoutLetterCase)
{
    const QString expected = ask(u"SELECT COUNT(*) FROM Customers WHERE City = 'London'"_s);
    for (const QString &condition : {u"UCase(City) = 'london'"_s, u"Left(City, 6) = 'LONDON'"_s,
                                     u"'x' & City = 'XLONDON'"_s, u"Trim(City) IN ('london')"_s})
        EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Customers WHERE "_s + condition), expected)
            << condition.toStdString();
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM (SELECT DISTINCT Left(LCase(City), 1) FROM Customers)"_s),
              ask(u"SELECT COUNT(*) FROM (SELECT DISTINCT Left(City, 1) FROM Customers)"_s));
}

TEST_F(AccessTest, RecordsAreSummarized)
{
    EXPECT_EQ(ask(u"SELECT First(ProductName), Last(ProductID), First(Null) FROM Products"_s),
              ask(u"SELECT A.ProductName, B.ProductID, Null FROM Products AS A, Products AS B"
                  " WHERE A.ProductID = 1 AND B.ProductID = 77"_s));
    EXPECT_EQ(ask(u"SELECT StDev(n), StDevP(n), Var(n), VarP(n), StDev(m), VarP(m) FROM"
                  " (SELECT 2 AS n, 1 AS m UNION ALL SELECT 4, NULL UNION ALL SELECT 6, NULL)"_s),
              u"2|1.63299316185545|4|2.66666666666667||0"_s);
    EXPECT_EQ(
        ask(u"SELECT CategoryID, First(ProductName) FROM Products WHERE ProductID IN (1, 2, 3) GROUP BY CategoryID"_s),
        u"1|Chai\n2|Aniseed Syrup"_s);
}

TEST_F(AccessTest, TextsAreJoinedWithAnd)
{
    EXPECT_EQ(ask(u"SELECT 'a' & NULL & 1 + 1 & 'b' AS x, NULL & NULL"_s), u"a2b|"_s);
    EXPECT_EQ(ask(u"SELECT TOP 1 FirstName & ' ' & LastName AS Name FROM Employees ORDER BY EmployeeID"_s),
              u"Nancy Davolio"_s);
}

TEST_F(AccessTest, TopAndDistinctRowAreUnderstood)
{
    EXPECT_EQ(
        query(connection, u"SELECT DISTINCTROW TOP 3 * FROM Orders ORDER BY OrderDate;"_s)->RecordCount(), 3);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM (SELECT TOP 5 OrderID FROM Orders) AS T"_s), u"5"_s);
    EXPECT_EQ(query(connection, u"SELECT TOP 10 PERCENT * FROM Orders WHERE ShipCity LIKE 'l%'"
                                " ORDER BY OrderDate"_s)
                  ->RecordCount(),
              (ask(u"SELECT COUNT(*) FROM Orders WHERE ShipCity LIKE 'l%'"_s).toInt() + 9) / 10);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM (SELECT DISTINCT TOP 100 PERCENT ShipCity FROM Orders) AS T"_s),
              ask(u"SELECT COUNT(*) FROM (SELECT DISTINCT ShipCity FROM Orders) AS T"_s));
}

TEST_F(AccessTest, SavedQueriesAreViews)
{
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Invoices"_s), ask(u"SELECT COUNT(*) FROM [Order Details]"_s));
    EXPECT_EQ(
        ask(u"SELECT Salesperson, ExtendedPrice FROM Invoices WHERE OrderID = 10248 AND ProductID = 11"_s),
        u"Steven Buchanan|168"_s);
    EXPECT_EQ(ask(u"SELECT Subtotal FROM [Order Subtotals] WHERE OrderID = 10248"_s), u"440"_s);
    EXPECT_EQ(ask(u"SELECT * FROM [Ten Most Expensive Products]"_s).count(u'\n'), 9);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM [Products Above Average Price]"_s), u"25"_s);
    EXPECT_EQ(
        ask(u"SELECT COUNT(*) FROM [Customers and Suppliers by City] WHERE Relationship = 'Suppliers'"_s),
        ask(u"SELECT COUNT(*) FROM Suppliers"_s));
    EXPECT_EQ(query(connection, u"SELECT * FROM [Order Subtotals]"_s)->Fields().Item(u"OrderID"_s).Type(),
              adInteger);
    // It asks a form for its parameter.
    const auto error = errorOf([&] { query(connection, u"SELECT * FROM [invoices filter]"_s); });
    EXPECT_TRUE(error.is(dbErrNoTable));
    EXPECT_TRUE(error.Description().contains(u"需要参数"_s)) << error.what();
}

TEST_F(AccessTest, JoinsDoNotReadOneTableForEachRowOfTheOther)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(ask(u"SELECT COUNT(*), SUM(P.ProductID) FROM Orders AS O, [Order Details] AS D, Products AS P,"
                  " Customers AS C, Employees AS E WHERE O.OrderID = D.OrderID AND P.ProductID = D.ProductID"
                  " AND C.CustomerID = O.CustomerID AND E.EmployeeID = O.EmployeeID"_s),
              ask(u"SELECT COUNT(*), SUM(ProductID) FROM [Order Details]"_s));
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders AS O WHERE EXISTS (SELECT * FROM [Order Details] AS D"
                  " WHERE D.OrderID = O.OrderID)"_s),
              ask(u"SELECT COUNT(*) FROM Orders"_s));
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Customers AS A LEFT JOIN Suppliers AS B ON A.City = B.City"
                  " WHERE B.City IS NULL"_s),
              ask(u"SELECT COUNT(*) FROM Customers WHERE City NOT IN (SELECT City FROM Suppliers)"_s));
    // 2155 times 830 rows would take seconds.
    EXPECT_LT(clock.elapsed(), 1000);
}

TEST_F(AccessTest, LookingUpAgainFindsTheSame)
{
    const QString byText = u"SELECT OrderID FROM Orders WHERE CustomerID = '%1' ORDER BY OrderID"_s;
    const QString first = ask(byText.arg(u"VINET"_s));
    EXPECT_EQ(ask(byText.arg(u"vinet"_s)), first); // from an index by now
    EXPECT_EQ(ask(byText.arg(u"Vinet"_s)), first);
    EXPECT_EQ(ask(byText.arg(u"none"_s)), QString());
    const QString byDate = u"SELECT COUNT(*) FROM Orders WHERE ShippedDate = %1"_s;
    const QString scanned = ask(byDate.arg(u"#8/16/1994#"_s));
    EXPECT_NE(scanned, u"0"_s);
    EXPECT_EQ(ask(byDate.arg(u"'1994-08-16'"_s)), scanned);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderID = 10248.0"_s), u"1"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderID = '10248'"_s), u"1"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderID = 10248"_s), u"1"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderID = NULL"_s), u"0"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM Orders WHERE OrderID IN (10248, 10249, 1)"_s), u"2"_s);
}

TEST_F(AccessTest, NothingIsWritten)
{
    const auto records = query(connection, u"SELECT * FROM Shippers"_s);
    ASSERT_EQ(records->RecordCount(), 3);
    const auto error = errorOf([&] { records->Delete(); });
    EXPECT_TRUE(error.Description().contains(u"Access"_s)) << error.what();
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_THROW(records->Fields().Item(u"CompanyName"_s).PutValue(u"x"_s), Error);
    EXPECT_EQ(ask(u"SELECT CompanyName FROM Shippers WHERE ShipperID = 1"_s), u"Speedy Express"_s);
    for (const QString &sql : {u"DELETE FROM Shippers"_s, u"DROP TABLE Shippers"_s, u"CREATE TABLE t (a)"_s,
                               u"SELECT * FROM Shippers; DELETE FROM Shippers"_s, u"ATTACH 'x.db' AS x"_s})
        EXPECT_THROW(query(connection, sql), Error) << sql.toStdString();
    EXPECT_ADO_ERROR(dbErrNoTable, query(connection, u"SELECT * FROM [no such]"_s));
}

TEST_F(AccessTest, TheFileStaysOpenAsLongAsARecordset)
{
    const auto records = query(connection, u"SELECT * FROM Orders ORDER BY OrderID"_s);
    connection->Close();
    EXPECT_EQ(records->RecordCount(), 830);
    EXPECT_EQ(records->CellText(1, 0), u"10248"_s);
}
