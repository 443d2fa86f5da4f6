#include "query/fields/clsTableFieldManager.h"

#include "CaseFile.h"
#include "MemorySource.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class TableFieldManager : public testing::Test
{
protected:
    const QString all = u"select * from T"_s;
    MemoryReader reader;
    MemoryChooser chooser;
    clsTableFieldManager manager;
    QString chosen = u"old"_s;

    TableFieldManager()
    {
        reader.fieldsByStatement.insert(all, {{u"A"_s, 3}, {u"B"_s, 202}});
        chooser.choice = u"B"_s;
        manager.SetFieldReader(&reader);
        manager.SetFieldChooser(&chooser);
        manager.ConnString = u"DSN=a"_s;
    }

    void ExpectNoChoice(const QString &statement)
    {
        EXPECT_FALSE(manager.GetPartSelFields(statement, {}, chosen));
        EXPECT_EQ(chosen, QString());
        EXPECT_FALSE(manager.GetSortSelFields(statement, {}, chosen));
        EXPECT_EQ(chosen, QString());
    }
};

} // namespace

TEST_F(TableFieldManager, NamesFieldsByPosition)
{
    EXPECT_EQ(manager.GetSelFieldRealName(u"DSN=b"_s, 1, all), u"A"_s);
    EXPECT_EQ(manager.GetSelFieldRealName(u"DSN=b"_s, 2, all), u"B"_s);
    for (const qint32 outside : {-1, 0, 3})
        EXPECT_EQ(manager.GetSelFieldRealName(u"DSN=b"_s, outside, all), QString());
    EXPECT_EQ(manager.GetSelFieldRealName({}, 1, all), QString());
    EXPECT_EQ(manager.GetSelFieldRealName(u"DSN=b"_s, 1, u"other"_s), QString());
    manager.ClearObject();
    EXPECT_EQ(manager.GetSelFieldRealName(u"DSN=b"_s, 1, all), u"A"_s);
}

TEST_F(TableFieldManager, OffersTheFieldsOfTheStatement)
{
    EXPECT_TRUE(manager.GetPartSelFields(all, u"unreadable"_s, chosen));
    EXPECT_EQ(chosen, u"B"_s);
    EXPECT_EQ(chooser.allFields, (QStringList{u"A"_s, u"B"_s}));
    EXPECT_TRUE(chooser.present.isEmpty());
    EXPECT_TRUE(manager.GetSortSelFields(all, u" A DESC ,B,"_s, chosen));
    EXPECT_EQ(chooser.present, (QStringList{u"A DESC"_s, u"B"_s}));
}

TEST_F(TableFieldManager, CancellingChoosesNothing)
{
    chooser.choice.reset();
    ExpectNoChoice(all);
    chooser.choice = QString();
    ExpectNoChoice(all);
}

TEST_F(TableFieldManager, NothingIsOfferedWithoutATable)
{
    ExpectNoChoice({});
    ExpectNoChoice(u" where 1=1"_s);
}

TEST_F(TableFieldManager, NothingIsOfferedWithoutFields)
{
    ExpectNoChoice(u"select * from U"_s);
    reader.isPluggedIn = false;
    ExpectNoChoice(all);
    manager.SetFieldReader(nullptr);
    ExpectNoChoice(all);
}

TEST_F(TableFieldManager, NothingIsChosenWithoutAChooser)
{
    manager.SetFieldChooser(nullptr);
    ExpectNoChoice(all);
}
