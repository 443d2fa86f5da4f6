// The statements of statements.cases in the grid, on every engine that accepts them: after each command the
// rows must be those of a loop over the statement's own rows, and going back must show all of them again.
#include "EngineStatements.h"

#include "support/Dialogs.h"

#include <QtCore/QSet>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QTreeWidget>

#include <algorithm>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<QStringList>;
using Answer = StatementAnswer;

class StatementsOnEngines : public EngineStatements
{
protected:
    void filterByCells(const Answer &all)
    {
        const auto columns = static_cast<int>(all.names.size());
        const auto rows = static_cast<int>(std::min<std::size_t>(all.rows.size(), 9));
        for (int column = 0; column < columns; ++column) {
            // Every cell on one engine only; the others have the same tables and are slower.
            const bool isFast = engine.store == JourneyEngine::SqliteFile && !engine.variable;
            const int step = isFast ? 1 : std::max(rows, 1);
            QSet<QString> seen;
            for (int row = step > 1 ? column % std::max(rows, 1) : 0; row < rows; row += step) {
                const QString text = all.rows.at(static_cast<std::size_t>(row)).at(column);
                // The same text again is the same condition, unless one of two is Null and the other empty.
                if (seen.contains(text) && !text.isEmpty())
                    continue;
                seen.insert(text);
                hands->choose(14, row + 1, column + 1);
                if (!hands->messages.shown().empty()) { // a type that has no such filter
                    EXPECT_TRUE(hands->messages.texts().first().contains(u"过滤"))
                        << qUtf8Printable(hands->messages.texts().first()) << '\n'
                        << qUtf8Printable(hands->statement());
                    hands->messages.clear();
                    expectShown(all, "a refused cell filter");
                    continue;
                }
                expectShown(sameText(all, column, text), "the cell filter");
                back(all);
            }
        }
    }

    void filterByWords(const Answer &all)
    {
        const QString word = u"an"_s;
        Answer kept = all;
        std::erase_if(kept.rows,
                      [&](const QStringList &row) { return row.filter(word, letters()).isEmpty(); });
        WindowAnswers dialogs({[&](QDialog &dialog) { Hands::find(dialog, word); }});
        hands->click(u"QuickFilter"_s);
        expectShown(kept, "the quick filter");
        back(all);
    }

