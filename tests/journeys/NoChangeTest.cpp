// Whatever a host sets and a user types, the control only reads: what is there is there afterwards.
#include "EngineJourney.h"

#include "support/Dialogs.h"

#include <QtCore/QCryptographicHash>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class NoChange : public EngineJourney
{
protected:
    // Everything that a statement could have changed.
    QByteArray contents()
    {
        if (engine.isFilledBySqlite())
            return QCryptographicHash::hash(database->fileBytes(), QCryptographicHash::Sha1);
        const QString counts = database->ask(u"SELECT count(*) FROM journey_goods"_s) + u'|' +
                               database->ask(u"SELECT sum(qty) FROM journey_goods"_s) + u'|' +
                               database->ask(u"SELECT count(*) FROM journey_orders"_s);
        return counts.toUtf8();
    }
    // Used instead of a condition; each of them would change data if it were run.
    const QStringList conditions{
        u"1 = 1; DELETE FROM journey_orders"_s,
        u"1 = 1); DELETE FROM journey_orders; SELECT (1"_s,
        u"1 = 1) OR (1 = 1; DELETE FROM journey_orders --"_s,
        u"1 = 1 /* ' */ ; DELETE FROM journey_orders -- '"_s,
        u"名称 = '\\'; DELETE FROM journey_orders -- '"_s,
        u"名称 = 'a\\''; DELETE FROM journey_orders -- '"_s,
        u"名称 = '--'; COMMIT; DELETE FROM journey_orders"_s,
        u"1 = 1 -- ' \n; DELETE FROM journey_orders"_s,
        u"1 = 1 /*! ; DELETE FROM journey_orders */"_s,
        u"id IN (WITH gone AS (DELETE FROM journey_orders RETURNING 1 AS id) SELECT id FROM gone)"_s,
        u"id IN (DELETE FROM journey_orders RETURNING 1)"_s,
    };
};

} // namespace

KOVA_ON_ALL_ENGINES(NoChange);

TEST_P(NoChange, ByAStatementOfTheHost)
{
    ASSERT_TRUE(load());
    const QByteArray before = contents();
    const QStringList refused{
        u"DELETE FROM journey_orders"_s,
        u"UPDATE journey_goods SET qty = 0"_s,
        u"/* SELECT */ DELETE FROM journey_orders"_s,
        u"-- SELECT * FROM journey_goods\nDELETE FROM journey_orders"_s,
        u"DELETE FROM journey_orders RETURNING *"_s,
        u"WITH gone AS (DELETE FROM journey_orders RETURNING *) SELECT * FROM gone"_s,
        u"WITH gone AS (SELECT 1) DELETE FROM journey_orders"_s,
        u"SELECT * INTO journey_more FROM journey_goods"_s,
        u"SELECT * FROM journey_goods; DELETE FROM journey_orders"_s,
        u"SELECT ';' AS a FROM journey_goods; COMMIT; DELETE FROM journey_orders; SELECT 1"_s,
        u"TRUNCATE TABLE journey_orders"_s,
        u"DROP TABLE journey_orders"_s,
        u"CREATE TABLE journey_more AS SELECT * FROM journey_goods"_s,
        u"EXPLAIN ANALYZE DELETE FROM journey_orders"_s,
    };
    for (const QString &statement : refused) {
        hands->grid.PutSQLShow(statement);
        hands->messages.clear(); // of the text's form
        EXPECT_FALSE(hands->grid.IsLoadData()) << qUtf8Printable(statement);
        EXPECT_EQ(hands->messages.texts().value(1), u"数据库打开失败。"_s) << qUtf8Printable(statement);
        EXPECT_EQ(contents(), before) << qUtf8Printable(statement);
        EXPECT_EQ(hands->rows(), 12) << "what was shown is still shown";
    }
    for (const QString &condition : conditions) {
        hands->grid.PutSQLShow(u"SELECT * FROM journey_goods WHERE "_s + condition);
        hands->grid.IsLoadData(); // some are harmless to some engines
        EXPECT_EQ(contents(), before) << qUtf8Printable(condition);
    }
    hands->messages.clear();
}

TEST_P(NoChange, ByAConditionTypedIntoTheBuilder)
{
    ASSERT_TRUE(load());
    const QByteArray before = contents();
    for (const QString &condition : conditions) {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            Hands::filter(dialog, condition);
            dialog.close(); // if the builder did not accept it
        }});
        hands->click(u"Filter"_s);
        EXPECT_EQ(contents(), before) << qUtf8Printable(condition);
        hands->click(u"ToOrigin"_s);
    }
    hands->messages.clear();
}

TEST_P(NoChange, ByAConditionOfTheHost)
{
    ASSERT_TRUE(load());
    const QByteArray before = contents();
    QString condition;
    QObject::connect(&hands->grid, &KOVAVSFDataGrid::QurryFilter, &hands->grid,
                     [&](qint32 &cancel, const QString &) {
                         hands->grid.PutPassQurryFilter(condition);
                         cancel = 0;
                     });
    for (const QString &each : conditions) {
        condition = each;
        hands->click(u"Filter"_s);
        EXPECT_EQ(contents(), before) << qUtf8Printable(each);
        hands->click(u"ToOrigin"_s);
    }
    hands->messages.clear();
}
