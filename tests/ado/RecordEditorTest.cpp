// Changes whose outcome is not known: the answer of the database never came. The next attempt to save them
// finds out whether they were saved.
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
    bool isSavedInDoubt = true; // the next update is saved, or not, and then nobody answers
    bool answers = true;
    bool isDeleted = false;
    int updates = 0; // that were saved
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
    void insert(const std::vector<Change> &, RowStore &) override {}
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

class EditInDoubt : public testing::Test
{
protected:
    EditInDoubt() : editor(std::make_unique<TableWriter>(table), {}), snapshot(fields(), oldRow())
    {
        editor.set(1, u"mine"_s, snapshot);
    }
    static std::vector<FieldInfo> fields()
    {
        FieldInfo id;
        id.name = u"id"_s;
        id.type = adBigInt;
        FieldInfo text;
        text.name = u"text"_s;
        return {id, text};
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

// Only an attempt whose outcome is not known can have written what is there.
TEST_F(EditInDoubt, IsForgottenWithTheEdit)
{
    saveWithoutAnswer(true);
    editor.cancel();
    editor.set(1, u"mine"_s, snapshot);
    EXPECT_ADO_ERROR(dbErrConcurrency, save());
}
