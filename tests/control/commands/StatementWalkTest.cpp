// A user who filters, sorts, chooses fields and steps back, over statements of every kind. After every step
// the grid is compared with a model that knows rows alone. KOVA_WALK_STEPS and KOVA_MONKEY_SEED choose how
// many and which.
#include "Hands.h"

#include "query/support/CaseFile.h"
#include "query/support/SampleTables.h"
#include "support/Dialogs.h"
#include "support/TestDatabase.h"

#include <KOVAVSFDataGridLib/ado/Connection.h>
#include <KOVAVSFDataGridLib/ado/Recordset.h>

#include <QtCore/QSet>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <random>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr int defaultSteps = 10000;

// What one statement of the history shows.
struct Shown
{
    std::vector<QStringList> rows; // with all fields
    QStringList part;              // the fields chosen last; empty before any choice
    bool isAll = true;
};

struct WalkedDatabase
{
    TestDatabase database{QString::fromUtf8(sampleTables)};
};

class StatementWalk : public testing::Test, protected WalkedDatabase, protected Hands
{
protected:
    StatementWalk() : Hands(database.connectionString(), KOVAVSFDataGrid::dbAccess)
    {
        grid.resize(1400, 320); // painted after each of 10,000 steps
    }

    std::size_t pick(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    }

    void begin(const Case &c)
    {
        const QString statement = c[u"statement"_s];
        names.clear();
        Shown first{read(statement, &names), {}, true};
        whole = first.rows;
        hasWhole = c.Has(u"whole"_s);
        if (hasWhole)
            whole = read(c[u"whole"_s], nullptr);
        hasWhole = hasWhole || !statement.contains(u"where", Qt::CaseInsensitive);
        hasFieldChoice = !statement.contains(u"distinct", Qt::CaseInsensitive) &&
                         QSet<QString>(names.begin(), names.end()).size() == names.size();
        shown = {first};
        grid.PutShowModel(KOVAVSFDataGrid::ModelAll); // whatever the walk before left
        ASSERT_TRUE(load(statement, {}));
        compare();
    }

    std::vector<QStringList> read(const QString &statement, QStringList *fields) const
    {
        auto connection = std::make_shared<ADODB::Connection>();
        connection->Open(database.connectionString());
        ADODB::Recordset records;
        records.Open(statement, connection);
        std::vector<QStringList> rows;
        for (int field = 0; fields && field < records.Fields().Count(); ++field)
            fields->append(records.Fields().Item(field).Name());
        for (qint64 record = 1; record <= records.RecordCount(); ++record) {
            QStringList row;
            for (int field = 0; field < records.Fields().Count(); ++field)
                row.append(records.CellText(record, field));
            rows.push_back(row);
        }
        return rows;
    }

    Shown &top() { return shown.back(); }

