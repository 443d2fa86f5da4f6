// Setting a property can set others, and the host is notified of each: it may delete the control in any of
// these events. The asan preset detects later accesses.
#include "control/face/KOVAVSFDataGrid.h"

#include <QtCore/QPointer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Writing
{
    const char *name;
    QStringList told;
    void (*write)(KOVAVSFDataGrid &grid);
};

class DeletedWhileWritten : public testing::TestWithParam<Writing>
{
};

TEST_P(DeletedWhileWritten, ReportsNothingMore)
{
    const Writing &writing = GetParam();
    for (qsizetype last = 1; last <= writing.told.size(); ++last) {
        QStringList told;
        const QPointer<KOVAVSFDataGrid> grid = new KOVAVSFDataGrid;
        QObject::connect(grid, &KOVAVSFDataGrid::PropertyChanged, grid, [&](const QString &name) {
            told.append(name);
            if (told.size() == last)
                delete grid;
        });
        writing.write(*grid);
        EXPECT_FALSE(grid);
        EXPECT_EQ(told, writing.told.first(last));
        delete grid;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Properties, DeletedWhileWritten,
    testing::Values(
        Writing{"ConnectionString",
                {u"ConnectionString"_s, u"SQLShow"_s, u"SQLPartDisplay"_s, u"SQLFilter"_s, u"SQLSort"_s,
                 u"SQLPartDisplay"_s},
                [](KOVAVSFDataGrid &grid) { grid.PutConnectionString(u"Provider=SQLite"_s); }},
        Writing{"SQLShow",
                {u"SQLShow"_s, u"SQLPartDisplay"_s},
                [](KOVAVSFDataGrid &grid) { grid.PutSQLShow(u"SELECT A FROM T"_s); }},
        Writing{"SQLPartDisplay",
                {u"SQLPartDisplay"_s},
                [](KOVAVSFDataGrid &grid) { grid.PutSQLPartDisplay(u"SELECT A FROM T"_s); }},
        Writing{"SQLFilter", {u"SQLFilter"_s}, [](KOVAVSFDataGrid &grid) { grid.PutSQLFilter(u"x"_s); }},
        Writing{"SQLSort", {u"SQLSort"_s}, [](KOVAVSFDataGrid &grid) { grid.PutSQLSort(u"A"_s); }},
        Writing{"BackColor", {u"BackColor"_s}, [](KOVAVSFDataGrid &grid) { grid.PutBackColor(Qt::red); }},
        Writing{"DefaultBackColor", {u"BackColor"_s}, [](KOVAVSFDataGrid &grid) { grid.ResetBackColor(); }},
        Writing{"TableType",
                {u"TableType"_s},
                [](KOVAVSFDataGrid &grid) { grid.PutTableType(KOVAVSFDataGrid::DataTable); }},
        Writing{"ErrorHint", {u"ErrorHint"_s}, [](KOVAVSFDataGrid &grid) { grid.PutErrorHint(true); }},
        Writing{"DBType",
                {u"DBType"_s},
                [](KOVAVSFDataGrid &grid) { grid.PutDBType(KOVAVSFDataGrid::dbAccess); }},
        Writing{"SysDBCnn", {u"SysDBCnn"_s}, [](KOVAVSFDataGrid &grid) { grid.PutSysDBCnn(u"x"_s); }},
        Writing{"SysDBMode", {u"SysDBMode"_s}, [](KOVAVSFDataGrid &grid) { grid.PutSysDBMode(u"x"_s); }}),
    [](const auto &writing) { return std::string(writing.param.name); });

} // namespace
