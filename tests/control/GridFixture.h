#pragma once

#include "control/face/KOVAVSFDataGrid.h"
#include "support/TestDatabase.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>
#include <gtest/gtest.h>

namespace KovaTest {

// A shown control over a database of its own.
struct GridFixture : testing::Test
{
    explicit GridFixture(const QString &script) : database(script)
    {
        grid.resize(900, 500);
        grid.show();
        grid.PutDBType(KOVAVSFDataGrid::dbAccess);
        grid.PutConnectionString(database.connectionString());
    }
    ~GridFixture() override { grid.PutDBType(KOVAVSFDataGrid::dbAccess); }

    // Loads a statement with all its fields as part fields, or with those of `partFields`.
    bool load(const QString &statement, const QString &partFields = {})
    {
        grid.PutSQLShow(statement);
        if (!partFields.isEmpty())
            grid.PutSQLPartDisplay(partFields);
        return grid.IsLoadData();
    }

    template<typename Part>
    Part *part(const char *name) const
    {
        return grid.findChild<Part *>(QLatin1StringView(name));
    }

    // In grid coordinates: row and column 0 are headings. The point is inside pointed(row, col).
    QWidget *pointed(int row, int col) const
    {
        if (row == 0)
            return table->horizontalHeader()->viewport();
        return col == 0 ? table->verticalHeader()->viewport() : table->viewport();
    }
    QPoint point(int row, int col) const
    {
        const int x = col == 0 ? 5 : table->columnViewportPosition(col - 1) + table->columnWidth(col - 1) / 2;
        const int y = row == 0 ? 5 : table->rowViewportPosition(row - 1) + table->rowHeight(row - 1) / 2;
        return {x, y};
    }
    void click(int row, int col, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(pointed(row, col), button, {}, point(row, col));
    }

    // A field of the current record, by name, as a host reaches it.
    QObject *field(const QString &name) const
    {
        QObject *object = nullptr;
        QMetaObject::invokeMethod(grid.RecordSet(), "Fields", Q_RETURN_ARG(QObject *, object),
                                  Q_ARG(QString, name));
        return object;
    }

    TestDatabase database;
    KOVAVSFDataGrid grid;
    QTableView *table = grid.findChild<QTableView *>(QStringLiteral("vsfgDataGrid"));
};

} // namespace KovaTest
