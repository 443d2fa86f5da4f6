#include "Hands.h"

#include "support/Dialogs.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

using namespace Qt::StringLiterals;

namespace KovaTest {

Hands::Hands(const QString &connectionString, qint32 dbType)
    : table(grid.findChild<QTableView *>(u"vsfgDataGrid"_s)),
      list(grid.findChild<QTableView *>(u"MSFlexGrid1"_s)),
      edit(grid.findChild<QLineEdit *>(u"txtEdit"_s)),
      toolbar(grid.findChild<QToolBar *>(u"Toolbar1"_s)),
      pageLabel(grid.findChild<QLabel *>(u"lblFieldCount"_s))
{
    grid.resize(1400, 600);
    grid.show();
    grid.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
    grid.PutDBType(dbType);
    grid.PutConnectionString(connectionString);
}

Hands::~Hands()
{
    grid.PutDBType(KOVAVSFDataGrid::dbAccess); // the type is everybody's
}

bool Hands::load(const QString &statement, const QString &part)
{
    grid.PutSQLShow(statement);
    grid.PutSQLPartDisplay(part);
    return grid.IsLoadData();
}

void Hands::click(const QString &key)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // a button may just have appeared
    QWidget *widget = toolbar->widgetForAction(button(key));
    ASSERT_TRUE(widget && widget->isVisible()) << qUtf8Printable(key);
    QTest::mouseClick(widget, Qt::LeftButton);
}

void Hands::choose(int item, int row, int col)
{
    WindowAnswers menu;
    menu.clickInMenu(u"PopMnuDataAction%1"_s.arg(item));
    clickCell(row, col, Qt::RightButton);
    EXPECT_TRUE(menu.wasMenuShown());
}

void Hands::clickCell(int row, int col, Qt::MouseButton button)
{
    QTableView *view = isSingleRecordShown() ? list : table;
    const int firstCol = isSingleRecordShown() ? 0 : 1;
    const QModelIndex cell = view->model()->index(row - 1, col - firstCol);
    QTest::mouseClick(view->viewport(), button, {}, view->visualRect(cell).center());
}

QAction *Hands::button(const QString &key) const
{
    return toolbar->findChild<QAction *>(key);
}

QStringList Hands::columns() const
{
    QStringList names;
    for (int col = 0; col < table->model()->columnCount(); ++col) {
        if (!table->isColumnHidden(col))
            names.append(table->model()->headerData(col, Qt::Horizontal).toString());
    }
    return names;
}

QStringList Hands::texts(const QString &column) const
{
    QStringList texts;
    const int col = grid.GetBindFieldIndex(column) - 1;
    for (int row = 0; row < rows(); ++row)
        texts.append(table->model()->index(row, col).data().toString());
    return texts;
}

QString Hands::statement() const
{
    const QString line = grid.findChild<QLabel *>(u"lblStatement"_s)->text();
    return line.mid(line.indexOf(u'　') + 1);
}

int Hands::listedRow(const QString &field) const
{
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        if (list->model()->index(row, 0).data().toString() == field)
            return row;
    }
    return -1;
}

QString Hands::listed(const QString &field) const
{
    const int row = listedRow(field);
    return row < 0 ? QString() : list->model()->index(row, 1).data().toString();
}

bool Hands::writeListed(const QString &field, const QString &text, bool isConfirmed)
{
    if (!isSingleRecordShown())
        click(u"SingleRecord"_s);
    list->setCurrentIndex(list->model()->index(listedRow(field), 1));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F2);
    if (!edit->isVisible())
        return false;
    if (edit->isReadOnly()) {
        QTest::keyClick(edit, Qt::Key_Escape);
        return false;
    }
    edit->clear();
    compose(*edit, text);
    if (isConfirmed)
        QTest::keyClick(edit, Qt::Key_Return);
    return true;
}

void Hands::tick(QDialog &dialog, const QStringList &fields)
{
    auto &view = part<QAbstractItemView>(dialog, "lvSelField");
    QAbstractItemModel &model = *view.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex item = model.index(row, 0);
        const bool isTicked = item.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        if (isTicked != fields.contains(item.data().toString())) {
            view.setFocus();
            view.setCurrentIndex(item);
            QTest::keyClick(&view, Qt::Key_Space);
        }
    }
    press(dialog, "cmdOK");
}

void Hands::sort(QDialog &dialog, const QStringList &fields, bool isDescending)
{
    auto &view = part<QAbstractItemView>(dialog, "lvSortFields");
    while (view.model()->rowCount() > 0) {
        view.setCurrentIndex(view.model()->index(0, 0));
        press(dialog, "cmdDeleteField");
    }
    for (const QString &field : fields) {
        part<QComboBox>(dialog, "cmbFields").setCurrentText(field);
        part<QComboBox>(dialog, "cmbOrder").setCurrentIndex(isDescending ? 1 : 0);
        press(dialog, "cmdAddField");
    }
    press(dialog, "cmdOK");
}

void Hands::find(QDialog &dialog, const QString &words, const QString &field)
{
    auto &input = part<QComboBox>(dialog, "InputCombo1");
    QTest::keyClicks(input.lineEdit(), u"x"_s); // the hint disappears
    input.lineEdit()->clear();
    compose(*input.lineEdit(), words);
    if (!field.isEmpty())
        part<QComboBox>(dialog, "FieldCombo1").setCurrentText(field);
    press(dialog, "FindBtn");
}

void Hands::filter(QDialog &dialog, const QString &condition)
{
    auto &text = part<QLineEdit>(dialog, "txtCondition");
    text.setFocus();
    text.clear();
    compose(text, condition);
    press(dialog, "cmd_Filter");
}

QStringList Hands::historyEntries()
{
    auto *const menu = grid.findChild<QMenu *>(u"HistoryMenu"_s);
    if (!menu)
        return {};
    QStringList entries;
    const auto watch = QObject::connect(menu, &QMenu::aboutToShow, menu, [&] {
        for (const QAction *action : menu->actions()) {
            if (action->data().isValid())
                entries.append(action->text());
        }
    });
    WindowAnswers closed;
    closed.clickInMenu({}); // Esc
    table->setFocus();
    QTest::keyClick(table, Qt::Key_H, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !entries.isEmpty(); }));
    QObject::disconnect(watch);
    return entries;
}

void Hands::answerFilter(const QString &condition)
{
    const auto host =
        QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&](qint32 &cancel, const QString &) {
            grid.PutPassQurryFilter(condition);
            cancel = 0;
        });
    click(u"Filter"_s);
    QObject::disconnect(host);
}

void Hands::cancel(QDialog &dialog)
{
    dialog.reject();
}

} // namespace KovaTest
