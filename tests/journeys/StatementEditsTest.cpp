// Records of the statements of statements.cases are changed and added where they are shown, also through what
// was derived from a statement.
#include "EngineStatements.h"

#include "support/Dialogs.h"

#include <QtWidgets/QComboBox>

#include <algorithm>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr auto NewText = "kova";
constexpr auto NewNumber = "99";

class EngineStatementEdits : public EngineStatements
{
protected:
    int countOf(const QString &text)
    {
        int count = 0;
        for (const auto &[table, field] :
             {std::pair(u"Ord"_s, u"Name"_s), std::pair(u"Cust"_s, u"Name"_s),
              std::pair(u"Cust"_s, u"City"_s), std::pair(u"Item"_s, u"Item"_s),
              std::pair(u"客户"_s, u"名称"_s), std::pair(u"客户"_s, u"城市"_s),
              std::pair(u"Odd"_s, oddNames().at(1)), std::pair(u"Odd"_s, oddNames().at(7))})
            count +=
                database->ask(u"SELECT count(*) FROM %1 WHERE %2 = '%3'"_s.arg(table, field, text)).toInt();
        return count;
    }

    // Sorted and filtered, which derives another statement.
    void derive()
    {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            Hands::sort(dialog, {part<QComboBox>(dialog, "cmbFields").itemText(0)}, true);
        }});
        hands->click(u"Sort"_s);
        hands->choose(14, 1, 1); // the cell filter
        hands->messages.clear(); // some types have no such filter
    }

    static bool areDifferent(QStringList names) { return names.removeDuplicates() == 0; }

    void giveUp()
    {
        hands->messages.clear();
        hands->list->setFocus();
        QTest::keyClick(hands->list, Qt::Key_Escape);
        hands->click(u"AllRecord"_s);
        hands->messages.clear();
    }
};

TEST_P(EngineStatementEdits, AValueIsChangedInOneRecordAndShown)
{
    int changed = 0;
    forEachTaken([&](const TakenCase &one) {
        const StatementAnswer &all = one.all;
        if (all.rows.size() < 2)
            return;
        ASSERT_TRUE(hands->load(one.statement, {}));
        derive();
        hands->clickCell(1, 1);
        hands->click(u"SingleRecord"_s);
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            const QString &field = all.names.at(column);
            const QString before = hands->listed(field);
            const bool isText = std::ranges::any_of(before, [](QChar letter) { return letter.isLetter(); }) &&
                                isOnlyOne(all, column);
            if (!isText || !hands->writeListed(field, QString::fromLatin1(NewText)))
                continue;
            hands->click(u"AllRecord"_s);
            EXPECT_TRUE(hands->messages.shown().empty())
                << qUtf8Printable(hands->messages.texts().join(u'|')) << qUtf8Printable(hands->statement());
            EXPECT_EQ(countOf(QString::fromLatin1(NewText)), 1) << qUtf8Printable(hands->statement());
            EXPECT_EQ(hands->texts(field).first(), QString::fromLatin1(NewText));
            ++changed;
            fillTables();
            break;
        }
        hands->messages.clear();
        if (hands->isSingleRecordShown())
            hands->click(u"AllRecord"_s);
    });
    std::printf("%s: %d records changed\n", engine.name, changed);
    EXPECT_GE(changed, engine.isWritable() ? 20 : 0);
    EXPECT_TRUE(engine.isWritable() || changed == 0);
}

// A record that the database refuses, for the key of a second table, say, is not added at all.
TEST_P(EngineStatementEdits, ARecordIsAddedAndShownOrRefused)
{
    int added = 0;
    forEachTaken([&](const TakenCase &one) {
        const StatementAnswer &all = one.all;
        if (all.rows.empty())
            return;
        ASSERT_TRUE(hands->load(one.statement, {}));
        if (!canAdd())
            return;
        EXPECT_TRUE(engine.isWritable());
        const int before = recordsInTables();
        hands->choose(8, 1);
        ASSERT_TRUE(hands->isSingleRecordShown());
        bool isWritten = false;
        bool isText = false;
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            const QString text = all.rows.front().at(column);
            bool isNumber = false;
            text.toDouble(&isNumber);
            const QString value = QString::fromLatin1(isNumber ? NewNumber : NewText);
            if (isOnlyOne(all, column) && hands->writeListed(all.names.at(column), value)) {
                isWritten = true;
                isText = isText || !isNumber;
            }
        }
        EXPECT_TRUE(isWritten || !areDifferent(all.names)) << "nothing takes a value";
        hands->click(u"AllRecord"_s);
        const bool isSaved = isWritten && hands->messages.shown().empty();
        EXPECT_EQ(recordsInTables(), before + (isSaved ? 1 : 0)) << qUtf8Printable(hands->statement());
        if (isSaved) {
            EXPECT_EQ(hands->rows(), static_cast<int>(all.rows.size()) + 1);
            const QStringList last = shown().rows.back();
            EXPECT_TRUE(last.contains(QString::fromLatin1(isText ? NewText : NewNumber)))
                << qUtf8Printable(last.join(u'|'));
            ++added;
            fillTables();
        } else if (hands->isSingleRecordShown()) {
            giveUp();
        }
    });
    std::printf("%s: records added to %d statements\n", engine.name, added);
    EXPECT_GE(added, engine.isWritable() ? 15 : 0);
}

} // namespace

KOVA_ON_ENGINES_OF_STATEMENTS(EngineStatementEdits);
