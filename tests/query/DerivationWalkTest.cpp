// A user who filters, sorts, chooses fields and steps back, over statements of every kind. What the grid
// would show is compared with a model that only knows rows.
#include "query/clsFilterManagement.h"

#include "CaseFile.h"
#include "SampleDatabase.h"
#include "query/conditions/Conditions.h"
#include "sql/StatementLines.h"

#include <QtCore/QSet>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Chooses some of the offered fields.
class RandomChooser : public FieldChooser
{
public:
    explicit RandomChooser(std::mt19937 &random) : m_random(random) {}

    QStringList chosen; // names

    std::optional<QString> ChooseVisibleFields(const QString &, const QList<OfferedField> &fields,
                                               const QStringList &) override
    {
        chosen.clear();
        QStringList written;
        for (const OfferedField &field : fields) {
            if (m_random() % 2 == 0 || written.isEmpty()) {
                written.append(field.written);
                chosen.append(field.name);
            }
        }
        return written.join(u',');
    }
    std::optional<QString> ChooseSort(const QString &, const QList<OfferedField> &fields,
                                      const QStringList &) override
    {
        chosen.clear();
        const auto at = static_cast<qsizetype>(m_random() % static_cast<std::size_t>(fields.size() + 1));
        if (at == fields.size())
            return QString();
        chosen.append(fields.at(at).name);
        return fields.at(at).written + u" DESC"_s;
    }

private:
    std::mt19937 &m_random;
};

// What is shown: rows with all fields, of which some are shown.
struct Shown
{
    Rows all;
    QStringList fields; // empty for all
    bool isAll = true;
};

class Walk
{
public:
    Walk(SqliteRows &database, const QString &statement, std::mt19937 &random)
        : m_database(database),
          m_reader(database),
          m_random(random),
          m_chooser(random),
          m_manager(&m_reader, &m_chooser),
          m_origin(statement)
    {
        m_manager.SetDBType(dbAccess);
        m_manager.SetDBConnString(u"memory"_s);
        m_manager.SetAllFields(statement);
        m_manager.SetOriginFilter(statement);
        m_manager.SetSQLInitData();
        EXPECT_EQ(m_manager.GetCurrentSQL20(FirstStatement), statement)
            << "the first statement is shown as it is written";
        m_distinct = SelectParts::of(SqlScanner(statement)).isDistinct;
        record(statement, {database.read(statement), {}, true}, colShowSQLSentences::NoPartField());
    }

    void step()
    {
        switch (m_random() % 7) {
        case 0:
        case 1:
            return filter();
        case 2:
            return sort();
        case 3:
            return chooseFields();
        case 4:
            return show(AllFieldsStatement);
        case 5:
            return show(PartFieldsStatement);
        default:
            return back();
        }
    }

private:
    colShowSQLSentences &history() { return m_manager.SQLManager(); }
    Shown &top() { return m_shown.back(); }
    QString statement() { return history().Item(history().Count())->ShowSQL; }

    void record(const QString &statement, const Shown &shown, const QString &partFields)
    {
        history().AddCurrentSQL(statement, shown.isAll ? AllFieldsShown : PartFieldsShown, partFields,
                                colShowSQLSentences::NoSort());
        EXPECT_TRUE(history().GetCurrSQLFieldsStatus()) << qPrintable(statement);
        m_shown.push_back(shown);
        compare();
    }

    // Nobody knows how many rows a DISTINCT of fewer fields has but a loop over them.
    Rows expected()
    {
        Rows rows;
        QList<qsizetype> columns;
        for (qsizetype i = 0; i < top().all.names.size(); ++i) {
            if (top().isAll || top().fields.contains(top().all.names.at(i)))
                columns.append(i);
        }
        for (const qsizetype column : columns)
            rows.names.append(top().all.names.at(column));
        for (const Row &row : top().all.rows) {
            Row part;
            for (const qsizetype column : columns)
                part.append(row.at(column));
            if (!m_distinct || top().isAll ||
                std::find(rows.rows.begin(), rows.rows.end(), part) == rows.rows.end())
                rows.rows.push_back(part);
        }
        return rows;
    }

