#include <KOVAVSFDataGrid>

#include "control/face/ControlError.h"
#include "control/face/PropertyBag.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>
#include <gtest/gtest.h>

#include <map>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// A container's bag that leaves out what equals its default, as containers do.
class MapBag : public PropertyBag
{
public:
    QVariant ReadProperty(const QString &name, const QVariant &byDefault) const override
    {
        const auto found = values.find(name);
        return found == values.end() ? byDefault : found->second;
    }
    void WriteProperty(const QString &name, const QVariant &value, const QVariant &byDefault) override
    {
        if (value != byDefault)
            values[name] = value;
    }
    std::map<QString, QVariant> values;
};

struct Properties : testing::Test
{
    template<typename Part>
    Part *part(const char *name) const
    {
        return grid.findChild<Part *>(QLatin1StringView(name));
    }
    QAction *button(const char *key) const
    {
        return part<QToolBar>("Toolbar1")->findChild<QAction *>(QLatin1StringView(key));
    }
    QStringList marks() const
    {
        QStringList names;
        for (const QList<QVariant> &arguments : changed)
            names.append(arguments.constFirst().toString());
        return names;
    }

    KOVAVSFDataGrid grid;
    QSignalSpy changed{&grid, &KOVAVSFDataGrid::PropertyChanged};
};

} // namespace

TEST_F(Properties, StartWithTheirDefaults)
{
    EXPECT_EQ(grid.SQLShow(), QString());
    EXPECT_EQ(grid.SQLPartDisplay(), QString());
    EXPECT_EQ(grid.SQLFilter(), QString());
    EXPECT_EQ(grid.SQLSort(), QString());
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelAll);
    EXPECT_FALSE(grid.ErrorHint());
    EXPECT_EQ(grid.SysDBCnn(), QString());
    EXPECT_EQ(grid.SysDBMode(), QString());
    EXPECT_EQ(grid.TableType(), KOVAVSFDataGrid::DataTable);
    EXPECT_EQ(grid.PassQurryFilter(), QString());
    EXPECT_EQ(grid.PicField(), QString());
    EXPECT_EQ(grid.ConnectionString(), QString());
    EXPECT_EQ(grid.RecordSource(), QString());
    EXPECT_EQ(grid.RecordSet(), nullptr);
    EXPECT_EQ(grid.CurrPosition(), 0);
    EXPECT_TRUE(grid.UserMode());
    EXPECT_TRUE(grid.Enabled());
}

TEST_F(Properties, MarkThemselvesAsChangedEachTimeTheyAreWritten)
{
    grid.PutSQLFilter(u"a"_s);
    grid.PutSQLFilter(u"a"_s);
    grid.PutSQLSort(u"b"_s);
    grid.PutSQLPartDisplay({});
    grid.PutTableType(KOVAVSFDataGrid::DataView);
    grid.PutErrorHint(true);
    grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    grid.PutSysDBCnn(u"c"_s);
    grid.PutSysDBMode(u"d"_s);
    grid.PutBackColor(Qt::red);
    EXPECT_EQ(marks(),
              QStringList({u"SQLFilter"_s, u"SQLFilter"_s, u"SQLSort"_s, u"SQLPartDisplay"_s, u"TableType"_s,
                           u"ErrorHint"_s, u"DBType"_s, u"SysDBCnn"_s, u"SysDBMode"_s, u"BackColor"_s}));
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
}

TEST_F(Properties, SomeAreStoredWithoutAMark)
{
    grid.PutShowModel(KOVAVSFDataGrid::ModelPart);
    grid.PutPassQurryFilter(u"x"_s);
    grid.PutPicField(u"p"_s);
    grid.PutSTR_SQLTEMP(u"t"_s);
    grid.PutDataBackColor(Qt::green);
    EXPECT_EQ(marks(), QStringList());
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelPart);
    EXPECT_EQ(grid.PassQurryFilter(), u"x"_s);
    EXPECT_EQ(grid.PicField(), u"p"_s);
    EXPECT_EQ(grid.STR_SQLTEMP(), u"t"_s);
    EXPECT_EQ(grid.DataBackColor(), QColor(Qt::green));
}

TEST_F(Properties, SQLShowBecomesSQLPartDisplayToo)
{
    grid.PutSQLShow(u"select a, b from T"_s);
    EXPECT_EQ(marks(), QStringList({u"SQLShow"_s, u"SQLPartDisplay"_s}));
    EXPECT_EQ(grid.SQLPartDisplay(), u"select a, b from T"_s);
    grid.PutSQLPartDisplay(u"select  [a] from T"_s);
    EXPECT_EQ(grid.SQLPartDisplay(), u"select  [a] from T"_s) << "reads back as it was written";
    EXPECT_EQ(grid.SQLShow(), u"select a, b from T"_s);
}

