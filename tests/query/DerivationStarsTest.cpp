// Which table the fields of a star, and those of equal names, come from.
#include "query/derivation/Derivation.h"

#include "query/QueryTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct StarCase
{
    const char *name;
    QString statement;
    QString fields; // name.table, with | between
    QString written;
};

class Stars : public testing::TestWithParam<StarCase>
{
};

} // namespace

TEST(DerivationStars, FieldsOfEqualNamesAreDistinguishedByTheirTable)
{
    const Derivation joined(u"select * from Ord o join Cust on o.C = Cust.ID"_s,
                            {{u"ID"_s, 3, u"Ord"_s}, {u"C"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Cust"_s}},
                            dialectOf(dbAccess, Engine::SQLite));
    EXPECT_EQ(joined.written(), (QStringList{u"o.ID"_s, u"C"_s, u"Cust.ID"_s}));
    const Derivation itself(u"select * from Ord a join Ord b on a.ID = b.C"_s,
                            {{u"ID"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Ord"_s}},
                            dialectOf(dbAccess, Engine::SQLite));
    EXPECT_EQ(itself.written(), (QStringList{u"a.ID"_s, u"b.ID"_s}));
    const Derivation united(u"select * from Ord a join Ord b using (C)"_s,
                            {{u"C"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Ord"_s}},
                            dialectOf(dbAccess, Engine::SQLite));
    EXPECT_EQ(united.written(), (QStringList{u"C"_s, QString(), QString()})) << "no name is unmistakable";
    const Derivation natural(u"select * from Ord a natural join Ord b"_s,
                             {{u"ID"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Ord"_s}},
                             dialectOf(dbAccess, Engine::SQLite));
    for (const auto step : {DerivationStep::Condition, DerivationStep::Sort, DerivationStep::Fields})
        EXPECT_EQ(natural.whyNot(step), QueryTexts::EqualNames.arg(u"ID"_s));
}

TEST(DerivationStars, FieldsOfStarsAreFoundAgainByTheirTable)
{
    const Dialect dialect = dialectOf(dbOracle, Engine::PostgreSQL);
    const std::vector<SourceField> fields{
        {u"id"_s, 3, u"ord"_s}, {u"cust"_s, 3, u"ord"_s}, {u"id"_s, 3, u"cust"_s}};
    const QString stars = u"select * from Ord o join Cust c on o.Cust = c.ID"_s;
    const Derivation part(stars, fields, dialect);
    const Derivation all(stars + u" ORDER BY 1 DESC"_s, fields, dialect);
    EXPECT_EQ(all.listedFor(part), (QStringList{u"o.id"_s, u"cust"_s, u"c.id"_s}));

    const std::vector<SourceField> itsFields{
        {u"id"_s, 3, u"ord"_s}, {u"cust"_s, 3, u"ord"_s}, {u"id"_s, 3, u"ord"_s}, {u"cust"_s, 3, u"ord"_s}};
    const Derivation itself(u"select a.*, b.* from Ord a join Ord b on a.ID = b.Cust"_s, itsFields, dialect);
    const Derivation turned(u"select b.*, a.* from Ord a inner join Ord b on a.ID = b.Cust"_s, itsFields,
                            dialect);
    EXPECT_EQ(itself.listedFor(turned), (QStringList{u"b.id"_s, u"b.cust"_s, u"a.id"_s, u"a.cust"_s}));
    EXPECT_EQ(itself.withFieldsOf(turned).simplified(),
              u"SELECT b.id,b.cust,a.id,a.cust FROM Ord a join Ord b on a.ID = b.Cust"_s);

    // Whose they are is not known, and neither is that of a name that is another table's alone.
    const Derivation natural(u"select * from Ord a natural join Ord b"_s,
                             {{u"id"_s, 3, u"ord"_s}, {u"id"_s, 3, u"ord"_s}}, dialect);
    EXPECT_EQ(itself.listedFor(natural), QStringList());
    EXPECT_EQ(itself.withFieldsOf(natural), QString());
    const Derivation ordered(u"select o.ID, o.Cust from Ord o join Cust c on o.Cust = c.ID"_s,
                             {{u"id"_s, 3, u"ord"_s}, {u"cust"_s, 3, u"ord"_s}}, dialect);
    const Derivation customer(u"select c.ID from Ord o inner join Cust c on o.Cust = c.ID"_s,
                              {{u"id"_s, 3, u"cust"_s}}, dialect);
    EXPECT_EQ(ordered.listedFor(customer), QStringList());
    EXPECT_EQ(ordered.withFieldsOf(customer), QString());
}

TEST_P(Stars, GiveTheFieldsOfTheirTables)
{
    std::vector<SourceField> fields;
    for (const QString &field : GetParam().fields.split(u'|'))
        fields.push_back({field.section(u'.', 0, 0), 3, field.section(u'.', 1)});
    const Derivation derivation(GetParam().statement, fields, dialectOf(dbAccess, Engine::SQLite));
    EXPECT_EQ(derivation.written().join(u'|'), GetParam().written);
}

INSTANTIATE_TEST_SUITE_P(
    , Stars,
    testing::Values(StarCase{"Itself", u"select a.*, b.* from Ord a join Ord b on a.ID = b.Cust"_s,
                             u"ID.Ord|Cust.Ord|ID.Ord|Cust.Ord"_s, u"a.ID|a.Cust|b.ID|b.Cust"_s},
                    StarCase{"WithoutTables", u"select a.*, b.* from Ord a join Ord b on a.ID = b.Cust"_s,
                             u"ID|Cust|ID|Cust"_s, u"a.ID|a.Cust|b.ID|b.Cust"_s},
                    StarCase{"Between", u"select a.*, 1 as One, b.* from Ord a join Ord b on a.ID = b.Cust"_s,
                             u"ID.Ord|Cust.Ord|One|ID.Ord|Cust.Ord"_s,
                             u"a.ID|a.Cust|(CASE WHEN 1=1 THEN 1 END)|b.ID|b.Cust"_s},
                    StarCase{"ThreeTables", u"select a.*, c.*, b.* from Ord a, Cust c, Ord b"_s,
                             u"ID.Ord|N.Ord|ID.Cust|ID.Ord|N.Ord"_s, u"a.ID|a.N|c.ID|b.ID|b.N"_s},
                    StarCase{"LoneStar", u"select * from Ord a join Ord b on a.ID = b.Cust"_s,
                             u"ID.Ord|Cust.Ord|ID.Ord|Cust.Ord"_s, u"a.ID|a.Cust|b.ID|b.Cust"_s},
                    // The names say that the first table has more fields than the second.
                    StarCase{"Uneven", u"select a.*, b.* from Ord a, Ord b"_s, u"ID.Ord|N.Ord|M.Ord|ID.Ord"_s,
                             u"|||"_s},
                    // What comes before a star says nothing about it; what follows one can be of its table.
                    StarCase{"BehindPlain", u"select a.ID, c.*, i.* from Ord a, Cust c, Item i"_s,
                             u"ID.Ord|ID.Cust|Name.Cust|N.Item"_s, u"a.ID|c.ID|c.Name|i.N"_s},
                    StarCase{"Unclear", u"select c.*, c.ID, i.* from Cust c, Item i"_s,
                             u"ID.Cust|Name.Cust|ID.Cust|N.Item"_s, u"|||"_s},
                    StarCase{"ViewBesideItsTable", u"select v.*, c.* from V v, Cust c"_s,
                             u"ID.Cust|Name.Cust|ID.Cust|Name.Cust"_s, u"|||"_s},
                    StarCase{"SelectBesideItsTable", u"select * from (select ID from Cust) x, Cust c"_s,
                             u"ID.Cust|ID.Cust|Name.Cust"_s, u"||"_s},
                    StarCase{"SelectWithAlias", u"select x.* from (select ID from Cust) x, Item i"_s,
                             u"ID.Cust"_s, u"x.ID"_s}),
    [](const auto &parameter) { return std::string(parameter.param.name); });