    void compare()
    {
        Rows actual = m_database.read(statement());
        Rows model = expected();
        EXPECT_EQ(actual.error, QString()) << qPrintable(statement());
        std::sort(actual.rows.begin(), actual.rows.end());
        std::sort(model.rows.begin(), model.rows.end());
        EXPECT_EQ(actual.names, model.names) << qPrintable(statement());
        EXPECT_TRUE(actual.rows == model.rows) << qPrintable(statement()) << "\n"
                                               << qPrintable(actual.text()) << "instead of\n"
                                               << qPrintable(model.text());
    }

    void filter()
    {
        const Rows rows = m_database.read(statement());
        if (rows.rows.empty())
            return;
        const Row &row = rows.rows.at(m_random() % rows.rows.size());
        const auto column = static_cast<qsizetype>(m_random() % static_cast<std::size_t>(rows.names.size()));
        const QString name = history().GetColumnRealName(statement(), rows.names, column);
        ASSERT_FALSE(name.isEmpty());
        ASSERT_EQ(history().WhyNot(DerivationStep::Condition), QString());
        const QString literal = row.at(column);
        const QString condition = literal == u"NULL" ? name + u" IS NULL"_s : name + u" = "_s + literal;
        QString next;
        ASSERT_TRUE(history().GetNextSQLByFilter(condition + u" OR 1=0"_s, next));
        Shown shown = top();
        const qsizetype in = columnOfAll(rows.names, column);
        std::erase_if(shown.all.rows, [&](const Row &candidate) { return candidate.at(in) != literal; });
        record(next, shown, colShowSQLSentences::NoPartField());
    }

    // Names can be equal; the n-th of them is the n-th shown one.
    qsizetype columnOfAll(const QStringList &names, qsizetype column)
    {
        const auto before = std::count(names.begin(), names.begin() + column, names.at(column));
        qsizetype at = -1;
        for (qsizetype i = 0; i <= before; ++i)
            at = top().all.names.indexOf(names.at(column), at + 1);
        return at;
    }

    void sort()
    {
        QString list;
        QString next;
        const clsShowSQLSentence entry = *history().Item(history().Count());
        if (!m_manager.GetPartSortSelFields(entry.AllFields, {}, list))
            return;
        ASSERT_TRUE(history().GetNextSQLBySort(list, next));
        const Rows actual = m_database.read(next);
        const qsizetype column =
            m_chooser.chosen.isEmpty() ? -1 : actual.names.indexOf(m_chooser.chosen.first());
        const bool isOne = column >= 0 && actual.names.count(actual.names.at(column)) == 1;
        for (std::size_t row = 1; isOne && row < actual.rows.size(); ++row)
            EXPECT_FALSE(m_database.isLess(actual.rows[row - 1].at(column), actual.rows[row].at(column)))
                << qPrintable(next);
        record(next, top(), colShowSQLSentences::NoPartField());
    }

    void chooseFields()
    {
        const clsShowSQLSentence entry = *history().Item(history().Count());
        QString part;
        entry.GetCurrUsePartFieldSQL(part);
        QString next;
        // Equal names can't be told apart by the model.
        if (QSet<QString>(top().all.names.begin(), top().all.names.end()).size() < top().all.names.size())
            return;
        ASSERT_TRUE(m_manager.GetPartShowSelFields(entry.AllFields, part, entry.ShowSQL, next));
        Shown shown = top();
        shown.fields = m_chooser.chosen;
        shown.isAll = false;
        record(next, shown, history().GetFieldsStatement(next));
        m_part = m_chooser.chosen;
    }

    void show(StatementType type)
    {
        QString partStatement;
        if (type == PartFieldsStatement &&
            !history().Item(history().Count())->GetCurrUsePartFieldSQL(partStatement))
            return;
        QString next;
        ASSERT_TRUE(history().GetNextShowSQL(type, next)) << qPrintable(statement());
        Shown shown = top();
        shown.isAll = type == AllFieldsStatement;
        if (type == PartFieldsStatement)
            shown.fields = m_database.read(partStatement).names;
        record(next, shown, colShowSQLSentences::NoPartField());
    }

