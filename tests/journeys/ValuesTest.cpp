// Values at the limits of what engines support, as the grid shows them.
#include "EngineJourney.h"

#include "support/Dialogs.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <limits>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// journey_values has the fields id, short_text, long_text, big (38 digits), real_number, a_day, a_moment and
// a picture; each test brings its records.
class EngineValues : public EngineTest
{
protected:
    void SetUp() override
    {
        EngineTest::SetUp();
        if (IsSkipped())
            return;
        const QString create =
            u"CREATE TABLE journey_values (id INTEGER PRIMARY KEY, short_text VARCHAR(60), long_text %1,"
            " big %2, real_number DOUBLE PRECISION, a_day DATE, a_moment %3, picture %4)"_s;
        database->run({u"DROP TABLE IF EXISTS journey_values"_s,
                       create.arg(QString::fromLatin1(engine.longText), QString::fromLatin1(engine.digits),
                                  QString::fromLatin1(engine.moment), QString::fromLatin1(engine.binary))});
    }

    void insert(const QString &fields, const QString &values)
    {
        database->run({u"INSERT INTO journey_values (id,%1) VALUES (%2)"_s.arg(fields, values)});
    }

    bool load() { return hands->load(u"SELECT * FROM journey_values ORDER BY id"_s, {}); }
    QString shown(const QString &field) const { return hands->texts(field).value(0); }
    // The whole value as a host reads it, of the record at `position`.
    QVariant value(const char *field, qint64 position = 1) const
    {
        QObject *record = hands->grid.RecordSet();
        record->setProperty("AbsolutePosition", position);
        QObject *object = nullptr;
        QMetaObject::invokeMethod(record, "Fields", Q_RETURN_ARG(QObject *, object),
                                  Q_ARG(QString, QString::fromLatin1(field)));
        return object->property("Value");
    }
    void filterMoments(const QString &typed)
    {
        WindowAnswers dialogs(
            {[&](QDialog &dialog) { buildFilter(dialog, u"a_moment"_s, u"等于"_s, typed); }});
        hands->click(u"Filter"_s);
    }
    // Types another moment into the first record.
    void replaceMoment(const QString &before, const QString &typed)
    {
        hands->clickCell(1, 1);
        hands->click(u"SingleRecord"_s);
        EXPECT_EQ(hands->listed(u"a_moment"_s), before);
        EXPECT_TRUE(hands->writeListed(u"a_moment"_s, typed));
        hands->click(u"AllRecord"_s);
    }
    bool isPostgres() const { return QByteArray(engine.name).startsWith("PostgreSQL"); }
};

const QString Song = u"中文🍵"_s;
constexpr int songs = 104'858; // of 10 bytes each: a little more than 1 MB

} // namespace

KOVA_ON_ALL_ENGINES(EngineValues);

TEST_P(EngineValues, ChineseAndEmojiComeThroughWhole)
{
    insert(u"short_text"_s, u"1,'客户「张三」 🍵👩‍👩‍👧 𝄞 é'"_s);
    ASSERT_TRUE(load());
    EXPECT_EQ(shown(u"short_text"_s), u"客户「张三」 🍵👩‍👩‍👧 𝄞 é"_s);
}

TEST_P(EngineValues, AMegabyteOfTextComesThroughWhole)
{
    const QString repeated =
        engine.isFilledBySqlite() ? u"replace(hex(zeroblob(%2)),'00','%1')"_s : u"repeat('%1',%2)"_s;
    insert(u"long_text"_s, u"1,"_s + repeated.arg(Song).arg(songs));
    insert(u"long_text"_s, u"2,'short'"_s);
    ASSERT_TRUE(load());
    const QString text = value("long_text").toString();
    EXPECT_EQ(text.size(), Song.size() * songs);
    EXPECT_TRUE(text == Song.repeated(songs));
    EXPECT_EQ(value("long_text", 2).toString(), u"short"_s);
}

TEST_P(EngineValues, ANullIsNotAnEmptyText)
{
    insert(u"short_text,long_text"_s, u"1,'',''"_s);
    insert(u"short_text,long_text"_s, u"2,NULL,NULL"_s);
    ASSERT_TRUE(load());
    for (const char *field : {"short_text", "long_text"}) {
        EXPECT_FALSE(value(field, 1).isNull()) << field;
        EXPECT_EQ(value(field, 1).toString(), QString()) << field;
        EXPECT_TRUE(value(field, 2).isNull()) << field;
    }
    for (const char *field : {"big", "real_number", "a_day", "a_moment", "picture"})
        EXPECT_TRUE(value(field, 2).isNull()) << field;
    EXPECT_EQ(hands->texts(u"picture"_s), QStringList({QString(), QString()}));
}

