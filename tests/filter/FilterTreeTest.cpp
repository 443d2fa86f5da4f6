// Rows with brackets and groups inside groups say the same.
#include "filter/tree/FilterTree.h"
#include "filter/tree/FilterOutline.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;
using Kind = FilterNode::Kind;

namespace {

// Letters, and Chinese characters after Z.
QChar nameOf(qsizetype row)
{
    return QChar(static_cast<char16_t>(row < 26 ? u'A' + row : u'一' + row));
}

qsizetype rowNamed(QChar name)
{
    return name.unicode() <= u'Z' ? name.unicode() - u'A' : name.unicode() - u'一';
}

// Rows A, B, C … with brackets and joins as written: "(A|B)&C", "!" before a bracket that negates.
QList<FilterSql::Term> rowsOf(const QString &form)
{
    QList<FilterSql::Term> rows;
    FilterSql::Term next;
    bool isNegated = false;
    for (const QChar c : form) {
        if (c == u'!') {
            isNegated = true;
        } else if (c == u'(') {
            next.negatedOpens |= (isNegated ? 1 : 0) << next.opens++;
            isNegated = false;
        } else if (c == u')') {
            ++rows.last().closes;
        } else if (c == u'|' || c == u'&') {
            rows.last().orNext = c == u'|';
        } else {
            rows.append(next);
            next = {};
        }
    }
    return rows;
}

QString form(const QList<FilterPlace> &places)
{
    QString text;
    for (qsizetype i = 0; i < places.size(); ++i) {
        const FilterSql::Term &term = places.at(i).term;
        for (int bracket = 0; bracket < term.opens; ++bracket)
            text += term.isNegated(bracket) ? u"!("_s : u"("_s;
        text += places.at(i).isComplement ? u"-"_s : QString();
        text += nameOf(places.at(i).row);
        text += QString(term.closes, u')');
        if (i + 1 < places.size())
            text += term.orNext ? u'|' : u'&';
    }
    return text;
}

// "&(A B)" for a group of the kind All, "|" for Any and "!" for None; "[…]" where it has no brackets.
QString form(const FilterNode &node)
{
    if (!node.isGroup())
        return (node.isComplement ? u"-"_s : QString()) + nameOf(node.row);
    QStringList parts;
    for (const FilterNode &part : node.parts)
        parts.append(form(part));
    const QChar kind = node.kind == Kind::All ? u'&' : node.kind == Kind::Any ? u'|' : u'!';
    return kind + (node.hasBrackets ? u"(%1)"_s : u"[%1]"_s).arg(parts.join(u' '));
}

std::string tree(const char *rows)
{
    const auto read = treeOf(rowsOf(QString::fromUtf8(rows)));
    return read ? form(*read).toStdString() : "none";
}

std::string outline(const FilterOutline &lines)
{
    QString text;
    for (const FilterOutline::Line &line : lines.lines()) {
        const QChar name = line.isGroup() ? (line.kind == Kind::All   ? u'&'
                                             : line.kind == Kind::Any ? u'|'
                                                                      : u'!')
                                          : nameOf(line.row);
        text += QString::number(line.level) + name + u' ';
    }
    return text.trimmed().toStdString();
}

FilterOutline outlineOf(const char *rows)
{
    return FilterOutline(*treeOf(rowsOf(QString::fromUtf8(rows))));
}

// Whether a record meets a tree, when `met` says which conditions it meets.
bool meets(const FilterNode &node, const std::function<bool(qsizetype)> &met)
{
    if (!node.isGroup())
        return met(node.row) != node.isComplement;
    const auto count = std::ranges::count_if(node.parts, [&](const FilterNode &p) { return meets(p, met); });
    const auto all = static_cast<std::ptrdiff_t>(node.parts.size());
    return node.kind == Kind::All ? count == all : node.kind == Kind::Any ? count > 0 : count == 0;
}

// A loop of its own over the flat form, as a database reads it: brackets first, then AND, then OR.
class Reading
{
public:
    Reading(QString form, std::function<bool(qsizetype)> met) : m_form(std::move(form)), m_met(std::move(met))
    {
    }
    bool any()
    {
        bool result = all();
        while (next(u'|'))
            result = all() || result;
        return result;
    }

private:
    bool all()
    {
        bool result = one();
        while (next(u'&'))
            result = one() && result;
        return result;
    }
    bool one()
    {
        const bool isNegated = next(u'!');
        if (!next(u'('))
            return m_met(rowNamed(m_form.at(m_at++)));
        const bool result = any();
        next(u')');
        return result != isNegated;
    }
    bool next(QChar c) { return m_at < m_form.size() && m_form.at(m_at) == c && (++m_at, true); }

