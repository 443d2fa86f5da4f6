// DISTINCTROW with generated files: each record of the shown tables exactly once, even if records look the
// same.
#include "AccessSamples.h"
#include "Throwing.h"

#include "support/AccessWriter.h"

#include <gtest/gtest.h>

using namespace AdoTest;
using namespace ADODB;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray shopFile()
{
    using enum AccessType;
    KovaTest::AccessWriter writer;
    writer.addTable(u"Cust"_s,
                    {{u"ID"_s, LongInteger, 0, 0, 0, true}, {u"Name"_s, Text, 20}, {u"City"_s, Text, 20}},
                    {{1, u"anna"_s, u"B"_s}, {2, u"bob"_s, u"A"_s}, {3, u"anna"_s, u"B"_s}});
    writer.addTable(
        u"Ord"_s, {{u"No"_s, LongInteger, 0, 0, 0, true}, {u"Cust"_s, LongInteger}, {u"Qty"_s, LongInteger}},
        {{1, 1, 5}, {2, 1, 2}, {3, 2, 2}, {4, 3, 1}, {5, 3, 2}});
    return writer.file();
}

struct DistinctRowCase
{
    const char *name;
    QString statement;
    QString rows; // columns separated by |, records by blanks; empty if it is refused
};

class AccessDistinctRows : public testing::TestWithParam<DistinctRowCase>
{
protected:
    QTemporaryDir folder;
    std::shared_ptr<Connection> connection = openAccess(writeFile(folder, shopFile(), u"shop.mdb"_s));
};

} // namespace

TEST_P(AccessDistinctRows, AreThoseOfTheTablesShown)
{
    const QString &rows = GetParam().rows;
    if (rows.isEmpty())
        EXPECT_ADO_ERROR(dbErrFailed, cells(connection, GetParam().statement));
    else
        EXPECT_EQ(cells(connection, GetParam().statement).replace(u'\n', u' '), rows);
}

INSTANTIATE_TEST_SUITE_P(
    , AccessDistinctRows,
    testing::Values(
        // Two customers look the same; each of them is returned once.
        DistinctRowCase{"FieldsOfOneTable",
                        u"SELECT DISTINCTROW Cust.Name FROM Cust INNER JOIN Ord ON Cust.ID = Ord.Cust"
                        " ORDER BY Cust.Name"_s,
                        u"anna anna bob"_s},
        DistinctRowCase{
            "Condition",
            u"SELECT DISTINCTROW c.Name, c.City FROM Cust c, Ord o WHERE c.ID = o.Cust AND o.Qty = 2"
            " ORDER BY c.ID DESC"_s,
            u"anna|B bob|A anna|B"_s},
        DistinctRowCase{"BareNames",
                        u"SELECT DISTINCTROW City FROM Cust, Ord WHERE ID = Cust ORDER BY City"_s,
                        u"A B B"_s},
        DistinctRowCase{"Star",
                        u"SELECT DISTINCTROW o.* FROM Cust c, Ord o WHERE c.City = 'B' AND o.Qty > 2"_s,
                        u"1|1|5"_s},
        DistinctRowCase{"Computed",
                        u"SELECT DISTINCTROW UCase(c.Name) & '!' AS N FROM Cust c, Ord o WHERE c.ID = o.Cust"
                        " ORDER BY c.Name"_s,
                        u"ANNA! ANNA! BOB!"_s},
        DistinctRowCase{
            "Top",
            u"SELECT DISTINCTROW TOP 2 c.ID FROM Cust c, Ord o WHERE c.ID = o.Cust ORDER BY c.ID DESC"_s,
            u"3 2"_s},
        DistinctRowCase{
            "Inside",
            u"SELECT COUNT(*) FROM (SELECT DISTINCTROW c.Name FROM Cust c, Ord o WHERE c.ID = o.Cust) q"_s,
            u"3"_s},
        // No rows are omitted if all tables are shown, or if there is only one.
        DistinctRowCase{"OneTable", u"SELECT DISTINCTROW Name FROM Cust ORDER BY ID"_s, u"anna bob anna"_s},
        DistinctRowCase{
            "AllTables",
            u"SELECT DISTINCTROW c.Name, o.Qty FROM Cust c, Ord o WHERE c.ID = o.Cust ORDER BY o.No"_s,
            u"anna|5 anna|2 bob|2 anna|1 anna|2"_s},
        DistinctRowCase{"LoneStar",
                        u"SELECT DISTINCTROW * FROM Cust c, Ord o WHERE c.ID = o.Cust AND o.No = 1"_s,
                        u"1|anna|B|1|1|5"_s},
        DistinctRowCase{"Totals", u"SELECT DISTINCTROW Sum(Qty) FROM Ord"_s, u"12"_s},
        DistinctRowCase{"TotalsOfAll",
                        u"SELECT DISTINCTROW c.City, Sum(o.Qty) FROM Cust c, Ord o WHERE c.ID = o.Cust"
                        " GROUP BY c.City ORDER BY c.City"_s,
                        u"A|2 B|10"_s},
        // Nobody can say what these mean.
        DistinctRowCase{
            "TotalsOfOne", u"SELECT DISTINCTROW Count(c.Name) FROM Cust c, Ord o WHERE c.ID = o.Cust"_s, {}},
        DistinctRowCase{"SortByAnother",
                        u"SELECT DISTINCTROW c.Name FROM Cust c, Ord o WHERE c.ID = o.Cust ORDER BY o.Qty"_s,
                        {}},
        DistinctRowCase{"NoField", u"SELECT DISTINCTROW 1 FROM Cust c, Ord o"_s, {}},
        DistinctRowCase{"Derived", u"SELECT DISTINCTROW q.Name FROM (SELECT * FROM Cust) q, Ord o"_s, {}}),
    [](const auto &parameter) { return std::string(parameter.param.name); });
