// What users do all day, on every engine: by clicks and keys, with real dialogs.
#include "EngineJourney.h"

#include "support/Dialogs.h"

#include <QtCore/QFile>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTableView>

using namespace KovaTest;
using namespace Qt::StringLiterals;

KOVA_ON_ALL_ENGINES(EngineJourney);
INSTANTIATE_TEST_SUITE_P(Spread, EngineJourney, testing::ValuesIn(spreadEngines()),
                         [](const auto &engine) { return std::string(engine.param.name); });

TEST_P(EngineJourney, LoadsAllFieldsAndThePartOnes)
{
    ASSERT_TRUE(load());
    EXPECT_EQ(hands->rows(), 12);
    EXPECT_EQ(hands->columns(), allFields());
    EXPECT_EQ(hands->texts(u"名称"_s).at(9), u"O'Neil 红茶"_s);
    EXPECT_EQ(hands->texts(u"名称"_s).at(10), u"绿茶 🍵"_s);
    EXPECT_EQ(hands->texts(u"城市"_s).at(8), QString()) << "a Null";
    EXPECT_EQ(hands->texts(u"日期"_s).at(1).section(u' ', 0, 0), u"2024-02-29"_s)
        << "Oracle's days have a time";
    EXPECT_EQ(hands->texts(u"图片"_s).at(1), u"<4 字节>"_s);
    hands->click(u"Part"_s);
    EXPECT_EQ(hands->columns(), partFields);
    hands->click(u"All"_s);
    EXPECT_EQ(hands->columns(), allFields());
    EXPECT_TRUE(hands->messages.shown().empty());
}

TEST_P(EngineJourney, SpellsTheFieldsOutForOracleWithPicturesLast)
{
    if (engine.dbType != KOVAVSFDataGrid::dbOracle)
        GTEST_SKIP() << "another database type";
    ASSERT_TRUE(hands->load(u"SELECT * FROM journey_goods p WHERE id > 0 ORDER BY id"_s, {}));
    const QChar quote = engine.isMariaDb() ? u'`' : u'"';
    const auto list = [quote](const QStringList &names) -> QString {
        return quote + names.join(quote + u","_s + quote) + quote;
    };
    const QString fields =
        list({u"id"_s, u"名称"_s, price, u"qty"_s, u"城市"_s, u"日期"_s, u"停用"_s, u"图片"_s});
    EXPECT_EQ(hands->grid.RecordSource().simplified(),
              u"SELECT %1 FROM journey_goods p WHERE id > 0 ORDER BY id"_s.arg(fields));
    EXPECT_EQ(hands->rows(), 12);

    database->run({u"DROP TABLE IF EXISTS journey_pictures"_s,
                   u"CREATE TABLE journey_pictures (first_picture %1, id INTEGER PRIMARY KEY, note %2)"_s.arg(
                       QLatin1StringView(engine.binary), QLatin1StringView(engine.longText))});
    ASSERT_TRUE(hands->load(u"SELECT * FROM journey_pictures"_s, {}));
    EXPECT_EQ(hands->grid.RecordSource().simplified(),
              u"SELECT %1 FROM journey_pictures"_s.arg(list({u"id"_s, u"note"_s, u"first_picture"_s})));
}

TEST_P(EngineJourney, ShowsTheFieldsThatTheUserTicks)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::tick(dialog, {u"id"_s, u"城市"_s}); }});
    ASSERT_TRUE(load());
    hands->click(u"SelField"_s);
    EXPECT_EQ(hands->columns(), QStringList({u"id"_s, u"城市"_s}));
    EXPECT_EQ(hands->rows(), 12);
    EXPECT_TRUE(hands->messages.shown().empty());
}

