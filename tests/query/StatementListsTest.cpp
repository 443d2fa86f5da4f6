#include "query/modQNVSFHFDataMain.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class StatementLists : public testing::Test
{
protected:
    ParsedStatements parsed{u"Old"_s, {u"Before"_s}, {u"Before"_s}};
};

} // namespace

TEST_F(StatementLists, AreParsedByDatabase)
{
    for (const Case &c : ReadCases(u"lists.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        parsed = {u"Old"_s, {u"Before"_s}, {}};
        const auto database = static_cast<AllDBType>(c[u"database"_s].toInt());
        const auto failure = parsed.ParseSQLFieldList(c[u"statement"_s], database);
        EXPECT_EQ(failure.has_value(), c.Has(u"failed"_s));
        EXPECT_EQ(parsed.strSQLTable, c[u"table"_s]);
        EXPECT_EQ(parsed.colSQLFields, c.List(u"names"_s));
    }
}

TEST_F(StatementLists, FailureSaysWhereItComesFromAndWhatItIs)
{
    const auto failure = parsed.ParseSQLFieldList(u"select A"_s, dbAccess);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->source, u"KOVAVSFDataGridLib"_s);
    EXPECT_EQ(failure->description, u"Invalid procedure call or argument"_s);
}

TEST_F(StatementLists, AreCleared)
{
    parsed.ClearSQLFieldList();
    EXPECT_TRUE(parsed.colSQLFields.isEmpty());
    EXPECT_EQ(parsed.strSQLTable, u"Old"_s);
}

TEST_F(StatementLists, SelectedFieldsAreKeptAsWritten)
{
    parsed.ParseSelFieldList(u"Select a, b ,c from T"_s);
    EXPECT_EQ(parsed.colSelFields, (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    parsed.ParseSelFieldList(u"  select [A],*, , \"B\" From T "_s);
    EXPECT_EQ(parsed.colSelFields, (QStringList{u"[A]"_s, u"*"_s, QString(), u"\"B\""_s}));
}

TEST_F(StatementLists, SelectedFieldsStayWhenThereIsNoSelect)
{
    for (const QString &statement : {QString(), u"  "_s, u"update T set A=1"_s}) {
        parsed.ParseSelFieldList(statement);
        EXPECT_EQ(parsed.colSelFields, QStringList{u"Before"_s});
    }
}

TEST_F(StatementLists, SelectWithoutFromIsAnInvalidArgument)
{
    EXPECT_THROW(parsed.ParseSelFieldList(u"select a, b"_s), std::invalid_argument);
    EXPECT_THROW(parsed.ParseSelFieldList(u"select from T"_s), std::invalid_argument);
    EXPECT_EQ(parsed.colSelFields, QStringList{u"Before"_s});
}

TEST_F(StatementLists, ListThatEndsInACommaIsAnInvalidArgumentAfterItsNames)
{
    EXPECT_THROW(parsed.ParseSelFieldList(u"select a,b, from T"_s), std::invalid_argument);
    EXPECT_EQ(parsed.colSelFields, (QStringList{u"a"_s, u"b"_s}));
}
