// Addresses in cells that open with Ctrl, and cells without a value that say so.
#include "Shop.h"

#include <QtGui/QDesktopServices>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Takes the place of the browser.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser()
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Browser() override
    {
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url.toString()); }

private:
    const QStringList schemes{u"http"_s, u"https"_s, u"mailto"_s, u"file"_s};
};

class Links : public Shop
{
protected:
    Links()
    {
        database.run(u"UPDATE 商品 SET 城市='https://example.org/a' WHERE ID=1;"
                     "UPDATE 商品 SET 城市='file:///etc/passwd' WHERE ID=2"_s);
        EXPECT_TRUE(load(u"SELECT ID,城市 FROM 商品"_s, {}));
    }
    QPoint cell(int row) const { return table->visualRect(table->model()->index(row - 1, 1)).center(); }
    void click(int row, Qt::KeyboardModifiers modifiers) const
    {
        QTest::mouseMove(table->viewport(), cell(row));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, cell(row));
    }
    void hover(int row, Qt::KeyboardModifiers modifiers) const
    {
        QMouseEvent move(QEvent::MouseMove, cell(row), table->viewport()->mapToGlobal(QPointF(cell(row))),
                         Qt::NoButton, Qt::NoButton, modifiers);
        QCoreApplication::sendEvent(table->viewport(), &move);
    }
    bool isUnderlined() const { return line->isVisible(); }

    Browser browser;
    QWidget *const line = table->viewport()->findChild<QWidget *>(u"LinkLine"_s);
};

} // namespace

TEST_F(Links, AreUnderlinedWhileCtrlIsHeldAndOpenWithAClick)
{
    hover(1, Qt::NoModifier);
    EXPECT_FALSE(isUnderlined());
    QTest::keyPress(table, Qt::Key_Control);
    EXPECT_TRUE(isUnderlined());
    EXPECT_EQ(table->viewport()->cursor().shape(), Qt::PointingHandCursor);
    QTest::keyRelease(table, Qt::Key_Control);
    EXPECT_FALSE(isUnderlined());
    EXPECT_NE(table->viewport()->cursor().shape(), Qt::PointingHandCursor);
    hover(1, Qt::ControlModifier);
    EXPECT_TRUE(isUnderlined());
    hover(3, Qt::ControlModifier);
    EXPECT_FALSE(isUnderlined()) << "it is no address";
    clickCell(4, 1);
    click(1, Qt::ControlModifier);
    EXPECT_EQ(browser.opened, QStringList(u"https://example.org/a"_s));
    EXPECT_EQ(table->currentIndex().row() + 1, 4) << "the click selects nothing";
    click(1, Qt::NoModifier);
    EXPECT_EQ(table->currentIndex().row() + 1, 1);
    EXPECT_EQ(browser.opened.size(), 1);
}

TEST_F(Links, NoOtherAddressIsEverOpened)
{
    hover(2, Qt::ControlModifier);
    EXPECT_FALSE(isUnderlined());
    click(2, Qt::ControlModifier);
    clickCell(2, 2);
    QTest::keyClick(table, Qt::Key_F3, Qt::ControlModifier);
    EXPECT_EQ(browser.opened, QStringList());
}

TEST_F(Links, AreOpenedByTheKeyboardToo)
{
    clickCell(1, 2);
    QTest::keyClick(table, Qt::Key_F3, Qt::ControlModifier);
    EXPECT_EQ(browser.opened, QStringList(u"https://example.org/a"_s));
}

TEST_F(Links, AreOpenedFromTheMenu)
{
    choose(32, 1, 2);
    EXPECT_EQ(browser.opened, QStringList(u"https://example.org/a"_s));
}

namespace {

class Nulls : public Shop
{
protected:
    QImage picture(int row, const QString &column) const
    {
        const QModelIndex cell = table->model()->index(row - 1, grid.GetBindFieldIndex(column) - 1);
        return table->viewport()->grab(table->visualRect(cell)).toImage();
    }
};

} // namespace

TEST_F(Nulls, AreShownOnlyWhenTheUserWantsIt)
{
    database.run(u"UPDATE 商品 SET 城市='' WHERE ID=10"_s);
    ASSERT_TRUE(load());
    clickCell(1, 1);
    const QImage withoutValue = picture(9, u"城市"_s);
    const QImage emptyText = picture(10, u"城市"_s);
    choose(33, 1);
    clickCell(1, 1);
    EXPECT_NE(picture(9, u"城市"_s), withoutValue);
    EXPECT_EQ(picture(10, u"城市"_s), emptyText) << "an empty text is a value";
    EXPECT_EQ(texts(u"城市"_s).at(8), QString()) << "it is display only";
    EXPECT_TRUE(grid.findChild<QAction *>(u"PopMnuDataAction33"_s)->isChecked());
    choose(33, 1);
    clickCell(1, 1);
    EXPECT_EQ(picture(9, u"城市"_s), withoutValue);
}

TEST_F(Nulls, AreRememberedWithTheLayout)
{
    ASSERT_TRUE(load());
    const QString before = grid.SaveLayout();
    choose(33, 1);
    const QString shown = grid.SaveLayout();
    EXPECT_NE(shown, before);
    ASSERT_TRUE(grid.RestoreLayout(before));
    EXPECT_EQ(grid.SaveLayout(), before);
    ASSERT_TRUE(grid.RestoreLayout(shown));
    EXPECT_TRUE(grid.findChild<QAction *>(u"PopMnuDataAction33"_s)->isChecked());
}

#include "LinkTest.moc"