    void filterByBuilder(const Answer &all)
    {
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            const QString text = all.rows.empty() ? QString() : all.rows.front().at(column);
            if (text.isEmpty() || text != text.trimmed() || all.names.count(all.names.at(column)) > 1 ||
                text == u"True" || text == u"False")
                continue;
            bool isOffered = false;
            QString notice;
            WindowAnswers dialogs({[&](QDialog &dialog) {
                isOffered = part<QComboBox>(dialog, "cmbField1").findText(all.names.at(column)) >= 0;
                if (isOffered)
                    buildFilter(dialog, all.names.at(column), u"等于"_s, text);
                else {
                    notice = part<QLabel>(dialog, "lblNotice").text();
                    dialog.reject();
                }
            }});
            hands->click(u"Filter"_s);
            EXPECT_TRUE(isOffered) << qUtf8Printable(all.names.at(column)) << qUtf8Printable(notice);
            if (!isOffered)
                continue;
            expectShown(sameText(all, column, text), "the filter builder");
            back(all);
        }
    }

    void sort(const Answer &all)
    {
        bool isComplete = false;
        WindowAnswers dialogs({[&](QDialog &dialog) {
                                   const auto &fields = part<QComboBox>(dialog, "cmbFields");
                                   isComplete = fields.count() == all.names.size();
                                   Hands::sort(dialog, {fields.itemText(fields.count() - 1)}, true);
                               },
                               [](QDialog &dialog) { Hands::sort(dialog, {}); }});
        hands->click(u"Sort"_s);
        expectShown(all, "the sort");
        const Texts rows = shown().rows;
        QStringList seen;
        for (const QStringList &row : isComplete ? rows : Texts()) {
            if (seen.isEmpty() || seen.last() != row.last()) {
                EXPECT_FALSE(seen.contains(row.last()))
                    << "not sorted: " << qUtf8Printable(hands->statement());
                seen.append(row.last());
            }
        }
        hands->click(u"Sort"_s);
        expectShown(all, "an emptied sort");
        back(all);
        back(all);
    }

    // `isOrdered`: the statement's sort leaves nothing to the database.
    void chooseFields(const Answer &all, bool distinct, bool isOrdered)
    {
        const QString name = all.names.last();
        Answer expected;
        for (const QStringList &row : all.rows) {
            QStringList kept;
            for (qsizetype i = 0; i < row.size(); ++i) {
                if (all.names.at(i) == name)
                    kept.append(row.at(i));
            }
            if (!distinct ||
                std::find(expected.rows.begin(), expected.rows.end(), kept) == expected.rows.end())
                expected.rows.push_back(kept);
        }
        for (const QString &other : all.names) {
            if (other == name)
                expected.names.append(other);
        }
        WindowAnswers dialogs({[&](QDialog &dialog) { Hands::tick(dialog, {name}); }});
        hands->click(u"SelField"_s);
        expectShown(expected, "the field choice");
        hands->click(u"All"_s);
        expectShown(all, "All");
        if (isOrdered) {
            EXPECT_EQ(shown().rows, all.rows) << "All: " << qUtf8Printable(hands->statement());
        }
        hands->click(u"Part"_s);
        expectShown(expected, "Part");
        back(all);
        hands->click(u"ToOrigin"_s);
        expectShown(all, "ToOrigin");
    }

    // Of fields with one name, the one that is ticked is shown, also after another one was.
    void chooseOneOfEqualNames(const Answer &all)
    {
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            if (all.names.count(all.names.at(column)) == 1)
                continue;
            Answer expected{{all.names.at(column)}, {}};
            for (const QStringList &row : all.rows)
                expected.rows.push_back({row.at(column)});
            WindowAnswers dialogs({[&](QDialog &dialog) { tickOnly(dialog, static_cast<int>(column)); }});
            hands->click(u"SelField"_s);
            expectShown(expected, "the choice of one of equal names");
            filterByShownCell(expected);
            hands->click(u"All"_s);
            expectShown(all, "All after one of equal names");
            hands->click(u"Part"_s);
            expectShown(expected, "Part with one of equal names");
        }
        hands->click(u"ToOrigin"_s);
        expectShown(all, "ToOrigin");
    }

    // A condition means the column that is shown, and not another one of its name.
    void filterByShownCell(const Answer &expected)
    {
        int column = 0;
        while (column < hands->table->model()->columnCount() && hands->table->isColumnHidden(column))
            ++column;
        const QString text = expected.rows.empty() ? QString() : shown().rows.front().front();
        if (text.isEmpty())
            return;
        hands->choose(14, 1, column + 1);
        if (hands->messages.shown().empty()) {
            expectShown(sameText(expected, 0, text), "the cell filter on one of equal names");
            back(expected);
        }
        hands->messages.clear();
    }

    static void tickOnly(QDialog &dialog, int field)
    {
        auto &view = part<QAbstractItemView>(dialog, "lvSelField");
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            const QModelIndex item = view.model()->index(row, 0);
            if ((item.data(Qt::CheckStateRole).toInt() == Qt::Checked) != (row == field)) {
                view.setFocus();
                view.setCurrentIndex(item);
                QTest::keyClick(&view, Qt::Key_Space);
            }
        }
        press(dialog, "cmdOK");
    }

    // The list of a single record and the statement's rows are the same.
    void showSingleRecord(const Answer &all)
    {
        if (all.rows.empty())
            return;
        hands->clickCell(1, 1);
        hands->click(u"SingleRecord"_s);
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            const QModelIndex index = hands->list->model()->index(static_cast<int>(column), 0);
            EXPECT_EQ(index.data().toString(), all.names.at(column));
            EXPECT_EQ(index.siblingAtColumn(1).data().toString(), all.rows.front().at(column))
                << qUtf8Printable(all.names.at(column));
        }
        hands->click(u"AllRecord"_s);
        expectShown(all, "the single record");
    }

    void showWholeTable(const Answer &all, const QString &whole)
    {
        const auto expected = whole.isEmpty() ? std::optional(all) : read(whole);
        ASSERT_TRUE(expected.has_value()) << qUtf8Printable(whole);
        hands->click(u"ToFullTable"_s);
        expectShown({all.names, expected->rows}, "the whole table");
        back(all);
    }
};