    QString m_form;
    std::function<bool(qsizetype)> m_met;
    qsizetype m_at = 0;
};

QString randomForm(std::mt19937 &random, int depth, int &row)
{
    QString text;
    const auto parts = 1 + random() % 3;
    for (unsigned part = 0; part < parts; ++part) {
        if (part > 0)
            text += random() % 2 == 0 ? u'|' : u'&';
        if (depth > 0 && random() % 2 == 0)
            text += (random() % 3 == 0 ? u"!("_s : u"("_s) + randomForm(random, depth - 1, row) + u')';
        else
            text += nameOf(row++);
    }
    return text;
}

} // namespace

TEST(FilterTree, IsReadAsDatabasesReadRows)
{
    EXPECT_EQ(tree("A"), "&[A]");
    EXPECT_EQ(tree("A&B&C"), "&[A B C]");
    EXPECT_EQ(tree("A|B"), "|[A B]");
    EXPECT_EQ(tree("A|B&C"), "|[A &[B C]]");
    EXPECT_EQ(tree("(A|B)&C"), "&[|(A B) C]");
    EXPECT_EQ(tree("((A))&B"), "&[&(&(A)) B]");
    EXPECT_EQ(tree("!(A|B)&C"), "&[!(A B) C]");
    EXPECT_EQ(tree("!(A&B)"), "&[!(&[A B])]");
    EXPECT_EQ(tree("(!(A)|B)"), "&[|(!(A) B)]");
    EXPECT_EQ(tree("!((A|B)&C)"), "&[!(&[|(A B) C])]");
    EXPECT_EQ(tree("(A&B"), "none");
    EXPECT_EQ(tree("A)&(B"), "none");
    EXPECT_EQ(tree(""), "none");
}

TEST(FilterTree, BecomesTheSameRowsAgain)
{
    for (const char *rows : {"A", "A&B|C", "(A|B)&C", "((A))&B", "!(A|B)&C", "!(A&B)", "(!(A)|B)",
                             "!((A|B)&C)|D", "A|(B|C&D)", "(A&(B|!(C)))"})
        EXPECT_EQ(form(flatOf(*treeOf(rowsOf(QString::fromUtf8(rows))))).toStdString(), rows);
}

TEST(FilterTree, SaysWhereBracketsWouldShowHowItIsRead)
{
    const auto needed = [](const char *rows) {
        return needsBrackets(*treeOf(rowsOf(QString::fromUtf8(rows))));
    };
    EXPECT_TRUE(needed("A|B&C"));
    EXPECT_TRUE(needed("(A|B&C)&D"));
    EXPECT_FALSE(needed("A|(B&C)"));
    EXPECT_FALSE(needed("A|B"));
    EXPECT_FALSE(needed("!(A&B)"));
    EXPECT_EQ(form(flatOf(withBrackets(*treeOf(rowsOf(u"A&B|C&(D|E&F)"_s))))), u"(A&B)|(C&(D|(E&F)))"_s);
}

TEST(FilterTree, NegatedGroupsBecomeComplements)
{
    const auto pushed = [](const char *rows) {
        return form(flatOf(withoutNone(*treeOf(rowsOf(QString::fromUtf8(rows)))))).toStdString();
    };
    EXPECT_EQ(pushed("A&!(B|C)"), "A&(-B&-C)");
    EXPECT_EQ(pushed("!(A&B)"), "((-A|-B))");
    EXPECT_EQ(pushed("!(A|!(B|C))"), "(-A&(B|C))");
    EXPECT_EQ(pushed("A|B&C"), "A|B&C");
}

