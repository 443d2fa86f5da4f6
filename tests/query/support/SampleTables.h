#pragma once

namespace KovaTest {

// The tables that the statements of statements.cases select from, for SQLite.
inline constexpr const char sampleTables[] =
    "CREATE TABLE Cust(ID INTEGER PRIMARY KEY, Name TEXT, City TEXT);"
    "INSERT INTO Cust VALUES (1,'anna','B'),(2,'bob','A'),(3,'cid','B'),(4,'b order by c','A');"
    "CREATE TABLE Ord(ID INTEGER PRIMARY KEY, Name TEXT, Qty INTEGER, Price REAL, Cust INTEGER);"
    "INSERT INTO Ord VALUES (1,'bob',5,1.5,1),(2,'anna',2,2.25,2),(3,'zoe',1,9,1),(4,'a order by "
    "b',3,4,3),"
    "(5,'x where y',2,0.5,2),(6,' FROM ',NULL,3,1),(7,'anna',4,2.25,3),(8,NULL,1,8,4);"
    "CREATE TABLE Item(Ord INTEGER, Item TEXT, N INTEGER);"
    "INSERT INTO Item VALUES (1,'tea',3),(1,'cup',0),(2,'tea',1),(3,'pot',2),(7,'jug',5),(7,'tea',4);"
    "CREATE VIEW AllCust AS SELECT ID, Name, City FROM Cust;"
    "CREATE TABLE Odd(\"order\" INTEGER, \"group by\" TEXT, \"no#\" INTEGER, \"it's\" TEXT, "
    "\"a\"\"b\" TEXT,"
    "\"where \" TEXT);"
    "INSERT INTO Odd VALUES (1,'p',1,'q','r','s'),(2,'p2',0,'q','r2','s'),(3,'p',2,'q2','r','s2');"
    "CREATE TABLE 客户(名称 TEXT, 城市 TEXT);"
    "INSERT INTO 客户 VALUES ('甲','北京'),('乙','上海'),('丙',''),('丁','北京');";

} // namespace KovaTest
