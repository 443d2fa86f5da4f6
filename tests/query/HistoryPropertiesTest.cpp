#include "query/clsFilterManagement.h"

#include "CaseFile.h"
#include "MemorySource.h"

#include <QtCore/QSet>
#include <gtest/gtest.h>

#include <random>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Entry
{
    QString statement;
    QString key;
};

// Runs random operations on a history and on the simplest
// equivalent model: a list of statements and keys.
class RandomHistory
{
public:
    explicit RandomHistory(unsigned seed) : m_random(seed)
    {
        m_reader.fieldsByStatement.insert(u"all"_s, {{u"A"_s, 3}});
        m_history.SetConnString(u"DSN=a"_s);
        m_history.SetAllFields(u"all"_s);
    }

    void Step()
    {
        m_reader.isPluggedIn = m_random() % 4 != 0;
        QString statement;
        QString key;
        switch (m_random() % 6) {
        case 0:
        case 1:
            Push();
            break;
        case 2:
            ASSERT_EQ(m_history.RemoveLatestSQL(), !m_entries.empty());
            if (!m_entries.empty())
                m_entries.pop_back();
            break;
        case 3:
            ExpectStep(m_history.GetPreviewSQL(statement, &key),
                       std::max<std::size_t>(m_entries.size(), 2) - 1, statement, key);
            break;
        case 4:
            ExpectStep(m_history.GetFirstSQL(statement, &key), 1, statement, key);
            break;
        default:
            if (m_random() % 8 == 0) {
                m_history.Clear();
                m_entries.clear();
                m_history.SetConnString(u"DSN=a"_s);
                m_history.SetAllFields(u"all"_s);
                m_used.clear();
            } else {
                ASSERT_EQ(m_history.GetNextSQLByFilter(u"c"_s, statement), !m_entries.empty());
            }
        }
    }

    void ExpectInvariants() const
    {
        ASSERT_EQ(static_cast<std::size_t>(m_history.Count()), m_entries.size());
        qsizetype position = 0;
        for (const Entry &entry : m_entries) {
            const clsShowSQLSentence *const item = m_history.Item(++position);
            ASSERT_TRUE(item);
            ASSERT_EQ(item->ShowSQL, entry.statement);
            ASSERT_EQ(item->SQLKey, entry.key);
            ASSERT_EQ(m_history.Item(entry.key), item);
        }
        ASSERT_FALSE(m_history.Item(position + 1));
    }

private:
    void Push()
    {
        const Entry entry{u"select "_s + QString::number(m_random() % 100) + u" from T"_s, {}};
        QString key;
        ASSERT_TRUE(m_history.AddCurrentSQL(entry.statement, AllFieldsShown, m_history.NoPartField(),
                                            m_history.NoSort(), &key));
        ASSERT_FALSE(m_used.contains(key)) << "keys are never used again";
        m_used.insert(key);
        m_entries.push_back({entry.statement, key});
    }

    void ExpectStep(bool isDone, std::size_t kept, const QString &statement, const QString &key)
    {
        ASSERT_EQ(isDone, m_reader.isPluggedIn && !m_entries.empty());
        if (!isDone)
            return;
        m_entries.resize(kept);
        ASSERT_EQ(statement, m_entries.back().statement);
        ASSERT_EQ(key, m_entries.back().key);
    }

    std::mt19937 m_random;
    MemoryReader m_reader;
    colShowSQLSentences m_history{&m_reader};
    std::vector<Entry> m_entries;
    QSet<QString> m_used;
};

} // namespace

TEST(HistoryProperties, InvariantsHoldUnderRandomOperations)
{
    for (unsigned seed = 0; seed < 10000; ++seed) {
        RandomHistory history(seed);
        for (int step = 0; step < 25; ++step) {
            history.Step();
            history.ExpectInvariants();
            if (testing::Test::HasFatalFailure())
                FAIL() << "seed " << seed << ", step " << step;
        }
    }
}

TEST(HistoryProperties, SteppingBackUndoesEachPush)
{
    MemoryReader reader;
    reader.fieldsByStatement.insert(u"all"_s, {{u"A"_s, 3}});
    colShowSQLSentences history(&reader);
    history.SetConnString(u"DSN=a"_s);
    history.SetAllFields(u"all"_s);
    QStringList shown{u"select * from T"_s};
    ASSERT_TRUE(history.AddCurrentSQL(shown.last(), AllFieldsShown));
    for (int i = 0; i < 200; ++i) {
        QString next;
        ASSERT_TRUE(history.GetNextSQLByFilter(u"A="_s + QString::number(i), next));
        ASSERT_TRUE(history.AddCurrentSQL(next, AllFieldsShown, history.NoPartField(), history.NoSort()));
        shown.append(next);
    }
    while (shown.size() > 1) {
        shown.removeLast();
        QString statement;
        QString key;
        ASSERT_TRUE(history.GetPreviewSQL(statement, &key));
        ASSERT_EQ(statement, shown.last());
        ASSERT_EQ(history.Count(), shown.size());
    }
}

TEST(FilterManagerProperties, StepBackUndoesTheLatestStatement)
{
    for (unsigned seed = 0; seed < 1000; ++seed) {
        std::mt19937 random(seed);
        clsFilterManagement manager;
        manager.SetOriginFilter(u"select * from T"_s);
        for (unsigned pushes = random() % 8; pushes > 0; --pushes)
            ASSERT_TRUE(manager.LetNewSQLStr(u"select "_s + QString::number(random()) + u" from T"_s));
        const QString before = manager.LastUseFilter();
        const QStringList stack = manager.Remembered().filterStack;
        QString filtered;
        ASSERT_TRUE(manager.LetNewFilter(u"A=1"_s, filtered));
        QString back;
        ASSERT_TRUE(manager.GetPreviewFilter(back));
        ASSERT_EQ(back, before);
        ASSERT_EQ(manager.LastUseFilter(), before);
        ASSERT_EQ(manager.Remembered().filterStack, stack);
    }
}
