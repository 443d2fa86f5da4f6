#pragma once

#include "MemorySource.h"
#include "SampleDatabase.h"
#include "query/clsFilterManagement.h"

#include <gtest/gtest.h>

namespace KovaTest {

// A history over the sample database, as after a load.
class HistoryDerivation : public testing::Test
{
protected:
    void load(const QString &statement, const QString &part = {}, const QString &sort = {})
    {
        manager.SetDBType(KOVAVSFDataGridLib::dbAccess);
        manager.SetDBConnString(QStringLiteral("memory"));
        manager.SetAllFields(statement);
        manager.SetShowFields(part);
        manager.SetOrderFields(sort);
        manager.SetOriginFilter(statement);
        manager.SetSQLInitData();
        first = manager.GetCurrentSQL20(KOVAVSFDataGridLib::FirstStatement);
        show(first);
    }
    void show(const QString &statement,
              const QString &part = KOVAVSFDataGridLib::colShowSQLSentences::NoPartField())
    {
        history.AddCurrentSQL(statement, KOVAVSFDataGridLib::AllFieldsShown, part,
                              KOVAVSFDataGridLib::colShowSQLSentences::NoSort());
        history.GetCurrSQLFieldsStatus();
    }
    QStringList firstColumn(const QString &statement) const
    {
        const Rows rows = database->read(statement);
        EXPECT_EQ(rows.error, QString()) << qPrintable(statement);
        QStringList values;
        for (const Row &row : rows.rows)
            values.append(row.first());
        return values;
    }

    std::unique_ptr<SqliteRows> database = sampleDatabase();
    SqliteReader reader{*database};
    MemoryChooser chooser;
    KOVAVSFDataGridLib::clsFilterManagement manager{&reader, &chooser};
    KOVAVSFDataGridLib::colShowSQLSentences &history = manager.SQLManager();
    QString first;
    QString next;
};

} // namespace KovaTest
