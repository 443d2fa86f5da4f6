// Every part that a person can reach has a name for assistive tools.
#include "Shop.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class Accessible : public Shop
{
protected:
    static bool isQtsOwn(const QObject &part)
    {
        return part.objectName().startsWith(u"qt_"_s) || qobject_cast<const QHeaderView *>(&part);
    }
    // How many parts of the window can be pressed or take the focus, or are bars and menus.
    static int expectNames(const QWidget &window)
    {
        int reached = 0;
        for (QWidget *widget : window.findChildren<QWidget *>()) {
            const bool isMenu = qobject_cast<QMenu *>(widget) != nullptr;
            const bool isFocusable = widget->focusPolicy() != Qt::NoFocus;
            const bool isSeen = qobject_cast<QAbstractButton *>(widget) || qobject_cast<QToolBar *>(widget);
            if (isQtsOwn(*widget) || isQtsOwn(*widget->parent()) ||
                (!isMenu && !((isSeen || isFocusable) && widget->isVisible() && widget->isEnabled())))
                continue;
            QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
            EXPECT_TRUE(interface && !interface->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className() << ' ' << qUtf8Printable(widget->objectName());
            ++reached;
        }
        return reached;
    }
};

} // namespace

TEST_F(Accessible, EveryPartOfTheControlHasAName)
{
    ASSERT_TRUE(load());
    EXPECT_GT(expectNames(grid), 20);
    click(u"SingleRecord"_s);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(listedRow(u"名称"_s), 1));
    QTest::keyClick(list, Qt::Key_F2);
    ASSERT_TRUE(edit->isVisible());
    expectNames(grid);
    EXPECT_EQ(edit->accessibleName(), u"名称"_s) << "the field that is edited";
}

TEST_F(Accessible, EveryPartOfTheViewerHasAName)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &viewer) {
        EXPECT_GT(expectNames(viewer), 12);
        EXPECT_FALSE(viewer.windowTitle().isEmpty());
        viewer.reject();
    }});
    click(u"FullScreen"_s);
}

TEST_F(Accessible, TheMenuItemsHaveCaptionsOfTheirOwn)
{
    QStringList captions;
    for (const QAction *action : grid.findChild<QMenu *>(u"PopMnuData"_s)->actions()) {
        if (action->isSeparator())
            continue;
        EXPECT_FALSE(captions.contains(action->text())) << qUtf8Printable(action->text());
        captions.append(action->text());
    }
    EXPECT_GE(captions.size(), 11);
}