TEST(FilterTree, RowsCanBeLeftOut)
{
    const auto without = [](const char *rows, qsizetype gone) {
        const auto left =
            withRows(*treeOf(rowsOf(QString::fromUtf8(rows))), [gone](qsizetype row) { return row != gone; });
        return left ? form(flatOf(*left)).toStdString() : "none";
    };
    EXPECT_EQ(without("(A|B)&C", 1), "(A)&C");
    EXPECT_EQ(without("A|(B)|C", 1), "A|C");
    EXPECT_EQ(without("A", 0), "none");
}

// Ten thousand random conditions, each over random records.
TEST(FilterTree, AllFormsMeanTheSame)
{
    std::mt19937 random(20240229);
    for (int round = 0; round < 10000; ++round) {
        int rows = 0;
        const QString written = randomForm(random, 3, rows);
        const auto read = treeOf(rowsOf(written));
        ASSERT_TRUE(read) << qUtf8Printable(written);
        ASSERT_EQ(form(flatOf(*read)).toStdString(), written.toStdString());
        const FilterNode lines = FilterOutline(*read).tree();
        const auto again = treeOf(rowsOf(form(flatOf(lines))));
        const FilterNode pushed = withoutNone(*read);
        const auto flatPushed = flatOf(pushed);
        for (int record = 0; record < 8; ++record) {
            std::map<qsizetype, bool> met;
            for (int row = 0; row < rows; ++row)
                met[row] = random() % 2 == 0;
            const auto isMet = [&](qsizetype row) { return met.at(row); };
            const bool wanted = Reading(written, isMet).any();
            ASSERT_EQ(meets(*read, isMet), wanted) << qUtf8Printable(written);
            ASSERT_EQ(meets(lines, isMet), wanted) << qUtf8Printable(written);
            ASSERT_EQ(meets(*again, isMet), wanted) << qUtf8Printable(written);
            ASSERT_EQ(meets(pushed, isMet), wanted) << qUtf8Printable(written);
            QList<FilterPlace> plain = flatPushed;
            for (FilterPlace &place : plain)
                place.isComplement = false;
            const auto isPushedMet = [&](qsizetype row) {
                const auto place = std::ranges::find(flatPushed, row, &FilterPlace::row);
                return met.at(row) != place->isComplement;
            };
            ASSERT_EQ(Reading(form(plain), isPushedMet).any(), wanted) << qUtf8Printable(written);
        }
    }
}

TEST(FilterOutline, HasALineForEachGroupAndCondition)
{
    EXPECT_EQ(outline(outlineOf("A|(B&!(C))")), "0| 1A 1& 2B 2! 3C");
    EXPECT_EQ(form(outlineOf("A|B&C").tree()), u"|[A &(B C)]"_s);
    FilterOutline lines;
    lines.add(0, 0);
    EXPECT_EQ(outline(lines), "0& 1A");
}

TEST(FilterOutline, MovesStepOverNeighboursAndInAndOutOfGroups)
{
    FilterOutline lines = outlineOf("A&(B|C)&D");
    EXPECT_EQ(outline(lines), "0& 1A 1| 2B 2C 1D");
    EXPECT_EQ(lines.moveDown(1), 2); // A into the group
    EXPECT_EQ(outline(lines), "0& 1| 2A 2B 2C 1D");
    EXPECT_EQ(lines.moveDown(2), 3);
    EXPECT_EQ(lines.moveDown(3), 4);
    EXPECT_EQ(outline(lines), "0& 1| 2B 2C 2A 1D");
    EXPECT_EQ(lines.moveDown(4), 4); // and out of it at its end
    EXPECT_EQ(outline(lines), "0& 1| 2B 2C 1A 1D");
    EXPECT_EQ(lines.moveUp(4), 4);
    EXPECT_EQ(lines.moveUp(4), 3);
    EXPECT_EQ(lines.moveUp(3), 2);
    EXPECT_EQ(lines.moveUp(2), 1); // out at its begin
    EXPECT_EQ(outline(lines), "0& 1A 1| 2B 2C 1D");
    EXPECT_EQ(lines.moveUp(1), 1); // no further
    EXPECT_EQ(lines.moveDown(5), 5);
    EXPECT_EQ(lines.moveDown(2), 3); // a group with its parts
    EXPECT_EQ(outline(lines), "0& 1A 1D 1| 2B 2C");
    EXPECT_EQ(lines.moveUp(0), 0);
    EXPECT_EQ(lines.moveDown(0), 0);
}

