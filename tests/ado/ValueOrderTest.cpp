#include "ado/automation/ValueOrder.h"

#include <QtCore/QDateTime>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// Each value is less than the next.
void expectAscending(const QVariantList &values, bool numeric)
{
    for (qsizetype i = 0; i < values.size(); ++i) {
        for (qsizetype j = 0; j < values.size(); ++j) {
            const int order = ADODB::compareValues(values[i], values[j], numeric);
            EXPECT_EQ(order < 0, i < j) << i << ' ' << j;
            EXPECT_EQ(order > 0, i > j) << i << ' ' << j;
        }
    }
}

TEST(ValueOrder, PutsNullFirstAndKindsApart)
{
    expectAscending({QVariant(), -1, false, 1.5, 2, Q_INT64_C(9007199254740993), QTime(1, 2), u"a"_s, u"B"_s,
                     QByteArray("a")},
                    false);
}

TEST(ValueOrder, ComparesDecimalsDigitByDigit)
{
    expectAscending({u"-123456789012345678.13"_s, u"-123456789012345678.12"_s, u"-7"_s, 0, u"0.5"_s, 1.25,
                     u"10"_s, u"123456789012345678.1"_s, u"123456789012345678.12"_s,
                     Q_INT64_C(223456789012345678)},
                    true);
    EXPECT_EQ(ADODB::compareValues(u"1.50"_s, u"+01.5"_s, true), 0);
    EXPECT_NE(ADODB::compareValues(u"1.50"_s, u"1.5"_s, false), 0) << "as texts they differ";
}

TEST(ValueOrder, ComparesADateWithATime)
{
    const QDate day(2020, 2, 3);
    EXPECT_EQ(ADODB::compareValues(day, QDateTime(day, QTime(0, 0)), false), 0);
    EXPECT_LT(ADODB::compareValues(day, QDateTime(day, QTime(0, 1)), false), 0);
}

} // namespace
