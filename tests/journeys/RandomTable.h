#pragma once

#include "JourneyDatabase.h"
#include "RandomValues.h"

#include "ado/Connection.h"
#include "filter/FilterSource.h"

#include <gtest/gtest.h>

#include <ctime>

namespace KovaTest {

// A table of random values on an engine, and what users type to look for them.
class RandomTable : public testing::TestWithParam<JourneyEngine>
{
protected:
    void SetUp() override
    {
        if (!engine.isThere())
            GTEST_SKIP() << engine.variable << " is not set";
        // Of the process, and of the server's sessions.
        qputenv("TZ", zone.id());
        qputenv("PGTZ", zone.id());
        tzset();
        database.emplace(engine);
        fill();
        connection->Open(database->connectionString());
        source.setDatabase(static_cast<KOVAVSFDataGridLib::AllDBType>(engine.dbType));
        source.setConnection(connection);
        source.setTable(u"journey_random"_s);
        fields = source.readFields();
        ASSERT_EQ(fields.size(), columns + 1U);
    }

    void TearDown() override
    {
        qunsetenv("TZ");
        qunsetenv("PGTZ");
        tzset();
    }

    bool isPostgres() const { return QLatin1StringView(engine.name).startsWith("PostgreSQL"_L1); }
    TextRule rule(Column column) const
    {
        const bool isLoose = column == Loose;
        if (engine.store == JourneyEngine::AccessFile)
            return {.ignoresCase = true, .likeIgnoresCase = true};
        if (isPostgres())
            return {.ignoresEnd = isLoose, .likeIgnoresEnd = isLoose};
        if (engine.isMariaDb())
            return {.hasUpperCase = true,
                    .ignoresCase = isLoose,
                    .ignoresEnd = isLoose,
                    .likeIgnoresCase = isLoose};
        return {.ignoresCase = isLoose, .likeIgnoresCase = true};
    }
    QString looseType() const
    {
        if (engine.store == JourneyEngine::AccessFile)
            return u"VARCHAR(60)"_s;
        if (isPostgres())
            return u"CHAR(60) COLLATE \"C\""_s;
        return engine.isMariaDb() ? u"VARCHAR(60) CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci"_s
                                  : u"VARCHAR(60) COLLATE NOCASE"_s;
    }

    void fill()
    {
        const bool isMariaDb = engine.isMariaDb();
        const bool isPostgres = this->isPostgres();
        const QString zoned =
            isPostgres ? u"TIMESTAMP(6) WITH TIME ZONE"_s : QString::fromLatin1(engine.moment);
        // Dates are timestamps if a database has no date type.
        const QString day = engine.store == JourneyEngine::AccessFile ? u"DATETIME"_s : u"DATE"_s;
        QStringList script{
            u"DROP TABLE IF EXISTS journey_random"_s,
            u"CREATE TABLE journey_random (id INTEGER PRIMARY KEY, t VARCHAR(60)%1, n INTEGER, d %2, m %3, b %4, u %6, z %7)%5"_s
                .arg(isPostgres ? u" COLLATE \"C\""_s : QString(), day, QString::fromLatin1(engine.moment),
                     u"BOOLEAN"_s,
                     isMariaDb ? u" CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s : QString(),
                     looseType(), zoned)};
        Generator random(20260102); // the same on each run
        for (int id = 1; id <= 80; ++id) {
            Row row;
            QStringList literals(columns, u"NULL"_s);
            const auto quoted = [&](QString text) {
                text.replace(u'\'', u"''"_s);
                if (isMariaDb)
                    text.replace(u'\\', u"\\\\"_s);
                return u'\'' + text + u'\'';
            };
            for (const Column column : {Text, Loose}) {
                if (random.oneIn(6))
                    continue;
                const QString text = random.text(hasEmoji());
                row[column] = keyOf(text, rule(column));
                literals[column] = quoted(text);
            }
            if (!random.oneIn(6)) {
                const QDateTime there = random.momentIn(zone);
                row[Zoned] = keyOf(QDateTime(there.date(), there.time(), Qt::UTC));
                literals[Zoned] = quoted(isPostgres ? there.toUTC().toString(u"yyyy-MM-dd HH:mm:ss'+00'"_s)
                                                    : there.toString(u"yyyy-MM-dd HH:mm:ss"_s));
            }
            if (!random.oneIn(6)) {
                const int number = random.below(41) - 20;
                row[Number] = Key{.number = static_cast<double>(number)};
                literals[Number] = QString::number(number);
            }
            if (!random.oneIn(6)) {
                const QDate date = random.oneOf(days());
                row[Day] = keyOf(date);
                literals[Day] = quoted(date.toString(Qt::ISODate));
            }
            if (!random.oneIn(6)) {
                const QDateTime moment = random.moment();
                row[Moment] = keyOf(moment);
                literals[Moment] = quoted(moment.toString(u"yyyy-MM-dd HH:mm:ss"_s));
            }
            // Access has no Null among Booleans.
            if (engine.store == JourneyEngine::AccessFile || !random.oneIn(6)) {
                const bool yes = random.oneIn(2);
                row[YesNo] = Key{.number = yes ? 1.0 : 0.0};
                literals[YesNo] = isPostgres ? (yes ? u"TRUE"_s : u"FALSE"_s) : QString::number(yes ? 1 : 0);
            }
            rows.push_back(row);
            script += u"INSERT INTO journey_random VALUES (%1,%2)"_s.arg(id).arg(literals.join(u','));
        }
        database->run(script);
    }