TEST(FilterOutline, AGroupThatLosesItsLastPartGoes)
{
    FilterOutline lines = outlineOf("(A)&B");
    EXPECT_EQ(outline(lines), "0& 1& 2A 1B");
    EXPECT_EQ(lines.moveDown(2), 1);
    EXPECT_EQ(outline(lines), "0& 1A 1B");
    lines = outlineOf("A&((B))&C");
    lines.removeRow(1);
    EXPECT_EQ(outline(lines), "0& 1A 1B"); // the rest is numbered again
}

TEST(FilterOutline, GroupsAreMadeAndDissolved)
{
    FilterOutline lines = outlineOf("A&B");
    lines.enclose(2);
    EXPECT_EQ(outline(lines), "0& 1A 1| 2B");
    lines.enclose(2);
    EXPECT_EQ(outline(lines), "0& 1A 1| 2| 3B");
    lines.dissolve(2);
    EXPECT_EQ(outline(lines), "0& 1A 1| 2B");
    lines.enclose(0);
    lines.dissolve(0);
    EXPECT_EQ(outline(lines), "0& 1A 1| 2B");
    for (int deeper = 0; deeper < 50; ++deeper)
        lines.enclose(lines.lineOf(1));
    EXPECT_EQ(lines.lines().last().level, FilterOutline::deepest);
}

TEST(FilterOutline, LinesAreDroppedWhereTheyCanBe)
{
    FilterOutline lines = outlineOf("A&(B|C)&D");
    EXPECT_EQ(lines.moveTo(5, 3, 2), 3); // D to the begin of the group
    EXPECT_EQ(outline(lines), "0& 1A 1| 2D 2B 2C");
    EXPECT_EQ(lines.moveTo(2, 4, 2), 2) << "not into itself";
    EXPECT_EQ(lines.moveTo(1, 6, 9), 5); // no deeper than where it is put
    EXPECT_EQ(outline(lines), "0& 1| 2D 2B 2C 2A");
    EXPECT_EQ(lines.moveTo(3, 0, 0), 3) << "not above the outermost group";
}

// Whatever is moved, the lines stay a tree of the same conditions.
TEST(FilterOutline, RandomMovesKeepEveryCondition)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        int rows = 0;
        const QString written = randomForm(random, 3, rows);
        FilterOutline lines(*treeOf(rowsOf(written)));
        for (int move = 0; move < 40; ++move) {
            const auto count = static_cast<unsigned>(lines.lines().size());
            const auto line = static_cast<qsizetype>(random() % count);
            const auto row = lines.lines().at(line).row;
            qsizetype now = line;
            switch (random() % 5) {
            case 0:
                now = lines.moveUp(line);
                break;
            case 1:
                now = lines.moveDown(line);
                break;
            case 2:
                now = lines.moveTo(line, static_cast<qsizetype>(random() % (count + 2)),
                                   static_cast<int>(random() % 6));
                break;
            case 3:
                lines.enclose(line);
                now = row >= 0 ? lines.lineOf(row) : 0;
                break;
            default:
                lines.dissolve(line);
                now = row >= 0 ? lines.lineOf(row) : 0;
            }
            if (row >= 0) {
                ASSERT_EQ(now, lines.lineOf(row)) << outline(lines);
            }
            const auto places = flatOf(lines.tree());
            ASSERT_EQ(places.size(), rows) << outline(lines);
            ASSERT_EQ(outline(FilterOutline(lines.tree())), outline(lines));
        }
        const QList<qsizetype> before = lines.renumber();
        ASSERT_EQ(before.size(), rows);
        ASSERT_EQ(std::set<qsizetype>(before.begin(), before.end()).size(), static_cast<std::size_t>(rows));
    }
}