TEST_P(EngineValues, TheLongestDecimalsStayExact)
{
    const bool isAccess = engine.store == JourneyEngine::AccessFile;
    const QString number = isAccess ? u"-1234567890123456789012345678"_s // its longest
                                    : u"-12345678901234567890123456789012345678"_s;
    insert(u"big"_s, u"1,'%1'"_s.arg(number));
    ASSERT_TRUE(load());
    if (engine.store == JourneyEngine::SqliteFile) // which keeps such a number as floating point
        EXPECT_EQ(shown(u"big"_s).left(16), u"-1.2345678901234"_s);
    else
        EXPECT_EQ(shown(u"big"_s), number);
}

TEST_P(EngineValues, NumbersAtTheEndsOfDoublePrecision)
{
    insert(u"real_number"_s, u"1,1.7976931348623157e308"_s);
    insert(u"real_number"_s, u"2,-2.5e-300"_s);
    insert(u"real_number"_s, u"3,0.1"_s);
    ASSERT_TRUE(load());
    // SQLite's ODBC driver reads the largest number as infinite.
    const double largest = engine.store == JourneyEngine::SqliteFile && engine.variable
                               ? std::numeric_limits<double>::infinity()
                               : std::numeric_limits<double>::max();
    EXPECT_EQ(value("real_number", 1).toDouble(), largest);
    EXPECT_EQ(value("real_number", 2).toDouble(), -2.5e-300);
    EXPECT_EQ(hands->texts(u"real_number"_s).at(2), u"0.1"_s);
}

TEST_P(EngineValues, MomentsKeepTheirMicroseconds)
{
    insert(u"a_day,a_moment"_s, u"1,'1999-12-31','1999-12-31 23:59:59.123456'"_s);
    ASSERT_TRUE(load());
    EXPECT_EQ(shown(u"a_day"_s).section(u' ', 0, 0), u"1999-12-31"_s);
    EXPECT_TRUE(shown(u"a_moment"_s).startsWith(u"1999-12-31 23:59:59.123"))
        << qUtf8Printable(shown(u"a_moment"_s));
}

TEST_P(EngineValues, DaysBeforeTheYearOneAreShownAsTheyAre)
{
    if (QByteArray(engine.name).startsWith("MariaDB") || engine.store == JourneyEngine::AccessFile)
        GTEST_SKIP() << engine.name << " has no such days";
    insert(u"a_day"_s, isPostgres() ? u"1,'0044-03-15 BC'"_s : u"1,'-0043-03-15'"_s);
    ASSERT_TRUE(load());
    EXPECT_EQ(shown(u"a_day"_s), isPostgres() ? u"0044-03-15 BC"_s : u"-0043-03-15"_s);
}

TEST_P(EngineValues, AMomentWithATimeZoneIsShownInTheSessions)
{
    if (!isPostgres())
        GTEST_SKIP() << "only PostgreSQL has a type for it";
    ASSERT_TRUE(
        hands->load(u"SELECT TIMESTAMP WITH TIME ZONE '2024-07-01 12:00:00+08' AT TIME ZONE 'UTC' AS utc, "
                    "TIMESTAMP WITH TIME ZONE '2024-07-01 12:00:00+08' AS zoned FROM journey_values "
                    "RIGHT JOIN (SELECT 1 AS one) o ON FALSE"_s,
                    {}));
    EXPECT_EQ(shown(u"utc"_s), u"2024-07-01 04:00:00"_s);
    const QString inSession = database->ask(
        u"SELECT to_char(TIMESTAMP WITH TIME ZONE '2024-07-01 12:00:00+08', 'YYYY-MM-DD HH24:MI:SS')"_s);
    EXPECT_TRUE(shown(u"zoned"_s).startsWith(inSession)) << qUtf8Printable(shown(u"zoned"_s));
}

