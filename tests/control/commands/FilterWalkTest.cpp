// Random walks of a user who filters by cells, headings, the host's conditions and the builder, and changes
// rows that the builder began with: the records are always those that a plain loop finds. KOVA_FILTER_STEPS
// asks for more steps.
#include "ColumnValuesFixture.h"

#include <QtWidgets/QComboBox>

#include <algorithm>
#include <random>
#include <set>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Record
{
    std::optional<QString> city;
    std::optional<int> count;
};

using Meaning = std::function<bool(const Record &, int id)>;

class FilterWalk : public ColumnValues
{
protected:
    struct Part
    {
        Meaning means;
        QString heading = {}; // whose list made it
    };

    void fillTable()
    {
        const QStringList cities{u"大连"_s,   u"北京"_s, u"杭州"_s,  u"a  b"_s,
                                 u"O'Neil"_s, u"50%"_s,  u"茶、茶"_s};
        QString script = u"CREATE TABLE 走 (ID INTEGER PRIMARY KEY, 城市 VARCHAR(20), 数量 INTEGER);"_s;
        for (int id = 1; id <= 90; ++id) {
            Record record;
            if (below(9) > 0)
                record.city = cities.at(below(static_cast<int>(cities.size())));
            if (below(9) > 0)
                record.count = below(9);
            script += u"INSERT INTO 走 VALUES (%1, %2, %3);"_s.arg(id).arg(
                record.city ? u'\'' + record.city->split(u'\'').join(u"''"_s) + u'\'' : u"NULL"_s,
                record.count ? QString::number(*record.count) : u"NULL"_s);
            all.push_back(record);
        }
        database.run(script);
    }
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    static Meaning isCity(const QString &city)
    {
        return [city](const Record &record, int) { return record.city == city; };
    }
    // What a row of the builder says.
    static Meaning meaningOf(QDialog &dialog, int row)
    {
        const auto named = [row](const char *name) { return name + QByteArray::number(row); };
        const QString field = part<QComboBox>(dialog, named("cmbField")).currentText();
        const QString op = part<QComboBox>(dialog, named("cmbOperator")).currentText();
        const QString value = part<QLineEdit>(dialog, named("txtValue")).text();
        const bool withNull = part<QCheckBox>(dialog, named("chkWithNull")).isChecked();
        return [=](const Record &record, int id) {
            std::optional<QString> text = record.city;
            if (field == u"ID"_s)
                text = QString::number(id);
            else if (field == u"数量"_s)
                text = record.count ? std::optional(QString::number(*record.count)) : std::nullopt;
            if (!text)
                return withNull && op.startsWith(u"不"_s);
            if (op == u"大于"_s)
                return text->toInt() > value.toInt();
            if (op == u"小于"_s)
                return text->toInt() < value.toInt();
            const bool isAmong =
                op.endsWith(u"在列表中"_s) ? value.split(u", "_s).contains(*text) : *text == value;
            return isAmong != op.startsWith(u"不"_s);
        };
    }
    static QString described(QDialog &dialog, int rows)
    {
        QString text;
        for (int row = 1; row <= rows; ++row)
            for (const char *name : {"cmbField", "cmbOperator"})
                text += part<QComboBox>(dialog, name + QByteArray::number(row)).currentText() + u' ';
        return text;
    }
    static int rowsOf(const QDialog &dialog)
    {
        int rows = 0;
        while (dialog.findChild<QComboBox *>(u"cmbField%1"_s.arg(rows + 1)))
            ++rows;
        return rows;
    }
    static void type(QDialog &dialog, int row, const QString &field, const QString &op, const QString &value)
    {
        const QByteArray number = QByteArray::number(row);
        if (row > rowsOf(dialog))
            press(dialog, "cmdAddRow");
        part<QComboBox>(dialog, "cmbField" + number).setCurrentText(field);
        part<QComboBox>(dialog, "cmbOperator" + number).setCurrentText(op);
        auto &edit = part<QLineEdit>(dialog, "txtValue" + number);
        edit.clear();
        compose(edit, value);
    }

