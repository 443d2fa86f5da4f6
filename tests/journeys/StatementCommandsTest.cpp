// Commands on the statements of statements.cases: settings before a load, all kinds of conditions, pages and
// views. The rows must be those of a loop over the statement's own rows.
#include "EngineStatements.h"

#include "support/Dialogs.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>

#include <algorithm>
#include <functional>
#include <map>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Row = QStringList;

// A condition as a user builds it, and as a loop sees it.
struct BuiltCase
{
    QString op;
    QString value;
    QString last; // of two values
    std::function<bool(const QString &)> holds;
};

StatementAnswer kept(const StatementAnswer &all, const std::function<bool(const Row &)> &holds)
{
    StatementAnswer some = all;
    std::erase_if(some.rows, [&](const Row &row) { return !holds(row); });
    return some;
}

class EngineStatementCommands : public EngineStatements
{
protected:
    void find(const StatementAnswer &all, const QString &words, const QString &field,
              const std::function<bool(const Row &)> &holds)
    {
        WindowAnswers dialogs({[&](QDialog &dialog) { Hands::find(dialog, words, field); }});
        hands->click(u"QuickFilter"_s);
        expectShown(kept(all, holds), qUtf8Printable(u"the quick filter for "_s + words + u' ' + field));
        back(all);
    }

