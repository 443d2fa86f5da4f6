#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

const QString Script =
    u"CREATE TABLE 商品 (ID INTEGER PRIMARY KEY, 名称 VARCHAR(20) NOT NULL, \"Unit Price\" NUMERIC(8,2),"
    " 城市 VARCHAR(10), 日期 DATE, 停用 BOOLEAN, 图片 BLOB);"
    "INSERT INTO 商品 VALUES "
    "(1,'龙井茶',128,'杭州','2024-01-05',0,NULL),(2,'普洱茶',236,'昆明','2024-02-29',0,x'424D'),"
    "(3,'铁观音',168,'厦门',NULL,1,NULL),(4,'花茶',49.5,'北京','2023-12-31',0,NULL),(5,'大米',79.9,'大连','"
    "2024-03-01',0,NULL),"
    "(6,'花生油',118.9,'青岛',NULL,0,NULL),(7,'挂面',12.5,'西安','2024-01-05',1,NULL),(8,'木耳',38.8,'大连',"
    "NULL,0,NULL),"
    "(9,'香菇',45.2,NULL,'2024-04-04',0,NULL),(10,'O''Neil 红茶',88,'上海',NULL,0,NULL),"
    "(11,'绿茶',66,'杭州',NULL,0,NULL),(12,'白茶',99,'厦门',NULL,NULL,NULL);"
    "CREATE TABLE 订单 (ID INTEGER PRIMARY KEY, 商品 INTEGER REFERENCES 商品(ID)); INSERT INTO 订单 VALUES (1,3);"_s;

} // namespace

Shop::Shop()
    : database(Script),
      table(grid.findChild<QTableView *>(u"vsfgDataGrid"_s)),
      list(grid.findChild<QTableView *>(u"MSFlexGrid1"_s)),
      edit(grid.findChild<QLineEdit *>(u"txtEdit"_s)),
      toolbar(grid.findChild<QToolBar *>(u"Toolbar1"_s)),
      pageLabel(grid.findChild<QLabel *>(u"lblFieldCount"_s))
{
    grid.resize(1400, 600);
    grid.show();
    grid.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
    grid.PutConnectionString(database.connectionString());
}

bool Shop::load(const QString &statement, const QString &part)
{
    grid.PutSQLShow(statement);
    grid.PutSQLPartDisplay(part);
    return grid.IsLoadData();
}

void Shop::click(const QString &key)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // a button may just have appeared
    QWidget *widget = toolbar->widgetForAction(button(key));
    ASSERT_TRUE(widget && widget->isVisible()) << qUtf8Printable(key);
    QTest::mouseClick(widget, Qt::LeftButton);
}

void Shop::choose(int item, int row, int col)
{
    WindowAnswers menu;
    menu.clickInMenu(u"PopMnuDataAction%1"_s.arg(item));
    clickCell(row, col, Qt::RightButton);
    EXPECT_TRUE(menu.wasMenuShown());
}

void Shop::clickCell(int row, int col, Qt::MouseButton button)
{
    QTableView *view = isSingleRecordShown() ? list : table;
    const int firstCol = isSingleRecordShown() ? 0 : 1;
    const QModelIndex cell = view->model()->index(row - 1, col - firstCol);
    QTest::mouseClick(view->viewport(), button, {}, view->visualRect(cell).center());
}

QAction *Shop::button(const QString &key) const
{
    return toolbar->findChild<QAction *>(key);
}

QStringList Shop::columns() const
{
    QStringList names;
    for (int col = 0; col < table->model()->columnCount(); ++col) {
        if (!table->isColumnHidden(col))
            names.append(table->model()->headerData(col, Qt::Horizontal).toString());
    }
    return names;
}

QStringList Shop::texts(const QString &column) const
{
    QStringList texts;
    const int col = grid.GetBindFieldIndex(column) - 1;
    for (int row = 0; row < rows(); ++row)
        texts.append(table->model()->index(row, col).data().toString());
    return texts;
}

QString Shop::statement() const
{
    const QString line = grid.findChild<QLabel *>(u"lblStatement"_s)->text();
    return line.mid(line.indexOf(u'　') + 1);
}

int Shop::listedRow(const QString &field) const
{
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        if (list->model()->index(row, 0).data().toString() == field)
            return row;
    }
    return -1;
}

QString Shop::listed(const QString &field) const
{
    const int row = listedRow(field);
    return row < 0 ? QString() : list->model()->index(row, 1).data().toString();
}

void Shop::tick(QDialog &dialog, const QStringList &fields)
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

void Shop::sort(QDialog &dialog, const QStringList &fields, bool isDescending)
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

void Shop::find(QDialog &dialog, const QString &words, const QString &field)
{
    auto &input = part<QComboBox>(dialog, "InputCombo1");
    QTest::keyClicks(input.lineEdit(), u"x"_s); // the hint goes
    input.lineEdit()->clear();
    compose(*input.lineEdit(), words);
    if (!field.isEmpty())
        part<QComboBox>(dialog, "FieldCombo1").setCurrentText(field);
    press(dialog, "FindBtn");
}

void Shop::filter(QDialog &dialog, const QString &condition)
{
    auto &text = part<QLineEdit>(dialog, "txtCondition");
    text.setFocus();
    text.clear();
    compose(text, condition);
    press(dialog, "cmd_Filter");
}

void Shop::cancel(QDialog &dialog)
{
    dialog.reject();
}

} // namespace KovaTest