TEST_P(StatementsOnEngines, AreShownWithTheRowsThatALoopTakes)
{
    const int taken = forEachTaken([&](const TakenCase &one) {
        const Answer &all = one.all;
        ASSERT_TRUE(hands->load(one.statement, {})) << qUtf8Printable(hands->messages.texts().join(u'|'));
        expectShown(all, "the load");
        for (const char *key : {"Filter", "QuickFilter", "Sort", "SelField"})
            EXPECT_TRUE(canUse(QString::fromLatin1(key)));
        canDelete();
        const bool isDistinct = one.statement.startsWith(u"select distinct ", Qt::CaseInsensitive) ||
                                one.statement.startsWith(u"select sql_no_cache distinct"_s);
        const bool isOrdered = isDistinct && one.c.Has(u"ordered"_s) && one.c[u"ordered"_s] == u"all";
        const bool isWholeKnown =
            one.c.Has(u"whole"_s) || !one.statement.contains(u"where", Qt::CaseInsensitive);
        runShare(one,
                 {[&] { filterByCells(all); }, [&] { filterByWords(all); }, [&] { filterByBuilder(all); },
                  [&] { sort(all); }, [&] { chooseFields(all, isDistinct, isOrdered); },
                  [&] { chooseOneOfEqualNames(all); }, [&] { showSingleRecord(all); },
                  [&] {
                      if (isWholeKnown)
                          showWholeTable(all, one.c[u"whole"_s]);
                  }});
    });
    std::printf("%s takes %d statements; left out: %s\n", engine.name, taken, qPrintable(leftOut.join(u' ')));
    EXPECT_GE(taken, 100);
}

// What is derived from a statement whose records can be deleted is one as well, unless the statement becomes
// a derived table: then the menu says that its records can't be deleted.
TEST_P(StatementsOnEngines, RecordsCanBeDeletedFromWhatIsFilteredAndSorted)
{
    int deleted = 0;
    forEachTaken([&](const TakenCase &one) {
        if (one.c[u"kind"_s] == u"closed"_s || one.all.rows.size() < 2)
            return;
        ASSERT_TRUE(hands->load(one.statement, {}));
        if (!canDelete())
            return;
        EXPECT_TRUE(engine.isWritable());
        WindowAnswers dialogs({[&](QDialog &dialog) {
            Hands::sort(dialog, {part<QComboBox>(dialog, "cmbFields").itemText(0)}, true);
        }});
        hands->click(u"Sort"_s);
        hands->choose(14, 1, 1); // the cell filter
        hands->messages.clear(); // some types have no such filter
        ASSERT_TRUE(canDelete()) << qUtf8Printable(hands->statement());
        const Answer kept = shown();
        const int before = recordsInTables();
        hands->messages.answerNext(QMessageBox::Yes);
        hands->choose(9, 1);
        EXPECT_EQ(hands->messages.shown().size(), 1u) << qUtf8Printable(hands->messages.texts().join(u'|'));
        hands->messages.clear();
        EXPECT_EQ(hands->rows(), static_cast<int>(kept.rows.size()) - 1);
        EXPECT_EQ(recordsInTables(), before - 1) << qUtf8Printable(hands->statement());
        ++deleted;
        fillTables();
    });
    std::printf("%s: records of %d statements deleted\n", engine.name, deleted);
    EXPECT_GE(deleted, engine.isWritable() ? 10 : 0);
    EXPECT_TRUE(engine.isWritable() || deleted == 0);
}

} // namespace

KOVA_ON_ENGINES_OF_STATEMENTS(StatementsOnEngines);
