#include "ado/automation/ValueOrder.h"

#include <QtCore/QDateTime>
#include <gtest/gtest.h>

using ADODB::ComparedAs;
using namespace Qt::Literals::StringLiterals;

namespace {

// Each value is less than the next.
void expectAscending(const QVariantList &values, ComparedAs as)
{
    for (qsizetype i = 0; i < values.size(); ++i) {
        for (qsizetype j = 0; j < values.size(); ++j) {
            const int order = ADODB::compareValues(values[i], values[j], as);
            EXPECT_EQ(order < 0, i < j) << i << ' ' << j;
            EXPECT_EQ(order > 0, i > j) << i << ' ' << j;
        }
    }
}

TEST(ValueOrder, PutsNullFirstAndKindsApart)
{
    expectAscending({QVariant(), -1, false, 1.5, 2, Q_INT64_C(9007199254740993), QTime(1, 2), u"a"_s, u"B"_s,
                     QByteArray("a")},
                    ComparedAs::Stored);
}

TEST(ValueOrder, ComparesDecimalsDigitByDigit)
{
    expectAscending({u"-123456789012345678.13"_s, u"-123456789012345678.12"_s, u"-7"_s, 0, u"0.5"_s, 1.25,
                     u"10"_s, u"123456789012345678.1"_s, u"123456789012345678.12"_s,
                     Q_INT64_C(223456789012345678)},
                    ComparedAs::Numbers);
    EXPECT_EQ(ADODB::compareValues(u"1.50"_s, u"+01.5"_s, ComparedAs::Numbers), 0);
    EXPECT_NE(ADODB::compareValues(u"1.50"_s, u"1.5"_s, ComparedAs::Stored), 0) << "as texts they differ";
}

TEST(ValueOrder, ComparesTimesThatAreTextsByTime)
{
    const QDate day(2024, 1, 1);
    expectAscending({QVariant(), u"0044-03-15 12:00:00 BC"_s, QDateTime(day, QTime(12, 0)),
                     u"2024-01-01 12:00:00.000001"_s, QDateTime(day, QTime(12, 0, 0, 1)),
                     u"2024-01-01 12:30:00-01"_s, u"2024-01-01 16:00:00+02"_s, QDate(2030, 1, 1),
                     u"infinity"_s, u"12:00 o'clock"_s},
                    ComparedAs::Times);
    EXPECT_GT(
        ADODB::compareValues(u"2024-01-01 12:00:00.5"_s, QDateTime(day, QTime(13, 0)), ComparedAs::Stored), 0)
        << "as texts they are after all dates";
}

TEST(ValueOrder, IsThatOfTheTypeOfTheField)
{
    EXPECT_EQ(ADODB::comparedAs(ADODB::adDBTimeStamp), ComparedAs::Times);
    EXPECT_EQ(ADODB::comparedAs(ADODB::adDBTime), ComparedAs::Times);
    EXPECT_EQ(ADODB::comparedAs(ADODB::adNumeric), ComparedAs::Numbers);
    EXPECT_EQ(ADODB::comparedAs(ADODB::adVarWChar), ComparedAs::Stored);
}

TEST(ValueOrder, ComparesADateWithATime)
{
    const QDate day(2020, 2, 3);
    EXPECT_EQ(ADODB::compareValues(day, QDateTime(day, QTime(0, 0)), ComparedAs::Stored), 0);
    EXPECT_LT(ADODB::compareValues(day, QDateTime(day, QTime(0, 1)), ComparedAs::Stored), 0);
}

} // namespace