TEST_P(EngineJourney, FiltersByTheBuilder)
{
    WindowAnswers dialogs(
        {[](QDialog &dialog) { buildFilter(dialog, u"城市"_s, u"等于"_s, u"大连"_s); },
         [](QDialog &dialog) { buildFilter(dialog, u"名称"_s, u"包含"_s, u"O'Neil"_s); },
         [this](QDialog &dialog) { buildFilter(dialog, price, u"大于或等于"_s, u"168.5"_s); },
         [](QDialog &dialog) { buildFilter(dialog, u"日期"_s, u"等于"_s, u"2024-01-05"_s); },
         [this](QDialog &dialog) {
             buildFilter(dialog, u"停用"_s, u"等于"_s, QString::fromUtf8(engine.yes));
         },
         [](QDialog &dialog) { buildFilter(dialog, u"图片"_s, u"不为空"_s, {}); }});
    ASSERT_TRUE(load());
    for (const QStringList &expected :
         {QStringList{u"5"_s, u"8"_s}, QStringList{u"10"_s}, QStringList{u"2"_s, u"3"_s},
          QStringList{u"1"_s, u"7"_s}, QStringList{u"3"_s, u"7"_s}, QStringList{u"2"_s}}) {
        hands->click(u"Filter"_s);
        EXPECT_EQ(ids(), expected) << qUtf8Printable(hands->statement());
    }
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(EngineJourney, SortsByTheFieldsThatTheUserPicks)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); },
                           [this](QDialog &dialog) { Hands::sort(dialog, {writtenPrice()}); }});
    ASSERT_TRUE(load());
    hands->click(u"Sort"_s);
    EXPECT_EQ(ids().first(), u"12"_s);
    EXPECT_EQ(ids().last(), u"1"_s);
    hands->click(u"Sort"_s);
    EXPECT_EQ(ids().first(), u"7"_s) << qUtf8Printable(hands->statement());
    EXPECT_EQ(ids().last(), u"2"_s);
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(EngineJourney, FindsWordsInAllFieldsAndInOne)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::find(dialog, u"大连"_s); },
                           [](QDialog &dialog) { Hands::find(dialog, u"118.9"_s); },
                           [](QDialog &dialog) { Hands::find(dialog, u"O'Neil"_s); },
                           [](QDialog &dialog) { Hands::find(dialog, u"2024%茶"_s); },
                           [](QDialog &dialog) { Hands::find(dialog, u"12"_s, u"qty"_s); }});
    ASSERT_TRUE(load());
    for (const QStringList &expected :
         {QStringList{u"5"_s, u"8"_s}, QStringList{u"6"_s}, QStringList{u"10"_s}, QStringList{u"1"_s, u"2"_s},
          QStringList{u"2"_s, u"5"_s}}) {
        hands->click(u"QuickFilter"_s);
        EXPECT_EQ(ids(), expected) << qUtf8Printable(hands->statement());
        hands->click(u"ToOrigin"_s);
    }
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(EngineJourney, FiltersByTheCellUnderTheMenu)
{
    const auto toOrigin = [this] {
        hands->click(u"ToOrigin"_s);
        hands->click(u"All"_s); // a statement that lists its fields comes back with the part ones
    };
    ASSERT_TRUE(load());
    hands->choose(14, 5, 5); // 城市 of 大米
    EXPECT_EQ(ids(), QStringList({u"5"_s, u"8"_s}));
    toOrigin();
    hands->choose(14, 9, 4); // qty of 香菇
    EXPECT_EQ(ids(), QStringList({u"9"_s, u"10"_s})) << qUtf8Printable(hands->statement());
    toOrigin();
    hands->choose(14, 6, 3); // price of 花生油
    EXPECT_EQ(ids(), QStringList({u"6"_s})) << qUtf8Printable(hands->statement());
    toOrigin();
    hands->choose(14, 8, 4); // an unknown qty
    EXPECT_EQ(ids(), QStringList({u"8"_s}));
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(EngineJourney, GoesBackThroughTheHistory)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::filter(dialog, u"id > 2"_s); },
                           [](QDialog &dialog) { Hands::filter(dialog, u"id < 9"_s); },
                           [](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    ASSERT_TRUE(load());
    hands->click(u"FromResult"_s);
    hands->click(u"Filter"_s);
    hands->click(u"Filter"_s);
    EXPECT_EQ(hands->rows(), 6);
    hands->click(u"Sort"_s);
    EXPECT_EQ(ids().first(), u"8"_s);
    hands->click(u"ToPreview"_s);
    EXPECT_EQ(ids().first(), u"3"_s);
    hands->click(u"ToPreview"_s);
    EXPECT_EQ(hands->rows(), 10);
    hands->click(u"ToOrigin"_s);
    EXPECT_EQ(hands->rows(), 12);
    hands->click(u"ToFullTable"_s);
    EXPECT_EQ(hands->rows(), 12);
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(EngineJourney, ShowsOneRecordAndTheFullScreen)
{
    WindowAnswers dialogs({[](QDialog &viewer) { QTest::keyClick(&viewer, Qt::Key_Escape); }});
    ASSERT_TRUE(load());
    hands->clickCell(3, 1);
    hands->click(u"SingleRecord"_s);
    EXPECT_EQ(hands->listed(u"名称"_s), u"铁观音"_s);
    EXPECT_EQ(hands->listed(price).toDouble(), 168.5);
    EXPECT_EQ(hands->listedRow(u"图片"_s), -1);
    hands->click(u"AllRecord"_s);
    hands->click(u"FullScreen"_s);
    EXPECT_EQ(hands->rows(), 12);
}

TEST_P(EngineJourney, DeletesARecord)
{
    if (!engine.isWritable())
        GTEST_SKIP() << engine.name << " files are only read";
    ASSERT_TRUE(load());
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 5);
    EXPECT_EQ(hands->messages.texts(), QStringList({u"确实要删除该记录?"_s}));
    EXPECT_EQ(hands->rows(), 11);
    EXPECT_FALSE(ids().contains(u"5"_s));
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM journey_goods WHERE id = 5"_s), u"0"_s);
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM journey_goods"_s), u"11"_s);
}

