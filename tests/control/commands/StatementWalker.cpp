#include "StatementWalker.h"

#include "support/Dialogs.h"

#include <QtCore/QSet>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

// As a grid shows them: SQLite's ODBC driver writes an expression's equal numbers as 9 and as 9.0.
bool isSame(const QString &a, const QString &b)
{
    bool isNumber = false;
    bool isOtherNumber = false;
    const double value = a.toDouble(&isNumber);
    return a == b || (value == b.toDouble(&isOtherNumber) && isNumber && isOtherNumber);
}

QStringList at(const QStringList &row, const QList<qsizetype> &fields)
{
    QStringList some;
    for (const qsizetype field : fields)
        some.append(row.at(field));
    return some;
}

} // namespace

QString StatementWalker::loadedBy(const Case &one)
{
    return one[u"statement"_s] + (one.Has(u"sort"_s) ? u" order by "_s + one[u"sort"_s] : QString());
}

void StatementWalker::begin(const Case &one, const QStringList &names, const Rows &rows,
                            const std::optional<Rows> &whole)
{
    const QString statement = one[u"statement"_s];
    const bool isAlone = QSet<QString>(names.begin(), names.end()).size() == names.size();
    const bool isDistinct = statement.contains(u"distinct"_s, Qt::CaseInsensitive);
    m_taken.clear();
    m_names = names;
    m_whole = whole;
    m_hasPartStatement = one.Has(u"part"_s);
    m_isDistinct = isDistinct && m_hasPartStatement;
    m_hasFieldChoice = isAlone && (!isDistinct || (m_isDistinct && !statement.contains(u" top "_s)));
    m_isOrdered = m_hasPartStatement && loadedBy(one).contains(u"order by"_s);
    m_lacksPart = m_hasPartStatement && !one.Has(u"shows"_s);
    Shown first;
    first.rows = rows;
    for (const QString &place : one.List(u"shows"_s))
        first.part.append(place.toInt() - 1);
    // The load of a DISTINCT hides columns without opening another statement.
    first.isAll = first.part.isEmpty() || m_isDistinct || pick(2) == 0;
    m_shown = {first};
    m_hands.grid.PutShowModel(first.isAll ? KOVAVSFDataGrid::ModelAll : KOVAVSFDataGrid::ModelPart);
    m_hands.grid.PutSQLSort(one[u"sort"_s]);
    ASSERT_TRUE(m_hands.load(statement, one[u"part"_s]))
        << qUtf8Printable(m_hands.messages.texts().join(u'|'));
    compare();
}

void StatementWalker::takeAny()
{
    // Filters are the most usual step; the whole table would soon undo them all.
    const std::size_t picked = pick(9);
    if (picked < 2)
        take(Step::CellFilter);
    else if (picked == 7)
        take(pick(6) == 0 ? Step::Whole : Step::Origin);
    else
        take(std::array{Step::WordFilter, Step::Sort, Step::Fields, Step::All, Step::Part, Step::Back,
                        Step::Back}
                 .at(picked - 2));
}

void StatementWalker::take(Step step)
{
    const auto run = [&]() -> const char * {
        switch (step) {
        case Step::CellFilter:
            return filterByCell();
        case Step::WordFilter:
            return filterByWord();
        case Step::Sort:
            return sortRows();
        case Step::Fields:
            return chooseFields();
        case Step::All:
            return showAll();
        case Step::Part:
            return showPart();
        case Step::Whole:
            return showWhole();
        case Step::Origin:
            return toOrigin();
        case Step::Back:
            break;
        }
        return back();
    };
    m_taken.append(QLatin1StringView(run()) + u": "_s + m_hands.statement());
    compare();
    ASSERT_FALSE(testing::Test::HasFailure()) << "after\n" << qUtf8Printable(m_taken.join(u'\n'));
}

std::size_t StatementWalker::pick(std::size_t count)
{
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
}

// In the order of the grid: a host's part statement can have another one.
QList<qsizetype> StatementWalker::shownFields()
{
    QList<qsizetype> fields;
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        if (top().isAll || top().part.contains(i))
            fields.append(i);
    }
    if (m_hasPartStatement) {
        const QStringList columns = m_hands.columns();
        std::ranges::stable_sort(fields, {},
                                 [&](qsizetype field) { return columns.indexOf(m_names.at(field)); });
    }
    return fields;
}

StatementWalker::Rows StatementWalker::shownRows() const
{
    Rows rows;
    const QAbstractItemModel &model = *m_hands.table->model();
    for (int row = 0; row < m_hands.rows(); ++row) {
        QStringList texts;
        for (int col = 0; col < model.columnCount(); ++col) {
            if (!m_hands.table->isColumnHidden(col))
                texts.append(model.index(row, col).data().toString());
        }
        rows.push_back(texts);
    }
    return rows;
}

void StatementWalker::compare()
{
    const QList<qsizetype> fields = shownFields();
    Rows expected;
    for (const QStringList &row : top().rows) {
        const QStringList part = at(row, fields);
        if (!m_isDistinct || std::ranges::find(expected, part) == expected.end())
            expected.push_back(part);
    }
    const Rows actual = shownRows();
    Rows sortedExpected = expected;
    Rows sortedActual = actual;
    std::ranges::sort(sortedExpected);
    std::ranges::sort(sortedActual);
    const QString statement = m_hands.statement();
    EXPECT_EQ(m_hands.columns(), at(m_names, fields)) << qUtf8Printable(statement);
    EXPECT_TRUE(sortedActual == sortedExpected) << qUtf8Printable(statement) << '\n'
                                                << actual.size() << " rows instead of " << expected.size();
    compareOrder(actual, expected);
    EXPECT_EQ(m_hands.isPressed(u"All"_s), top().isAll);
    if (!actual.empty()) {
        const QAction &part = *m_hands.button(u"Part"_s);
        EXPECT_EQ(part.isEnabled(), !m_lacksPart || !top().part.isEmpty())
            << qUtf8Printable(part.toolTip() + u'\n' + statement);
    }
    EXPECT_TRUE(m_hands.messages.shown().empty()) << qUtf8Printable(m_hands.messages.texts().join(u'|'));
    m_hands.messages.clear();
}

