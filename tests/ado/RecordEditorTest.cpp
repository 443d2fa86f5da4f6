// Changes with an unknown outcome: the database never answered. The next attempt to save them finds out
// whether they were saved.
#include "Throwing.h"

#include "ado/rows/RecordEditor.h"
#include "ado/rows/RowWriter.h"
#include "ado/rows/Snapshot.h"
#include "ado/values/FieldValue.h"

using namespace ADODB;
using namespace Qt::StringLiterals;

namespace {

// A table of one row in memory: a number, which is the key, and a text.
struct Table
{
    QString text = u"old"_s;
    bool isSavedInDoubt = true; // whether the next update, which gets no answer, is saved
    bool answers = true;
    bool isDeleted = false;
    int updates = 0; // that were saved
    int inserts = 0; // see updates
    bool tellsNewRow = true;
};

void addRow(RowStore &rows, const QString &text)
{
    rows.addInteger(1);
    rows.addText(text.toUtf8());
    rows.endRow();
}

class TableWriter : public RowWriter
{
public:
    explicit TableWriter(Table &table) : m_table(table) {}
    bool isWritable(int) const override { return true; }
    void insert(const std::vector<Change> &changes, RowStore &stored) override
    {
        const QString text = changes.front().value.toString();
        if (m_table.tellsNewRow)
            addRow(stored, text);
        if (m_table.answers || m_table.isSavedInDoubt) {
            m_table.text = text;
            m_table.isDeleted = false;
            ++m_table.inserts;
        }
        if (!m_table.answers)
            throw Error(dbErrInDoubt, u"no answer"_s);
    }
    void remove(const std::vector<RawValue> &) override {}
    void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                RowStore &stored) override
    {
        if (m_table.isDeleted || row[1].bytes.toByteArray() != m_table.text.toUtf8())
            throw Error(dbErrConcurrency, u"another row"_s);
        if (m_table.answers || m_table.isSavedInDoubt) {
            m_table.text = changes.front().value.toString();
            ++m_table.updates;
        }
        if (!m_table.answers)
            throw Error(dbErrInDoubt, u"no answer"_s);
        addRow(stored, m_table.text);
    }
    bool read(const std::vector<RawValue> &, RowStore &now) override
    {
        if (!m_table.isDeleted)
            addRow(now, m_table.text);
        return !m_table.isDeleted;
    }

private:
    Table &m_table;
};

std::vector<FieldInfo> fields()
{
    FieldInfo id;
    id.name = u"id"_s;
    id.type = adBigInt;
    FieldInfo text;
    text.name = u"text"_s;
    return {id, text};
}

class EditInDoubt : public testing::Test
{
protected:
    EditInDoubt() : editor(std::make_unique<TableWriter>(table), {}), snapshot(fields(), oldRow())
    {
        editor.set(1, u"mine"_s, snapshot);
    }
    static RowStore oldRow()
    {
        RowStore rows(2);
        addRow(rows, u"old"_s);
        return rows;
    }
    void saveWithoutAnswer(bool isSaved)
    {
        table.isSavedInDoubt = isSaved;
        table.answers = false;
        EXPECT_ADO_ERROR(dbErrInDoubt, save());
        table.answers = true;
        EXPECT_EQ(editor.mode(), adEditInProgress);
    }
    void save() { editor.saveChanges(snapshot, 1); }
    void expectShown(const QString &text) const
    {
        EXPECT_EQ(editor.mode(), adEditNone);
        EXPECT_EQ(snapshot.text(1, 1), text);
    }

    Table table;
    RecordEditor editor;
    Snapshot snapshot;
};

// A new record; its key is the database's.
class NewRecordInDoubt : public testing::Test
{
protected:
    NewRecordInDoubt() : editor(std::make_unique<TableWriter>(table), {}), snapshot(fields(), RowStore(2))
    {
        table.isDeleted = true;
        editor.beginNew();
        editor.set(1, u"mine"_s, snapshot);
    }
    void save() { editor.saveNew(snapshot); }
    void saveWithoutAnswer(bool isSaved)
    {
        table.isSavedInDoubt = isSaved;
        table.answers = false;
        EXPECT_ADO_ERROR(dbErrInDoubt, save());
        table.answers = true;
        EXPECT_EQ(editor.mode(), adEditAdd);
        EXPECT_EQ(snapshot.records(), 0);
    }
    void expectShown(const QString &text) const
    {
        EXPECT_EQ(editor.mode(), adEditNone);
        ASSERT_EQ(snapshot.records(), 1);
        EXPECT_EQ(snapshot.text(1, 1), text);
        EXPECT_EQ(table.text, text);
    }