TEST_F(Properties, ConnectionStringEmptiesTheTextsEvenWhenItStaysTheSame)
{
    for (int i = 0; i < 2; ++i) {
        grid.PutSQLShow(u"select a from T"_s);
        grid.PutSQLFilter(u"f"_s);
        grid.PutSQLSort(u"s"_s);
        changed.clear();
        grid.PutConnectionString(u"Provider=SQLite;Data Source=x"_s);
        EXPECT_EQ(marks(), QStringList({u"ConnectionString"_s, u"SQLShow"_s, u"SQLPartDisplay"_s,
                                        u"SQLFilter"_s, u"SQLSort"_s, u"SQLPartDisplay"_s}));
        EXPECT_EQ(grid.SQLShow(), QString());
        EXPECT_EQ(grid.SQLPartDisplay(), QString());
        EXPECT_EQ(grid.SQLFilter(), QString());
        EXPECT_EQ(grid.SQLSort(), QString());
    }
}

TEST_F(Properties, DBTypeIsOneForAllControls)
{
    KOVAVSFDataGrid other;
    grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    EXPECT_EQ(grid.DBType(), KOVAVSFDataGrid::dbSQLServer);
    EXPECT_EQ(other.DBType(), KOVAVSFDataGrid::dbSQLServer);
    other.PutDBType(KOVAVSFDataGrid::dbAccess);
    EXPECT_EQ(grid.DBType(), KOVAVSFDataGrid::dbAccess);
}

TEST_F(Properties, OtherTextsBelongToOneControl)
{
    KOVAVSFDataGrid other;
    grid.PutConnectionString(u"one"_s);
    other.PutConnectionString(u"two"_s);
    grid.PutSQLShow(u"select a from T"_s);
    other.PutTableType(KOVAVSFDataGrid::DefSQL);
    EXPECT_EQ(grid.ConnectionString(), u"one"_s);
    EXPECT_EQ(other.ConnectionString(), u"two"_s);
    EXPECT_EQ(other.SQLShow(), QString());
    EXPECT_EQ(grid.TableType(), KOVAVSFDataGrid::DataTable);
}

TEST_F(Properties, EnabledWritesThePanelAndTheGridButReadsTheControl)
{
    part<QTableView>("vsfgDataGrid")->setEnabled(true);
    grid.PutEnabled(false);
    EXPECT_TRUE(grid.Enabled());
    EXPECT_FALSE(part<QWidget>("picMainBack")->isEnabled());
    EXPECT_FALSE(part<QTableView>("vsfgDataGrid")->isEnabled());
    grid.PutEnabled(true);
    EXPECT_TRUE(part<QWidget>("picMainBack")->isEnabled());
    EXPECT_TRUE(part<QTableView>("vsfgDataGrid")->isEnabled());
    grid.setEnabled(false);
    EXPECT_FALSE(grid.Enabled());
}

TEST_F(Properties, ADisabledFormDoesNotLeakIntoWhatIsReported)
{
    QWidget form;
    auto *inner = new KOVAVSFDataGrid(&form);
    inner->PutDisplayEable(true);
    inner->PutFilterEnable(true);
    form.setEnabled(false);
    EXPECT_TRUE(inner->Enabled());
    EXPECT_TRUE(inner->DisplayEable());
    EXPECT_TRUE(inner->FilterEnable());
}

TEST_F(Properties, DisplayEableOffDisablesEveryButtonAndOnLeavesThem)
{
    grid.PutDisplayEable(true);
    grid.PutFilterEnable(true);
    grid.PutSortEnable(true);
    grid.PutDisplayEable(false);
    EXPECT_FALSE(grid.DisplayEable());
    EXPECT_FALSE(part<QPushButton>("cmdPgae")->isEnabled());
    for (const QAction *action : part<QToolBar>("Toolbar1")->actions())
        EXPECT_TRUE(action->isSeparator() || !action->isEnabled()) << action->objectName().toStdString();
    grid.PutDisplayEable(true);
    EXPECT_TRUE(grid.DisplayEable());
    EXPECT_TRUE(part<QPushButton>("cmdPgae")->isEnabled());
    EXPECT_FALSE(grid.FilterEnable());
    EXPECT_FALSE(grid.SortEnable());
}

TEST_F(Properties, FilterAndSortEnableAreTheButtons)
{
    grid.PutDisplayEable(true);
    grid.PutFilterEnable(true);
    EXPECT_TRUE(grid.FilterEnable());
    EXPECT_TRUE(button("Filter")->isEnabled());
    EXPECT_FALSE(grid.SortEnable());
    grid.PutSortEnable(true);
    EXPECT_TRUE(button("Sort")->isEnabled());
    grid.PutFilterEnable(false);
    EXPECT_FALSE(button("Filter")->isEnabled());
}

