// Conditions on dates and times by name, as scripts write them.
#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/Texts.h"
#include "ado/automation/Criteria.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class CriteriaTimes : public testing::Test
{
protected:
    // The ids of the records that meet the condition.
    QString met(const QString &condition) const
    {
        const auto criteria = ADODB::Criteria::parse(condition, *recordset);
        QStringList ids;
        for (qint64 record = 1; record <= recordset->RecordCount(); ++record) {
            if (criteria.matches(*recordset, record))
                ids += recordset->CellText(record, 0);
        }
        return ids.join(u' ');
    }

    const AdoTest::TestDatabase database{
        u"CREATE TABLE t(id INTEGER PRIMARY KEY, name TEXT, d DATE, tm TIME, ts TIMESTAMP);"
        "INSERT INTO t VALUES (1, '12:00', '2024-01-01', '00:00:00', '2024-01-01 00:00:00'),"
        "(2, '2024-01-01', '2024-01-31', '12:00:00', '2024-01-01 12:00:00'),"
        "(3, '', NULL, NULL, NULL), (4, '', '2025-01-01', '23:59:30.5', '2024-01-01 23:59:30.5');"_s};
    std::shared_ptr<ADODB::Recordset> recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
};

TEST_F(CriteriaTimes, ATimeIsComparedWithATime)
{
    const std::pair<QString, QString> cases[] = {
        {u"tm = #12:00 PM#"_s, u"2"_s},
        {u"tm = #12:00:00 PM#"_s, u"2"_s},
        {u"tm = #12:00#"_s, u"2"_s},
        {u"tm = '12:00pm'"_s, u"2"_s},
        {u"tm = # 12:00 AM #"_s, u"1"_s},
        {u"tm <> #12:00#"_s, u"1 4"_s},
        {u"tm >= #12:00#"_s, u"2 4"_s},
        {u"tm < #1:05 PM#"_s, u"1 2"_s},
        {u"tm = #11:59:30.5 PM#"_s, u"4"_s},
        {u"tm > #9:30# AND tm < #23:00#"_s, u"2"_s},
        {u"tm = NULL"_s, u"3"_s},
        {u"ts = #1/1/2024 12:00 PM#"_s, u"2"_s},
        {u"ts = #2024-01-01 12:00 PM#"_s, u"2"_s},
        {u"ts = #2024-01-01T12:00#"_s, u"2"_s},
        {u"ts > #2024-01-01 9:00#"_s, u"2 4"_s},
        {u"ts = #1/1/2024 11:59:30.5 PM#"_s, u"4"_s},
        {u"ts = #1/1/2024#"_s, u"1"_s},
        {u"d > #2024-01-01 9:00 AM#"_s, u"2 4"_s},
    };
    for (const auto &[condition, ids] : cases)
        EXPECT_EQ(met(condition), ids) << condition.toStdString();
}

// Databases hold times that QDateTime does not. They are texts in the cells, and are compared by time.
TEST_F(CriteriaTimes, ATimeThatIsATextIsComparedByTime)
{
    const AdoTest::TestDatabase finer{
        u"CREATE TABLE f(id INTEGER PRIMARY KEY, tm TIME, ts TIMESTAMP);"
        "INSERT INTO f VALUES (1, '-12:00:00', '0044-03-15 12:00:00 BC'),"
        "(2, '12:00:00.123456', '2024-01-01 12:00:00.123456'),"
        "(3, '838:59:59', '2024-01-01 12:00:00+02'), (4, '23:00:00', '2031-01-01 00:00:00.0000001'),"
        "(5, 'soon', 'hello'), (6, NULL, 'infinity'), (7, NULL, NULL);"_s};
    recordset = finer.open(u"SELECT * FROM f ORDER BY id"_s);
    const std::pair<QString, QString> cases[] = {
        {u"ts > #2030-01-01#"_s, u"4 6"_s},
        {u"ts < #2030-01-01#"_s, u"1 2 3"_s},
        {u"ts = #2024-01-01 12:00:00.123456#"_s, u"2"_s},
        {u"ts = '2024-01-01 12:00:00.123456'"_s, u"2"_s},
        {u"ts > #2024-01-01 12:00:00.123#"_s, u"2 4 6"_s},
        {u"ts = #2024-01-01 12:00 PM#"_s, u"3"_s}, // as it is shown
        {u"ts = #2024-01-01 12:00:00+02#"_s, u"3"_s},
        {u"ts = #2024-01-01 10:00:00Z#"_s, u"3"_s},
        {u"ts <= #2024-01-01 10:00:00Z#"_s, u"1 3"_s},
        {u"ts <> #2024-01-01 12:00:00.123456#"_s, u"1 3 4 5 6"_s},
        {u"ts = 'infinity'"_s, u"6"_s},
        {u"ts < '0001-01-01'"_s, u"1"_s},
        {u"ts = NULL"_s, u"7"_s},
        {u"tm > #12:00 PM#"_s, u"2 3 4"_s},
        {u"tm < #12:00 AM#"_s, u"1"_s},
        {u"tm >= '24:00:00'"_s, u"3"_s},
        {u"tm = '12:00:00.123456'"_s, u"2"_s},
        {u"tm <> #23:00#"_s, u"1 2 3 5"_s},
    };
    for (const auto &[condition, ids] : cases)
        EXPECT_EQ(met(condition), ids) << condition.toStdString();
}

TEST_F(CriteriaTimes, WhatIsNoTimeOfTheFieldIsRefused)
{
    for (const QString &condition :
         {u"tm = #13:00 PM#"_s, u"tm = #0:30 AM#"_s, u"tm = #12#"_s, u"tm = #12:60#"_s, u"tm = #noon#"_s,
          u"tm = ##"_s, u"tm = #2024-01-01#"_s, u"tm = #1/1/2024 12:00 PM#"_s, u"d = #12:00#"_s,
          u"ts = #12:00 PM#"_s, u"ts = #13/13/2024 12:00#"_s}) {
        EXPECT_ADO_ERROR(ADODB::adErrInvalidArgument, met(condition));
        EXPECT_EQ(AdoTest::errorOf([&] { met(condition); }).Description(),
                  ADODB::Texts::badCriteria().arg(condition));
    }
}

TEST_F(CriteriaTimes, WhatIsBetweenSignsIsNoPatternAndNoText)
{
    for (const QString &condition : {u"d LIKE #2024-01-01#"_s, u"tm LIKE #12:00 PM#"_s, u"ts like #2024*#"_s,
                                     u"name LIKE #12:00#"_s, u"name = #12:00#"_s, u"id = #2024-01-01#"_s}) {
        EXPECT_ADO_ERROR(ADODB::adErrInvalidArgument, met(condition));
        EXPECT_EQ(AdoTest::errorOf([&] { met(condition); }).Description(),
                  ADODB::Texts::dateCriteria().arg(condition));
    }
    EXPECT_EQ(met(u"d LIKE '2024*'"_s), u"1 2"_s) << "a text is one";
    EXPECT_EQ(met(u"tm LIKE '12*'"_s), u"2"_s);
}

} // namespace