    // SQLite's ODBC driver doesn't support emoji in a statement.
    bool hasEmoji() const { return engine.store != JourneyEngine::SqliteFile || !engine.variable; }

    Typed typed(Column column, KOVAVSFDataGridLib::FieldClass fieldClass, Generator &random) const
    {
        switch (column) {
        case Text:
        case Loose: {
            QString text = random.text(hasEmoji());
            if (text.trimmed().isEmpty())
                text = u"a"_s;
            return {text, keyOf(text, rule(column)), {}, rule(column).pattern(text)};
        }
        case Number: {
            const int number = random.below(45) - 22;
            return {QString::number(number), {.number = static_cast<double>(number)}};
        }
        case YesNo: {
            const bool yes = random.oneIn(2);
            // A number to some engines.
            const QString words = yes ? u"是"_s : u"否"_s;
            return {fieldClass == KOVAVSFDataGridLib::FieldClass::Boolean ? words
                                                                          : QString::number(yes ? 1 : 0),
                    {.number = yes ? 1.0 : 0.0}};
        }
        default:
            break;
        }
        if (random.oneIn(2))
            return random.oneOf(namedDays());
        if (fieldClass == KOVAVSFDataGridLib::FieldClass::Moment && random.oneIn(2)) {
            const QDateTime moment = random.moment();
            return {moment.toString(u"yyyy-MM-dd HH:mm:ss"_s), keyOf(moment)};
        }
        const QDate date = random.oneOf(days());
        return {date.toString(random.oneIn(2) ? u"yyyy-MM-dd"_s : u"yyyy年M月d日"_s), keyOf(date),
                keyOf(date.addDays(1))};
    }

    // As typed by the user, with quotes if the value contains a separator.
    static QString filterListItemOf(const QString &value)
    {
        return u'"' + QString(value).replace(u'"', u"\"\""_s) + u'"';
    }

    const JourneyEngine &engine = GetParam();
    const QTimeZone zone{"America/Sao_Paulo"}; // where days began at one o'clock when summer time started
    std::vector<Row> rows;
    std::optional<JourneyDatabase> database;
    std::shared_ptr<ADODB::Connection> connection = std::make_shared<ADODB::Connection>();
    KOVAVSFDataGridLib::FilterSource source;
    std::vector<KOVAVSFDataGridLib::FilterField> fields;
};

} // namespace KovaTest