    void findManyWordsAndOneField(const StatementAnswer &all)
    {
        const auto has = [this](const QString &text, const QString &word) {
            return text.contains(word, letters());
        };
        find(all, u"an o"_s, {}, [&](const Row &row) {
            const auto isIn = [&](const QString &word) {
                return std::ranges::any_of(row, [&](const QString &text) { return has(text, word); });
            };
            return isIn(u"an"_s) && isIn(u"o"_s);
        });
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            const QString text = all.rows.empty() ? QString() : all.rows.back().at(column);
            const bool isWord =
                !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c.isLetter(); });
            if (!isWord || !isOnlyOne(all, column) || text == u"True" || text == u"False")
                continue;
            find(all, text, all.names.at(column), [&](const Row &row) { return has(row.at(column), text); });
            break;
        }
    }

    // The host's own condition; one with an OR must not let in what the statement's own keeps out.
    void filterByHost(const StatementAnswer &all)
    {
        for (const auto &[condition, isMet] : {std::pair(u"1=0"_s, false), std::pair(u"0=1 OR 1=1"_s, true),
                                               std::pair(u"1=0 OR 0=1"_s, false)}) {
            const auto connected = QObject::connect(&hands->grid, &KOVAVSFDataGrid::QurryFilter, &hands->grid,
                                                    [&](qint32 &cancel, const QString &) {
                                                        hands->grid.PutPassQurryFilter(condition);
                                                        cancel = 0;
                                                    });
            hands->click(u"Filter"_s);
            QObject::disconnect(connected);
            expectShown(kept(all, [&](const Row &) { return isMet; }), qUtf8Printable(condition));
            back(all);
        }
    }

    // As a user types it: a value with a quotation mark in quotation marks.
    static QString listOf(const QString &text, const QString &other)
    {
        const auto typed = [](QString value) {
            return value.contains(u'"') ? u'"' + value.replace(u'"', u"\"\""_s) + u'"' : value;
        };
        return typed(text) + u',' + typed(other);
    }

    static std::vector<BuiltCase> casesOfTexts(const QString &text, const QString &other,
                                               Qt::CaseSensitivity letters)
    {
        const QString begin = text.left(2);
        const QString end = text.right(2);
        const auto isEither = [=](const QString &cell) { return cell == text || cell == other; };
        return {
            {u"不等于"_s, text, {}, [=](const QString &cell) { return cell != text; }},
            {u"包含"_s, end, {}, [=](const QString &cell) { return cell.contains(end, letters); }},
            {u"开头是"_s, begin, {}, [=](const QString &cell) { return cell.startsWith(begin, letters); }},
            {u"结尾是"_s, end, {}, [=](const QString &cell) { return cell.endsWith(end, letters); }},
            {u"不包含"_s, end, {}, [=](const QString &cell) { return !cell.contains(end, letters); }},
            {u"在列表中"_s, listOf(text, other), {}, isEither},
            {u"不在列表中"_s, listOf(text, other), {}, std::not_fn(isEither)},
            {u"为空"_s, {}, {}, [](const QString &cell) { return cell.isEmpty(); }},
            {u"不为空"_s, {}, {}, [](const QString &cell) { return !cell.isEmpty(); }}};
    }

    static std::vector<BuiltCase> casesOfNumbers(const QString &text, const QString &other)
    {
        const double number = text.toDouble();
        const double least = std::min(number, other.toDouble());
        const double most = std::max(number, other.toDouble());
        const QString first = number <= other.toDouble() ? text : other;
        const QString last = first == text ? other : text;
        const auto isBetween = [=](const QString &cell) {
            return !cell.isEmpty() && cell.toDouble() >= least && cell.toDouble() <= most;
        };
        const auto isEither = [=](const QString &cell) { return cell == text || cell == other; };
        const auto compares = [=](auto comparison) {
            return
                [=](const QString &cell) { return !cell.isEmpty() && comparison(cell.toDouble(), number); };
        };
        return {{u"不等于"_s, text, {}, [=](const QString &cell) { return cell != text; }},
                {u"大于"_s, text, {}, compares(std::greater<>())},
                {u"小于"_s, text, {}, compares(std::less<>())},
                {u"大于或等于"_s, text, {}, compares(std::greater_equal<>())},
                {u"小于或等于"_s, text, {}, compares(std::less_equal<>())},
                {u"介于"_s, first, last, isBetween},
                {u"不介于"_s, first, last, std::not_fn(isBetween)},
                {u"在列表中"_s, listOf(text, other), {}, isEither},
                {u"不在列表中"_s, listOf(text, other), {}, std::not_fn(isEither)},
                {u"为空"_s, {}, {}, [](const QString &cell) { return cell.isEmpty(); }},
                {u"不为空"_s, {}, {}, [](const QString &cell) { return !cell.isEmpty(); }}};
    }

    // Whether the field that the builder's first row shows is compared as a number; nothing for other types.
    static std::optional<bool> isNumber(QDialog &dialog)
    {
        const auto &operators = part<QComboBox>(dialog, "cmbOperator1");
        if (operators.findText(u"包含"_s) >= 0)
            return false;
        return operators.findText(u"大于"_s) >= 0 ? std::optional(true) : std::nullopt;
    }

    static void fill(QDialog &dialog, int row, const QString &field, const BuiltCase &built)
    {
        const auto name = [row](const char *part) { return QByteArray(part) + QByteArray::number(row); };
        part<QComboBox>(dialog, name("cmbField").constData()).setCurrentText(field);
        part<QComboBox>(dialog, name("cmbOperator").constData()).setCurrentText(built.op);
        const std::pair<QByteArray, QString> values[] = {{name("txtValue"), built.value},
                                                         {name("txtValue") + 'b', built.last}};
        for (const auto &[box, value] : values) {
            if (value.isEmpty())
                continue;
            part<QLineEdit>(dialog, box.constData()).clear();
            compose(part<QLineEdit>(dialog, box.constData()), value);
        }
    }

    // Texts of a column that can be typed; none for a column that no condition names alone.
    static QStringList typed(const StatementAnswer &all, qsizetype column)
    {
        QStringList texts;
        for (const Row &row : all.rows) {
            const QString &text = row.at(column);
            if (isOnlyOne(all, column) && !text.isEmpty() && text == text.trimmed() && text != u"True" &&
                text != u"False" && !text.contains(u'\''))
                texts.append(text);
        }
        return texts;
    }

    // One operator for each column, another one each time.
    void filterByOperators(const StatementAnswer &all)
    {
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            const QStringList texts = typed(all, column);
            if (texts.isEmpty())
                continue;
            BuiltCase built;
            WindowAnswers dialogs({[&](QDialog &dialog) {
                part<QComboBox>(dialog, "cmbField1").setCurrentText(all.names.at(column));
                const auto number = isNumber(dialog);
                if (!number)
                    return dialog.reject();
                const auto builtCases = *number ? casesOfNumbers(texts.first(), texts.last())
                                                : casesOfTexts(texts.first(), texts.last(), letters());
                std::size_t &turn = *number ? numberTurn : textTurn;
                built = builtCases.at(turn++ % builtCases.size());
                ++used[built.op];
                fill(dialog, 1, all.names.at(column), built);
                press(dialog, "cmd_Filter");
            }});
            hands->click(u"Filter"_s);
            if (!built.holds)
                continue;
            expectShown(kept(all, [&](const Row &row) { return built.holds(row.at(column)); }),
                        qUtf8Printable(all.names.at(column) + u' ' + built.op + u' ' + built.value));
            back(all);
        }
    }

    // Two columns, each with a text in it.
    struct TwoColumns
    {
        qsizetype first;
        QString text;
        qsizetype second;
        QString other;
    };
    static std::optional<TwoColumns> twoColumns(const StatementAnswer &all)
    {
        std::vector<std::pair<qsizetype, QString>> found;
        for (qsizetype column = 0; column < all.names.size(); ++column) {
            if (const QStringList texts = typed(all, column); !texts.isEmpty())
                found.emplace_back(column, found.empty() ? texts.first() : texts.last());
        }
        if (found.size() < 2)
            return std::nullopt;
        return TwoColumns{found.front().first, found.front().second, found.back().first, found.back().second};
    }
    static BuiltCase equal(const QString &text) { return {u"等于"_s, text, {}, {}}; }

    void filterByTwoRows(const StatementAnswer &all)
    {
        const auto two = twoColumns(all);
        if (!two)
            return;
        WindowAnswers dialogs({[&](QDialog &dialog) {
            fill(dialog, 1, all.names.at(two->first), equal(two->text));
            press(dialog, "cmdAddRow");
            part<QComboBox>(dialog, "cmbJoin1").setCurrentText(u"或者"_s);
            fill(dialog, 2, all.names.at(two->second), equal(two->other));
            press(dialog, "cmd_Filter");
        }});
        hands->click(u"Filter"_s);
        expectShown(kept(all,
                         [&](const Row &row) {
                             return row.at(two->first) == two->text || row.at(two->second) == two->other;
                         }),
                    "two rows with OR");
        back(all);
    }

    // A second condition on what the first one has left.
    void filterWhatIsLeft(const StatementAnswer &all)
    {
        const auto two = twoColumns(all);
        if (!two)
            return;
        WindowAnswers dialogs({[&](QDialog &dialog) {
                                   fill(dialog, 1, all.names.at(two->first), equal(two->text));
                                   press(dialog, "cmd_Filter");
                               },
                               [&](QDialog &dialog) {
                                   fill(dialog, 1, all.names.at(two->second), equal(two->other));
                                   press(dialog, "cmd_Filter");
                               }});
        hands->click(u"FromResult"_s);
        hands->click(u"Filter"_s);
        const StatementAnswer once = sameText(all, two->first, two->text);
        expectShown(once, "the first condition");
        hands->click(u"Filter"_s);
        expectShown(sameText(once, two->second, two->other), "a condition on the result");
        back(once);
        hands->click(u"FromResult"_s);
        hands->click(u"ToOrigin"_s);
        expectShown(all, "ToOrigin");
    }

    // What changes neither rows nor columns.
    void turnPagesAndCompress(const StatementAnswer &all)
    {
        for (const QString &key : {u"Last"_s, u"First"_s, u"Next"_s, u"Previous"_s, u"CompressView"_s}) {
            hands->click(key);
            expectShown(all, qUtf8Printable(key));
        }
    }

    void showFullScreen(const StatementAnswer &all)
    {
        if (all.rows.empty())
            return;
        StatementAnswer seen;
        WindowAnswers dialogs({[&](QDialog &viewer) {
            // The viewer has the rows of a whole page, whatever is in them.
            seen = shownBy(part<QTableView>(viewer, "vsfgShowData"), static_cast<int>(all.rows.size()) + 1);
            QTest::keyClick(&viewer, Qt::Key_Escape);
        }});
        hands->click(u"FullScreen"_s);
        EXPECT_EQ(seen.names, all.names);
        std::erase_if(seen.rows, [](const Row &row) { return row.join(QString()).isEmpty(); });
        auto rows = shown().rows;
        std::erase_if(rows, [](const Row &row) { return row.join(QString()).isEmpty(); });
        EXPECT_TRUE(seen.rows == rows) << qUtf8Printable(hands->statement());
        expectShown(all, "FullScreen");
    }

    // All fields as part fields, as SQLShow sets them, and a sort of the host's.
    void loadSorted(const QString &statement, const StatementAnswer &all)
    {
        hands->grid.PutSQLShow(statement);
        hands->messages.clear(); // some lists can't be split by their words
        hands->grid.PutSQLSort(u"1 DESC"_s);
        ASSERT_TRUE(hands->grid.IsLoadData()) << qUtf8Printable(hands->messages.texts().join(u'|'));
        expectShown(all, "a sorted load");
        QStringList seen;
        const bool isSortedAlready = statement.contains(u"order by"_s, Qt::CaseInsensitive);
        for (const Row &row : isSortedAlready ? std::vector<Row>() : shown().rows) {
            if (seen.isEmpty() || seen.last() != row.first()) {
                EXPECT_FALSE(seen.contains(row.first()))
                    << "not sorted: " << qUtf8Printable(hands->statement());
                seen.append(row.first());
            }
        }
        hands->click(u"Part"_s);
        expectShown(all, "Part of all fields");
        hands->click(u"All"_s);
        expectShown(all, "All");
        hands->click(u"ToOrigin"_s);
        expectShown(all, "ToOrigin");
        hands->grid.PutSQLSort({});
    }

    // Numbers and texts take turns of their own, so that each operator is used whatever their order.
    std::size_t numberTurn = 0;
    std::size_t textTurn = 0;
    std::map<QString, int> used; // operators
};

TEST_P(EngineStatementCommands, ShowTheRowsThatALoopTakes)
{
    const int taken = forEachTaken([&](const TakenCase &one) {
        const StatementAnswer &all = one.all;
        loadSorted(one.statement, all);
        ASSERT_TRUE(hands->load(one.statement, {})) << qUtf8Printable(hands->messages.texts().join(u'|'));
        runShare(one, {[&] { findManyWordsAndOneField(all); }, [&] { filterByHost(all); },
                       [&] { filterByOperators(all); }, [&] { filterByTwoRows(all); },
                       [&] { filterWhatIsLeft(all); }, [&] { turnPagesAndCompress(all); },
                       [&] { showFullScreen(all); }});
    });
    EXPECT_GE(taken, 100);
    EXPECT_EQ(used.size(), 15u) << "operators";
}

} // namespace

KOVA_ON_ENGINES_OF_STATEMENTS(EngineStatementCommands);