    Table table;
    RecordEditor editor;
    Snapshot snapshot;
};

} // namespace

TEST_F(EditInDoubt, IsShownAsSavedWhenItWas)
{
    saveWithoutAnswer(true);
    save();
    expectShown(u"mine"_s);
    EXPECT_EQ(table.updates, 1) << "it is not saved twice";
}

TEST_F(EditInDoubt, IsSavedWhenItWasNot)
{
    saveWithoutAnswer(false);
    save();
    expectShown(u"mine"_s);
    EXPECT_EQ(table.updates, 1);
}

TEST_F(EditInDoubt, IsFollowedByWhatTheUserWroteSince)
{
    for (const bool isSaved : {true, false}) {
        saveWithoutAnswer(isSaved);
        editor.set(1, u"more"_s, snapshot);
        EXPECT_FALSE(editor.findChanges(snapshot, 1)) << "not all of it";
        save();
        expectShown(u"more"_s);
        EXPECT_EQ(table.text, u"more"_s);
        editor.set(1, u"mine"_s, snapshot);
    }
}

TEST_F(EditInDoubt, IsFoundWithoutAnotherAttempt)
{
    saveWithoutAnswer(false);
    EXPECT_FALSE(editor.findChanges(snapshot, 1));
    EXPECT_EQ(editor.mode(), adEditInProgress);
    EXPECT_EQ(table.updates, 0);
    saveWithoutAnswer(true);
    EXPECT_TRUE(editor.findChanges(snapshot, 1));
    expectShown(u"mine"_s);
    EXPECT_EQ(table.updates, 1);
    EXPECT_FALSE(editor.findChanges(snapshot, 1)) << "nothing is open any more";
}

TEST_F(EditInDoubt, GivesWayToWhatSomebodyElseWroteSince)
{
    saveWithoutAnswer(true);
    table.text = u"theirs"_s;
    EXPECT_ADO_ERROR(dbErrConcurrency, save());
    EXPECT_EQ(editor.mode(), adEditInProgress) << "what the user wrote is still there";
    table.isDeleted = true;
    EXPECT_ADO_ERROR(dbErrConcurrency, save());
    EXPECT_EQ(table.text, u"theirs"_s);
}

// Only an attempt with an unknown outcome can have written the existing row.
TEST_F(EditInDoubt, IsForgottenWithTheEdit)
{
    saveWithoutAnswer(true);
    editor.cancel();
    editor.set(1, u"mine"_s, snapshot);
    EXPECT_ADO_ERROR(dbErrConcurrency, save());
}

TEST_F(NewRecordInDoubt, IsNotAddedTwice)
{
    saveWithoutAnswer(true);
    save();
    expectShown(u"mine"_s);
    EXPECT_EQ(table.inserts, 1);
    EXPECT_EQ(table.updates, 0);
}

TEST_F(NewRecordInDoubt, IsAddedWhenItWasNot)
{
    saveWithoutAnswer(false);
    save();
    expectShown(u"mine"_s);
    EXPECT_EQ(table.inserts, 1);
}

TEST_F(NewRecordInDoubt, IsChangedWhereTheUserWroteMoreMeanwhile)
{
    saveWithoutAnswer(true);
    editor.set(1, u"more"_s, snapshot);
    save();
    expectShown(u"more"_s);
    EXPECT_EQ(table.inserts, 1);
    EXPECT_EQ(table.updates, 1);
}

// It can be the user's record, changed by somebody else, or another record with the key that was rolled back.
TEST_F(NewRecordInDoubt, IsNotAddedAgainWhereAnotherHasItsKey)
{
    saveWithoutAnswer(true);
    table.text = u"theirs"_s;
    EXPECT_ADO_ERROR(dbErrPerhapsSaved, save());
    EXPECT_ADO_ERROR(dbErrPerhapsSaved, save());
    EXPECT_EQ(table.inserts, 1);
    EXPECT_EQ(editor.mode(), adEditAdd);
    editor.forgetAttempt();
    save();
    EXPECT_EQ(table.inserts, 2);
    expectShown(u"mine"_s);
}

TEST_F(NewRecordInDoubt, IsNotAddedAgainWhereItsKeyIsNotKnown)
{
    table.tellsNewRow = false;
    saveWithoutAnswer(false);
    EXPECT_ADO_ERROR(dbErrPerhapsSaved, save());
    EXPECT_EQ(table.inserts, 0);
    editor.cancel();
    editor.beginNew();
    editor.set(1, u"other"_s, snapshot);
    table.tellsNewRow = true;
    save();
    EXPECT_EQ(table.inserts, 1) << "the doubt is forgotten with the record";
    expectShown(u"other"_s);
}