    bool isSame(const Meaning &one, const Meaning &other) const
    {
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (one(all[i], static_cast<int>(i) + 1) != other(all[i], static_cast<int>(i) + 1))
                return false;
        }
        return true;
    }
    QStringList expected() const
    {
        QStringList ids;
        for (std::size_t i = 0; i < all.size(); ++i) {
            const int id = static_cast<int>(i) + 1;
            if (std::ranges::all_of(parts, [&](const Part &each) { return each.means(all[i], id); }))
                ids += QString::number(id);
        }
        return ids;
    }
    QStringList ids() const { return texts(u"ID"_s); }

    void filterByCell()
    {
        const bool isCity = below(2) > 0;
        const int row = below(std::min(rows(), 8)); // within view
        const Record record = all[static_cast<std::size_t>(ids().at(row).toInt() - 1)];
        const bool hasRow = isCity ? record.city && !record.city->contains(u'\'') &&
                                         !record.city->contains(u'%') && !record.city->contains(u'a')
                                   : record.count.has_value();
        if (!hasRow)
            return;
        const int col = grid.GetBindFieldIndex(isCity ? u"城市"_s : u"数量"_s);
        table->setCurrentIndex(table->model()->index(row, col - 1));
        grid.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        parts.push_back({isCity ? FilterWalk::isCity(*record.city)
                                : Meaning([count = record.count](const Record &each, int) {
                                      return each.count == count;
                                  })});
    }
    // The counts that the heading's list offers: what it made itself doesn't narrow them.
    std::set<int> offeredCounts() const
    {
        std::set<int> counts;
        for (std::size_t i = 0; i < all.size(); ++i) {
            const auto isMet = [&](const Part &each) {
                return !each.heading.isEmpty() || each.means(all[i], static_cast<int>(i) + 1);
            };
            if (all[i].count && std::ranges::all_of(parts, isMet))
                counts.insert(*all[i].count);
        }
        return counts;
    }
    // Counts alone: empty texts are a value of the list besides Null, for which there is no row.
    void filterByHeading()
    {
        if (offeredCounts().size() < 3)
            return;
        QStringList ticked;
        WindowAnswers dialogs({[&](QDialog &dialog) {
            tickAll(dialog, false);
            QStringList values = listed(dialog);
            values.removeAll(u"  （空值）"_s);
            ticked = {values.at(below(static_cast<int>(values.size()))).mid(2)};
            tick(dialog, ticked.front());
            press(dialog, "cmdOK");
        }});
        open(u"数量"_s);
        const auto before = std::ranges::find(parts, u"数量"_s, &Part::heading);
        const Part made{
            [count = ticked.front().toInt()](const Record &each, int) { return each.count == count; },
            u"数量"_s};
        if (before == parts.end())
            parts.push_back(made);
        else
            *before = made;
    }
    void filterAsHost()
    {
        const int least = below(60);
        const bool isOfCities = below(2) > 0;
        const QString condition = isOfCities ? u"城市 <> '大连' and ID > %1"_s.arg(least)
                                             : u"ID > %1 AND 数量 < 7 -- all"_s.arg(least);
        answerFilter(condition);
        const Part other{[isOfCities](const Record &each, int) {
            return isOfCities ? each.city && each.city != u"大连"_s : each.count && *each.count < 7;
        }};
        const Part greater{[least](const Record &, int id) { return id > least; }};
        parts = isOfCities ? std::vector{other, greater} : std::vector{greater, other};
    }
    // Presses Filter without a change, changes a row, or adds one.
    void filterWithBuilder()
    {
        WindowAnswers dialogs({[&](QDialog &dialog) {
            const bool isEmpty = parts.empty();
            ASSERT_EQ(dialog.findChild<QCheckBox *>(u"chkKept1"_s), nullptr);
            ASSERT_EQ(isEmpty ? 1 : rowsOf(dialog), isEmpty ? 1 : static_cast<int>(parts.size()))
                << described(dialog, rowsOf(dialog)).toStdString();
            std::vector<Part> said;
            std::vector<Part> left = parts; // the rows of the builder's own conditions are together
            for (int row = 1; row <= rowsOf(dialog) && !isEmpty; ++row) {
                const Meaning meaning = meaningOf(dialog, row);
                const auto found =
                    std::ranges::find_if(left, [&](const Part &each) { return isSame(each.means, meaning); });
                ASSERT_NE(found, left.end()) << described(dialog, row).toStdString();
                said.push_back({meaning, found->heading});
                left.erase(found);
            }
            const int action = isEmpty ? 2 : below(3);
            const int row =
                action == 2 ? static_cast<int>(said.size()) + 1 : below(static_cast<int>(said.size())) + 1;
            if (action > 0) {
                switch (below(4)) {
                case 0:
                    type(dialog, row, u"城市"_s, below(2) ? u"等于"_s : u"不等于"_s, u"北京"_s);
                    break;
                case 1:
                    type(dialog, row, u"数量"_s, u"不在列表中"_s, u"%1, %2"_s.arg(below(5)).arg(below(5)));
                    break;
                case 2:
                    type(dialog, row, u"数量"_s, u"等于"_s, QString::number(below(9)));
                    break;
                default:
                    type(dialog, row, u"ID"_s, u"小于"_s, QString::number(30 + below(70)));
                }
                said.resize(std::max(said.size(), static_cast<std::size_t>(row)));
                Part &changed = said[static_cast<std::size_t>(row) - 1];
                const Part before = std::exchange(changed, {meaningOf(dialog, row)});
                if (before.means && isSame(before.means, changed.means))
                    changed.heading = before.heading;
            }
            press(dialog, "cmd_Filter");
            ASSERT_FALSE(dialog.isVisible()) << part<QLabel>(dialog, "lblNotice").text().toStdString();
            parts = said;
        }});
        click(u"Filter"_s);
    }

    std::minstd_rand random{20261123}; // the same on each run
    std::vector<Record> all;
    std::vector<Part> parts; // what is in force, as the statement has it
};

} // namespace

TEST_F(FilterWalk, ShowsWhatAPlainLoopFinds)
{
    fillTable();
    ASSERT_TRUE(load(u"SELECT * FROM 走"_s, {}));
    QString walk; // each action, and the statement before it
    const int asked = qEnvironmentVariableIntValue("KOVA_FILTER_STEPS");
    for (int step = 0; step < (asked > 0 ? asked : 120) && !HasFailure(); ++step) {
        if (expected().isEmpty() || parts.size() > 4) {
            click(u"ToOrigin"_s);
            parts.clear();
        }
        const int action = below(5);
        walk += u"\n%1, %2: "_s.arg(step).arg(action) + grid.SQLFilter();
        SCOPED_TRACE(walk.toStdString());
        switch (action) {
        case 0:
            filterByCell();
            break;
        case 1:
            filterByHeading();
            break;
        case 2:
            if (below(3) == 0)
                filterAsHost();
            break;
        default:
            filterWithBuilder();
        }
        EXPECT_EQ(ids(), expected()) << grid.SQLFilter().toStdString();
    }
}