// With all the decimals of its second.
TEST_P(EngineValues, AMomentCanBeTypedAsItIsShown)
{
    const QString decimals = engine.store == JourneyEngine::AccessFile ? QString() : u".123456"_s;
    insert(u"a_moment"_s, u"1,'2024-07-01 12:00:00%1'"_s.arg(decimals));
    insert(u"a_moment"_s, u"2,'2024-07-01 12:00:01'"_s);
    insert(u"a_moment"_s, u"3,NULL"_s);
    ASSERT_TRUE(load());
    const QString first = shown(u"a_moment"_s);
    EXPECT_EQ(first, u"2024-07-01 12:00:00"_s + decimals);
    for (int row = 0; row < 2; ++row) {
        const QString text = hands->texts(u"a_moment"_s).at(row);
        filterMoments(text);
        EXPECT_EQ(hands->texts(u"a_moment"_s), QStringList(text)) << qUtf8Printable(hands->statement());
        hands->click(u"ToPreview"_s);
        ASSERT_EQ(hands->rows(), 3);
    }
    if (!engine.isWritable())
        return;
    const QString other = first.chopped(1) + u'7';
    replaceMoment(first, other);
    EXPECT_TRUE(hands->messages.texts().isEmpty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(shown(u"a_moment"_s), other);
    hands->click(u"ToOrigin"_s);
    EXPECT_EQ(shown(u"a_moment"_s), other) << "read again";
}

// PostgreSQL shows the session's time zone after it. A value typed without a zone is in that zone.
TEST_P(EngineValues, AMomentWithATimeZoneIsTypedInTheSessionsOrItsOwn)
{
    if (!isPostgres())
        GTEST_SKIP() << "only PostgreSQL has a type for it";
    insert(u"a_moment"_s, u"1,'2024-07-01 12:00:00.123456'"_s);
    insert(u"a_moment"_s, u"2,'2024-07-01 12:00:01'"_s);
    database->run({u"ALTER TABLE journey_values ALTER a_moment TYPE TIMESTAMP(6) WITH TIME ZONE"_s});
    ASSERT_TRUE(load());
    const QString first = shown(u"a_moment"_s);
    const QString typed = u"2024-07-01 12:00:00.123456"_s;
    ASSERT_TRUE(first.startsWith(typed)) << qUtf8Printable(first);
    const QString zone = first.sliced(typed.size());
    EXPECT_FALSE(zone.isEmpty());
    const QString elsewhere =
        database->ask(u"SELECT to_char(a_moment AT TIME ZONE 'UTC' + INTERVAL '5:45', "
                      "'YYYY-MM-DD HH24:MI:SS.US') || '+05:45' FROM journey_values WHERE id=1"_s);
    for (const QString &text : {typed, first, elsewhere}) {
        filterMoments(text);
        EXPECT_EQ(hands->texts(u"a_moment"_s), QStringList(first)) << qUtf8Printable(hands->statement());
        hands->click(u"ToPreview"_s);
        ASSERT_EQ(hands->rows(), 2);
    }

    QString before = first;
    const QString other = typed.chopped(1) + u'7';
    const std::pair<QString, QString> changes[] = {
        {other, other}, {first, typed}, {elsewhere.chopped(7) + u"7+05:45"_s, other}};
    for (const auto &[replacement, stored] : changes) {
        replaceMoment(before, replacement);
        EXPECT_TRUE(hands->messages.texts().isEmpty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
        hands->click(u"ToOrigin"_s);
        before = stored + zone;
        EXPECT_EQ(shown(u"a_moment"_s), before) << qUtf8Printable(replacement);
        EXPECT_EQ(hands->texts(u"a_moment"_s).at(1), u"2024-07-01 12:00:01"_s + zone);
    }
}

// No value shows that there is a zone; the driver tells.
TEST_P(EngineValues, AMomentWithATimeZoneIsTypedIntoAnEmptyColumnAndANewRecord)
{
    if (!isPostgres())
        GTEST_SKIP() << "only PostgreSQL has a type for it";
    insert(u"a_moment"_s, u"1,NULL"_s);
    database->run({u"ALTER TABLE journey_values ALTER a_moment TYPE TIMESTAMP(6) WITH TIME ZONE"_s});
    const QString stored = u"SELECT to_char(a_moment AT TIME ZONE 'UTC', 'YYYY-MM-DD HH24:MI') "
                           "FROM journey_values WHERE id=%1"_s;
    ASSERT_TRUE(load());
    replaceMoment({}, u"2024-07-01 12:00:00+05:45"_s);
    EXPECT_TRUE(hands->messages.texts().isEmpty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(database->ask(stored.arg(1)), u"2024-07-01 06:15"_s);

    database->run({u"DELETE FROM journey_values"_s});
    ASSERT_TRUE(load());
    hands->grid.findChild<QAction *>(u"PopMnuDataAction8"_s)->trigger();
    EXPECT_TRUE(hands->writeListed(u"id"_s, u"2"_s));
    EXPECT_TRUE(hands->writeListed(u"a_moment"_s, u"2024-07-01T12:00:00Z"_s));
    hands->click(u"AllRecord"_s);
    EXPECT_TRUE(hands->messages.texts().isEmpty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(database->ask(stored.arg(2)), u"2024-07-01 12:00"_s);
}

// Each engine writes it in its own way.
TEST_P(EngineValues, ANumberWithAnExponentIsFoundAsItIsShown)
{
    for (const char *record : {"1,1e19", "2,-2.5e-10", "3,2", "4,1e20"})
        insert(u"real_number"_s, QString::fromLatin1(record));
    ASSERT_TRUE(load());
    const QStringList numbers{u"1E+19"_s, u"-2.5E-10"_s, u"2"_s, u"1E+20"_s};
    ASSERT_EQ(hands->texts(u"real_number"_s), numbers);
    for (const qsizetype row : {0, 1, 3}) {
        WindowAnswers dialogs(
            {[&](QDialog &dialog) { Hands::find(dialog, numbers.at(row), u"real_number"_s); }});
        hands->click(u"QuickFilter"_s);
        EXPECT_EQ(hands->texts(u"id"_s), QStringList(QString::number(row + 1)))
            << qUtf8Printable(hands->statement());
        hands->click(u"ToPreview"_s);
    }
}

// A fraction is hardly ever exactly what is shown of it.
TEST_P(EngineValues, TheQuickFilterLooksForDigitsThatAreShown)
{
    if (engine.isMariaDb())
        GTEST_SKIP() << "its LIKE sees all digits that it has";
    insert(u"real_number"_s, u"1,0.1+0.2"_s);
    insert(u"real_number"_s, u"2,1.5e300"_s);
    insert(u"real_number"_s, u"3,-2.5e-10"_s);
    insert(u"real_number"_s, u"4,0"_s);
    ASSERT_TRUE(load());
    EXPECT_EQ(hands->texts(u"real_number"_s), (QStringList{u"0.3"_s, u"1.5E+300"_s, u"-2.5E-10"_s, u"0"_s}));
    const std::pair<QString, QStringList> words[] = {
        {u"0.3"_s, {u"1"_s}}, {u"000"_s, {}}, {u"+300"_s, {u"2"_s}}, {u"-10"_s, {u"3"_s}}};
    for (const auto &[word, ids] : words) {
        WindowAnswers dialogs({[&](QDialog &dialog) { Hands::find(dialog, word, u"real_number"_s); }});
        hands->click(u"QuickFilter"_s);
        EXPECT_EQ(hands->texts(u"id"_s), ids) << qUtf8Printable(word + u' ' + hands->statement());
        hands->click(u"ToPreview"_s);
    }
}

TEST_P(EngineValues, PicturesComeThroughByteForByte)
{
    insert(u"picture"_s, u"1,"_s + engine.bytes("00FF27005C0D0A"));
    ASSERT_TRUE(load());
    EXPECT_EQ(value("picture").toByteArray().toHex(), QByteArray("00ff27005c0d0a"));
    EXPECT_EQ(shown(u"picture"_s), u"<7 字节>"_s);
}

TEST_P(EngineValues, LineEndsAndTabsStayAsTheyAre)
{
    const QString text = engine.isFilledBySqlite() || isPostgres()
                             ? u"'a'||%1(10)||'b'||%1(13)||%1(10)||%1(9)||'c'"_s
                             : u"concat('a',%1(10),'b',%1(13),%1(10),%1(9),'c')"_s;
    insert(u"short_text"_s, u"1,"_s + text.arg(isPostgres() ? u"chr"_s : u"char"_s));
    ASSERT_TRUE(load());
    EXPECT_EQ(value("short_text").toString(), u"a\nb\r\n\tc"_s);
}