    QList<qsizetype> shownFields()
    {
        QList<qsizetype> fields;
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (top().isAll || top().part.contains(names.at(i)))
                fields.append(i);
        }
        return fields;
    }

    void compare()
    {
        QStringList headings;
        std::vector<QStringList> expected;
        for (const qsizetype field : shownFields())
            headings.append(names.at(field));
        for (const QStringList &row : top().rows) {
            QStringList part;
            for (const qsizetype field : shownFields())
                part.append(row.at(field));
            expected.push_back(part);
        }
        std::vector<QStringList> actual;
        const QAbstractItemModel &model = *table->model();
        for (int row = 0; row < rows(); ++row) {
            QStringList texts;
            for (int col = 0; col < model.columnCount(); ++col) {
                if (!table->isColumnHidden(col))
                    texts.append(model.index(row, col).data().toString());
            }
            actual.push_back(texts);
        }
        std::sort(expected.begin(), expected.end());
        std::sort(actual.begin(), actual.end());
        EXPECT_EQ(columns(), headings) << qUtf8Printable(statement());
        EXPECT_TRUE(actual == expected) << qUtf8Printable(statement()) << '\n'
                                        << actual.size() << " rows instead of " << expected.size();
        EXPECT_EQ(isPressed(u"All"_s), top().isAll);
        EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
        messages.clear();
    }

    const char *step()
    {
        switch (pick(9)) {
        case 0:
        case 1:
            return filterByCell();
        case 2:
            return filterByWord();
        case 3:
            return sortRows();
        case 4:
            return chooseFields();
        case 5:
            return showAll();
        case 6:
            return showPart();
        case 7:
            return pick(6) == 0 ? showWhole() : toOrigin();
        default:
            return back();
        }
    }

    const char *filterByCell()
    {
        if (rows() == 0)
            return "nothing";
        const QList<qsizetype> fields = shownFields();
        const auto at = static_cast<qsizetype>(pick(static_cast<std::size_t>(fields.size())));
        int col = -1; // of the grid
        for (qsizetype seen = -1; seen < at;)
            seen += table->isColumnHidden(++col) ? 0 : 1;
        const int row = static_cast<int>(pick(static_cast<std::size_t>(rows())));
        const QString text = table->model()->index(row, col).data().toString();
        choose(14, row + 1, col + 1);
        if (!messages.shown().empty()) { // a type that has no such filter
            messages.clear();
            return "refused cell filter";
        }
        push();
        std::erase_if(top().rows, [&](const QStringList &other) { return other.at(fields.at(at)) != text; });
        return "cell filter";
    }

    const char *filterByWord()
    {
        if (rows() == 0)
            return "nothing";
        const QString word = u"an"_s;
        WindowAnswers dialogs({[&](QDialog &dialog) { find(dialog, word); }});
        click(u"QuickFilter"_s);
        push();
        // In all fields, shown or not.
        std::erase_if(top().rows, [&](const QStringList &row) {
            return row.filter(word, Qt::CaseInsensitive).isEmpty();
        });
        return "quick filter";
    }

    const char *sortRows()
    {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            const auto &fields = part<QComboBox>(dialog, "cmbFields");
            const auto count = static_cast<std::size_t>(fields.count());
            const bool isEmptied = pick(4) == 0;
            const QString field = fields.itemText(static_cast<int>(pick(count)));
            sort(dialog, isEmptied ? QStringList() : QStringList(field), pick(2) == 0);
        }});
        click(u"Sort"_s);
        push();
        return "sort";
    }

    const char *chooseFields()
    {
        if (!hasFieldChoice)
            return "nothing";
        QStringList chosen;
        for (const QString &name : names) {
            if (pick(2) == 0)
                chosen.append(name);
        }
        if (chosen.isEmpty())
            chosen.append(names.first());
        WindowAnswers dialogs({[&](QDialog &dialog) { tick(dialog, chosen); }});
        click(u"SelField"_s);
        push();
        top().part = chosen;
        top().isAll = false;
        return "field choice";
    }

    const char *showAll()
    {
        if (rows() == 0)
            return "nothing";
        click(u"All"_s);
        push();
        top().isAll = true;
        return "all";
    }

    const char *showPart()
    {
        if (rows() == 0)
            return "nothing";
        click(u"Part"_s);
        if (top().part.isEmpty())
            return "part without a choice";
        push();
        top().isAll = false;
        return "part";
    }

    const char *showWhole()
    {
        if (!hasWhole)
            return "nothing";
        click(u"ToFullTable"_s);
        push();
        top().rows = whole;
        return "whole table";
    }

    const char *toOrigin()
    {
        click(u"ToOrigin"_s);
        shown.resize(1);
        return "origin";
    }

    const char *back()
    {
        click(u"ToPreview"_s);
        if (shown.size() > 1)
            shown.pop_back();
        return "back";
    }

    void push() { shown.push_back(top()); }

    std::mt19937 random;
    QStringList names;
    std::vector<Shown> shown; // the history, oldest first
    std::vector<QStringList> whole;
    bool hasWhole = false;
    bool hasFieldChoice = false;
};

int numberFrom(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}

} // namespace

TEST_F(StatementWalk, ShowsTheRowsOfAModelAfterEveryStep)
{
    const int steps = numberFrom("KOVA_WALK_STEPS", defaultSteps);
    const auto seed = static_cast<unsigned>(numberFrom("KOVA_MONKEY_SEED", 20240229));
    std::printf("walk: %d steps from seed %u\n", steps, seed);
    random.seed(seed);
    const std::vector<Case> cases = ReadCases(u"statements.cases"_s);
    constexpr int stepsOnEach = 25; // conditions grow too long to be worth while
    for (int done = 0; done < steps; done += stepsOnEach) {
        const Case &c = cases.at(static_cast<std::size_t>(done / stepsOnEach) % cases.size());
        SCOPED_TRACE(c.place.toStdString());
        begin(c);
        QStringList taken;
        for (int i = 0; i < stepsOnEach && !HasFailure(); ++i) {
            const char *what = step();
            taken.append(QLatin1StringView(what) + u": "_s + statement());
            compare();
            ASSERT_FALSE(HasFailure()) << "after step " << done + i << ":\n"
                                       << qUtf8Printable(taken.join(u'\n'));
        }
        ASSERT_FALSE(HasFailure());
    }
}