TEST_F(Properties, UseModelIsRefusedWhileTheHostRuns)
{
    try {
        static_cast<void>(grid.UseModel());
        ADD_FAILURE() << "read at run time";
    } catch (const ControlError &error) {
        EXPECT_EQ(error.number(), 393);
        EXPECT_EQ(error.description(), u"Property can't be read at run time"_s);
        EXPECT_STREQ(error.what(), "Property can't be read at run time");
    }
    try {
        grid.PutUseModel(KOVAVSFDataGrid::ModelDefine);
        ADD_FAILURE() << "written at run time";
    } catch (const ControlError &error) {
        EXPECT_EQ(error.number(), 382);
        EXPECT_EQ(error.description(), u"Property can't be set at run time"_s);
    }
}

TEST_F(Properties, UseModelNotifiesALateBoundHostBySignal)
{
    QSignalSpy errors(&grid, &KOVAVSFDataGrid::HostError);
    EXPECT_EQ(grid.property("UseModel").toInt(), 0);
    ASSERT_EQ(errors.count(), 1);
    EXPECT_EQ(errors.at(0).at(0).toInt(), 393);
    grid.setProperty("UseModel", 1);
    ASSERT_EQ(errors.count(), 2);
    EXPECT_EQ(errors.at(1).at(0).toInt(), 382);
    EXPECT_EQ(errors.at(1).at(1).toString(), u"Property can't be set at run time"_s);
    grid.PutUserMode(false);
    EXPECT_EQ(grid.UseModel(), KOVAVSFDataGrid::ModelUsing) << "the refused value was not stored";
}

TEST_F(Properties, UseModelWorksAtDesignTimeAndHidesFilterAndSort)
{
    grid.PutUserMode(false);
    grid.setProperty("UseModel", KOVAVSFDataGrid::ModelDefine);
    EXPECT_EQ(grid.UseModel(), KOVAVSFDataGrid::ModelDefine);
    EXPECT_FALSE(button("Filter")->isVisible());
    EXPECT_FALSE(button("Sort")->isVisible());
    grid.PutUseModel(KOVAVSFDataGrid::ModelUsing);
    EXPECT_TRUE(button("Filter")->isVisible());
}

TEST_F(Properties, BackColorStartsAsTheButtonFace)
{
    EXPECT_EQ(grid.BackColor(), grid.palette().color(QPalette::Button));
    EXPECT_EQ(part<QWidget>("picMainBack")->palette().color(QPalette::Window), grid.BackColor());
}

TEST_F(Properties, TheBagHoldsBackColorAlone)
{
    MapBag bag;
    grid.WriteProperties(bag);
    EXPECT_TRUE(bag.values.empty()) << "the button face is the default";

    grid.PutBackColor(QColor(0x12, 0x34, 0x56));
    grid.PutSQLShow(u"select a from T"_s);
    grid.WriteProperties(bag);
    ASSERT_EQ(bag.values.size(), 1u);
    EXPECT_EQ(bag.values.at(u"BackColor"_s).toUInt(), 0x00563412u);

    KOVAVSFDataGrid restored;
    restored.ReadProperties(bag);
    EXPECT_EQ(restored.BackColor(), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(restored.SQLShow(), QString());
    restored.ReadProperties(MapBag());
    EXPECT_EQ(restored.BackColor(), restored.palette().color(QPalette::Button));
}

TEST_F(Properties, TheBagSpeaksOleNumbers)
{
    MapBag bag;
    bag.values[u"BackColor"_s] = 0x8000000Fu;
    grid.ReadProperties(bag);
    EXPECT_EQ(grid.BackColor(), grid.palette().color(QPalette::Button));
    bag.values[u"BackColor"_s] = 0x80000005u;
    grid.ReadProperties(bag);
    EXPECT_EQ(grid.BackColor(), grid.palette().color(QPalette::Base));
    bag.values[u"BackColor"_s] = 0x000000FFu;
    grid.ReadProperties(bag);
    EXPECT_EQ(grid.BackColor(), QColor(Qt::red));
}

TEST_F(Properties, ANewControlOnAFormIsBlank)
{
    grid.PutSQLShow(u"select a from T"_s);
    grid.PutSQLSort(u"a"_s);
    grid.PutShowModel(KOVAVSFDataGrid::ModelPart);
    grid.InitProperties();
    EXPECT_EQ(grid.SQLShow(), QString());
    EXPECT_EQ(grid.SQLPartDisplay(), QString());
    EXPECT_EQ(grid.SQLSort(), QString());
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelAll);
    EXPECT_EQ(part<QTableView>("vsfgDataGrid")->model()->rowCount(), 1);
}

TEST_F(Properties, TheSmallestSizeIs3000By1500Twips)
{
    grid.resize(grid.logicalDpiX() * 2000 / 1440, grid.logicalDpiX() * 1000 / 1440);
    EXPECT_EQ(grid.width(), grid.logicalDpiX() * 3000 / 1440);
    EXPECT_EQ(grid.height(), grid.logicalDpiX() * 1500 / 1440);
}