    void back()
    {
        QString statementBefore;
        QString key;
        ASSERT_TRUE(history().GetPreviewSQL(statementBefore, &key));
        if (m_shown.size() > 1)
            m_shown.pop_back();
        EXPECT_EQ(static_cast<std::size_t>(history().Count()), m_shown.size());
        compare();
    }

    SqliteRows &m_database;
    SqliteReader m_reader;
    std::mt19937 &m_random;
    RandomChooser m_chooser;
    clsFilterManagement m_manager;
    QString m_origin;
    QStringList m_part;
    bool m_distinct = false;
    std::vector<Shown> m_shown;
};

} // namespace

TEST(DerivationWalk, ShowsTheRowsOfAModelAfterEveryStep)
{
    const auto database = sampleDatabase();
    const unsigned seed =
        qEnvironmentVariableIsSet("KOVA_SEED") ? qEnvironmentVariable("KOVA_SEED").toUInt() : 1;
    constexpr int steps = 200;
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        Walk walk(*database, joinStatementLines(c[u"statement"_s]), random);
        for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step)
            walk.step();
        if (testing::Test::HasFailure())
            return;
    }
}

namespace {

// The statement's tokens without what its texts hold; several texts put together are one.
QString structureOf(const QString &statement)
{
    const SqlScanner sql(statement);
    QString structure;
    for (qsizetype i = 0; i < sql.count(); ++i) {
        const bool isText = sql.at(i).kind == SqlToken::Kind::String;
        structure += isText ? u"'"_s : sql.text(i).toString();
        structure += u' ';
    }
    for (QString before; before != structure;) {
        before = structure;
        structure.replace(u"( ' | | ' )"_s, u"'"_s);
    }
    return structure;
}

} // namespace

TEST(DerivationProperties, NoCellsTextChangesAStatementsStructure)
{
    const auto database = sampleDatabase();
    SqliteReader reader(*database);
    std::mt19937 random(3);
    const QStringList pieces{u"0 UNION SELECT token,x FROM secret --"_s,
                             u" ORDER BY "_s,
                             u" order by x"_s,
                             u"FROM "_s,
                             u"WHERE "_s,
                             u"'"_s,
                             u"\""_s,
                             u")"_s,
                             u"("_s,
                             u"--"_s,
                             u"/*"_s,
                             u";"_s,
                             u"1 OR 1=1"_s,
                             u"%"_s,
                             u"\\"_s,
                             u"]"_s,
                             u"`"_s,
                             u"a"_s,
                             u" "_s,
                             u"客户"_s};
    for (const Case &c : ReadCases(u"statements.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const Derivation derivation = derivationOf(*database, joinStatementLines(c[u"statement"_s]));
        QString structures[3];
        for (int round = 0; round < 40; ++round) {
            QString text = u"x"_s; // no number
            for (std::size_t piece = random() % 5; piece > 0; --piece)
                text += pieces.at(static_cast<qsizetype>(random() % static_cast<std::size_t>(pieces.size())));
            QString words;
            const QString name = derivation.written().first();
            ASSERT_TRUE(BuildLikeAllCondition(text.split(u'%').join(u' '), {u"F"_s, 202, name}, {}, dbAccess,
                                              words, Engine::SQLite));
            const QString conditions[] = {
                buildCellFilter(name, 3, text, Engine::SQLite).condition,
                buildCellFilter(name, 202, text.split(u'\'').join(u' '), Engine::SQLite).condition, words};
            for (int kind = 0; kind < 3; ++kind) {
                const QString once = derivation.withCondition(conditions[kind]);
                const Derivation again = derivationOf(*database, once);
                const QString structure = structureOf(again.withSort(again.written().first()));
                if (round == 0)
                    structures[kind] = structure;
                ASSERT_EQ(structure, structures[kind]) << qPrintable(once);
                EXPECT_EQ(database->read(once).error, QString()) << qPrintable(once);
            }
        }
    }
}