TEST_P(EngineJourney, SaysThatWhatIsOnlyReadKeepsItsRecords)
{
    if (engine.isWritable())
        GTEST_SKIP() << "records can be deleted";
    ASSERT_TRUE(load());
    const QByteArray before = database->fileBytes();
    const auto *menu = hands->grid.findChild<QMenu *>(u"PopMnuData"_s);
    hands->clickCell(5, 1);
    menu->actions().at(8)->trigger();
    EXPECT_EQ(hands->messages.texts(), QStringList()) << "refused before the question";
    for (const int item : {7, 8}) {
        EXPECT_FALSE(menu->actions().at(item)->isEnabled());
        EXPECT_TRUE(menu->actions().at(item)->toolTip().contains(u"只能读取"_s))
            << qUtf8Printable(menu->actions().at(item)->toolTip());
    }
    EXPECT_EQ(hands->rows(), 12);
    EXPECT_TRUE(database->fileBytes() == before);
    hands->click(u"Part"_s);
    EXPECT_EQ(hands->rows(), 12);
}

TEST_P(EngineJourney, KeepsARecordThatAConstraintHolds)
{
    if (!engine.isWritable())
        GTEST_SKIP() << engine.name << " files are only read";
    if (engine.isSpread())
        GTEST_SKIP() << "no constraint reaches over databases";
    ASSERT_TRUE(load());
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 3);
    EXPECT_EQ(hands->messages.texts(),
              QStringList({u"确实要删除该记录?"_s, u"删除操作与数据库的约束冲突，不能删除此记录！"_s}));
    EXPECT_EQ(hands->rows(), 12);
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM journey_goods"_s), u"12"_s);
}

TEST_P(EngineJourney, WritesThePictureOfTheClickedRecord)
{
    const QString path = QCoreApplication::applicationDirPath() + u"/PicRecord.bmp"_s;
    QFile::remove(path);
    hands->grid.PutPicField(u"图片"_s);
    ASSERT_TRUE(load());
    hands->clickCell(2, 1);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toHex(), QByteArray("424d00ff"));
    file.remove();
}