// A sort that the statement has, and one by numbers that are shown.
void StatementWalker::compareOrder(const Rows &actual, const Rows &expected)
{
    if (m_isOrdered && top().isAsLoaded && (top().isAll || !m_isDistinct)) {
        EXPECT_TRUE(actual == expected) << "not in order: " << qUtf8Printable(m_hands.statement());
    }
    const qsizetype column = shownFields().indexOf(top().sortedBy);
    if (column < 0)
        return;
    std::vector<double> numbers;
    for (const QStringList &row : actual) {
        bool isNumber = false;
        const double number = row.at(column).toDouble(&isNumber);
        if (isNumber)
            numbers.push_back(top().isDescending ? -number : number);
    }
    EXPECT_TRUE(std::ranges::is_sorted(numbers)) << "not sorted: " << qUtf8Printable(m_hands.statement());
}

const char *StatementWalker::filterByCell()
{
    if (m_hands.rows() == 0)
        return "nothing";
    const QList<qsizetype> fields = shownFields();
    const auto place = static_cast<qsizetype>(pick(static_cast<std::size_t>(fields.size())));
    int col = -1; // of the grid
    for (qsizetype seen = -1; seen < place;)
        seen += m_hands.table->isColumnHidden(++col) ? 0 : 1;
    const int row = static_cast<int>(pick(static_cast<std::size_t>(m_hands.rows())));
    const QString text = m_hands.table->model()->index(row, col).data().toString();
    m_hands.choose(14, row + 1, col + 1);
    if (!m_hands.messages.shown().empty()) { // a type that has no such filter
        m_hands.messages.clear();
        return "refused cell filter";
    }
    push();
    std::erase_if(top().rows,
                  [&](const QStringList &other) { return !isSame(other.at(fields.at(place)), text); });
    return "cell filter";
}

const char *StatementWalker::filterByWord()
{
    if (m_hands.rows() == 0)
        return "nothing";
    const QString word = u"an"_s;
    WindowAnswers dialogs({[&](QDialog &dialog) { Hands::find(dialog, word); }});
    m_hands.click(u"QuickFilter"_s);
    push();
    // In all fields, shown or not.
    std::erase_if(top().rows, [&](const QStringList &row) { return row.filter(word, m_letters).isEmpty(); });
    return "quick filter";
}

const char *StatementWalker::sortRows()
{
    QString field;
    bool isDescending = false;
    WindowAnswers dialogs({[&](QDialog &dialog) {
        const auto &fields = part<QComboBox>(dialog, "cmbFields");
        const auto count = static_cast<std::size_t>(fields.count());
        const bool isEmptied = pick(4) == 0;
        const QString picked = fields.itemText(static_cast<int>(pick(count)));
        isDescending = pick(2) == 0;
        field = isEmptied ? QString() : picked;
        Hands::sort(dialog, isEmptied ? QStringList() : QStringList(field), isDescending);
    }});
    m_hands.click(u"Sort"_s);
    push();
    top().isAsLoaded = false;
    top().sortedBy = m_names.count(field) == 1 ? static_cast<int>(m_names.indexOf(field)) : -1;
    top().isDescending = isDescending;
    return "sort";
}

const char *StatementWalker::chooseFields()
{
    if (!m_hasFieldChoice)
        return "nothing";
    QStringList chosen;
    QList<qsizetype> places;
    for (qsizetype i = 0; i < m_names.size(); ++i) {
        if (pick(2) == 0)
            places.append(i);
    }
    if (places.isEmpty())
        places.append(0);
    chosen = at(m_names, places);
    WindowAnswers dialogs({[&](QDialog &dialog) { Hands::tick(dialog, chosen); }});
    m_hands.click(u"SelField"_s);
    push();
    top().part = places;
    top().isAll = false;
    return "field choice";
}

const char *StatementWalker::showAll()
{
    if (m_hands.rows() == 0)
        return "nothing";
    m_hands.click(u"All"_s);
    push();
    top().isAll = true;
    return "all";
}

const char *StatementWalker::showPart()
{
    if (m_hands.rows() == 0 || (m_lacksPart && top().part.isEmpty()))
        return "nothing";
    m_hands.click(u"Part"_s);
    if (top().part.isEmpty())
        return "part without a choice";
    push();
    top().isAll = false;
    return "part";
}

const char *StatementWalker::showWhole()
{
    if (!m_whole)
        return "nothing";
    m_hands.click(u"ToFullTable"_s);
    push();
    top().rows = *m_whole;
    top().isAsLoaded = false;
    top().sortedBy = -1;
    return "whole table";
}

const char *StatementWalker::toOrigin()
{
    m_hands.click(u"ToOrigin"_s);
    m_shown.resize(1);
    return "origin";
}

const char *StatementWalker::back()
{
    m_hands.click(u"ToPreview"_s);
    if (m_shown.size() > 1)
        m_shown.pop_back();
    return "back";
}

} // namespace KovaTest
