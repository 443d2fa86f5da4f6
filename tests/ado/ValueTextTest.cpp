#include "Printing.h"

#include "ado/ValueText.h"

#include <QtCore/QUuid>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

struct TextCase
{
    QVariant value;
    QString text;
};

TEST(ValueText, GivesTheOneTextOfEachKindOfValue)
{
    const std::vector<TextCase> cases{
        {QVariant(), QString()},
        {QVariant::fromValue(nullptr), QString()},
        {u"  as it is\n "_s, u"  as it is\n "_s},
        {true, u"True"_s},
        {false, u"False"_s},
        {-12, u"-12"_s},
        {qlonglong{-9223372036854775807LL - 1}, u"-9223372036854775808"_s},
        {1234567.0, u"1234567"_s},
        {0.1 + 0.2, u"0.3"_s},
        {1.0 / 3, u"0.333333333333333"_s},
        {-0.0, u"0"_s},
        {1e15, u"1E+15"_s},
        {1.5e-9, u"1.5E-09"_s},
        {0.1F, u"0.1"_s},
        {QDate(2024, 2, 29), u"2024-02-29"_s},
        {QDate(12024, 2, 29), u"12024-02-29"_s},
        {QTime(9, 5), u"09:05:00"_s},
        {QTime(9, 5, 7, 120), u"09:05:07.12"_s},
        {QDateTime(QDate(2024, 1, 2), QTime(0, 0), Qt::UTC), u"2024-01-02 00:00:00"_s},
        {QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5, 6), Qt::UTC), u"2024-01-02 03:04:05.006"_s},
        {QUuid(u"{6b29fc40-ca47-1067-b31d-00dd010662da}"_s), u"{6b29fc40-ca47-1067-b31d-00dd010662da}"_s},
        {QByteArray(), u"<0 字节>"_s},
        {QByteArray(300, 'x'), u"<300 字节>"_s},
    };
    for (const TextCase &c : cases)
        EXPECT_EQ(ADODB::ValueText(c.value), c.text);
}

} // namespace
