#include "Photographer.h"
#include "Sample.h"

#include "control/face/KOVAVSFDataGrid.h"
#include "window/HelpWindow.h"

#include <QtGui/QAction>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTableView>

#include <utility>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

class GridShots
{
public:
    GridShots(Photographer &photographer, const QString &connectionString) : m_photographer(photographer)
    {
        m_grid.PutDBType(1);
        m_grid.PutConnectionString(connectionString);
        m_grid.PutSQLShow(sample(u"select * from 订单"_s));
        m_grid.PutLayoutKey(u"pictures"_s);
        m_grid.resize(m_grid.screen()->availableSize());
        m_grid.show();
        if (!QTest::qWaitForWindowExposed(&m_grid))
            m_photographer.fail(u"the control is not shown"_s);
        if (!m_grid.IsLoadData())
            m_photographer.fail(u"nothing was loaded"_s);
    }

    void takeAll()
    {
        takeMenus();
        takeSelection();
        takeTicks();
        takeSorted();
        takeValues();
        takeRecord();
        takeFullScreen();
        takeNothingFound();
        m_grid.ClearObject();
        showShortcuts(&m_grid);
        take(m_grid.findChild<QDialog *>(u"shortcuts"_s), u"kovagrid-help"_s);
    }

private:
    QTableView &table() const { return part<QTableView>(m_grid, u"vsfgDataGrid"_s); }

    void take(QWidget *window, const QString &name)
    {
        if (window)
            m_photographer.take(*window, name);
        else
            m_photographer.fail(name + u" did not come"_s);
    }

    void makeCurrent(int row, int col) const
    {
        table().setFocus();
        table().setCurrentIndex(table().model()->index(row, col));
    }

    void trigger(const QString &action) const
    {
        if (auto *found = m_grid.findChild<QAction *>(action))
            found->trigger();
        else
            m_photographer.fail(u"no action "_s + action);
    }

    // Does what is wanted with the window that `start` opens, which closes again.
    void during(const QString &name, const std::function<void()> &start,
                const std::function<void(QWidget &)> &use)
    {
        bool hasCome = false;
        bool isUsed = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &m_grid, [&] {
            QWidget *window = QApplication::activePopupWidget();
            if (!window)
                window = QApplication::activeModalWidget();
            if (!window || isUsed)
                return;
            // Others that come after it are only closed.
            if (!std::exchange(hasCome, true)) {
                isUsed = true;
                use(*window);
                isUsed = false;
            }
            if (auto *dialog = qobject_cast<QDialog *>(window))
                dialog->reject();
            window->close();
        });
        timer.start(10);
        start();
        for (int i = 0; i < 200 && !hasCome; ++i)
            QTest::qWait(10);
        if (!hasCome)
            m_photographer.fail(name + u" did not come"_s);
    }
    void takeDuring(const QString &name, const std::function<void()> &start)
    {
        during(name, start, [&](QWidget &window) {
            QTest::qWait(200); // what is read in the background has come
            take(&window, name);
        });
    }

    void takeMenus()
    {
        makeCurrent(2, 8);
        takeDuring(u"ColumnMenu"_s, [&] { trigger(u"OpenColumnMenu"_s); });
        QHeaderView &header = *table().horizontalHeader();
        const QPoint heading(header.sectionViewportPosition(3) + 8, header.height() / 2);
        during(
            u"PopupMenu"_s, [&] { QTest::mouseClick(header.viewport(), Qt::RightButton, {}, heading); },
            [&](QWidget &menu) { take(&menu, u"PopupMenu"_s); });
    }

    void takeSelection()
    {
        makeCurrent(1, 8);
        part<QAbstractButton>(m_grid, u"CheckSelAllRow"_s).setChecked(false);
        table().selectionModel()->select(
            QItemSelection(table().model()->index(1, 8), table().model()->index(12, 8)),
            QItemSelectionModel::ClearAndSelect);
        QTest::qWait(50);
        take(&m_grid, u"grid-selection"_s);
        part<QAbstractButton>(m_grid, u"CheckSelAllRow"_s).setChecked(true);
    }

    void chooseInColumnMenu(int col, const QString &key)
    {
        makeCurrent(2, col);
        during(
            key, [&] { trigger(u"OpenColumnMenu"_s); }, [](QWidget &) {});
        trigger(u"ColumnMenu"_s + key);
        QTest::qWait(20);
    }

    void takeTicks()
    {
        makeCurrent(2, 11);
        during(
            u"FilterByColumn"_s, [&] { trigger(u"OpenColumnMenu"_s); }, [](QWidget &) {});
        takeDuring(u"TicksDialog"_s, [&] { trigger(u"ColumnMenuFilterByColumn"_s); });
    }

    // A filter, a sort by two columns, the find bar and the history of all this.
    void takeSorted()
    {
        makeCurrent(2, 11);
        trigger(u"PopMnuDataAction14"_s);
        chooseInColumnMenu(8, u"SortDescending"_s);
        chooseInColumnMenu(1, u"AddToSort"_s);
        trigger(u"PopMnuDataAction27"_s);
        part<QLineEdit>(m_grid, u"txtFindShown"_s).setText(sample(u"百货"_s));
        QTest::qWait(100);
        QTest::mouseMove(table().horizontalHeader()->viewport(),
                         QPoint(table().horizontalHeader()->sectionViewportPosition(8) + 20, 8));
        QTest::qWait(20);
        take(&m_grid, u"grid-filter-sort-find"_s);
        QTest::keyClick(&part<QLineEdit>(m_grid, u"txtFindShown"_s), Qt::Key_Escape);
        trigger(u"ToPreview"_s);
        takeDuring(u"HistoryMenu"_s, [&] { trigger(u"PopMnuDataAction31"_s); });
        trigger(u"ToOrigin"_s);
        QTest::qWait(20);
    }

    void takeValues()
    {
        const QStringList names{u"ValueDialog-json"_s, u"ValueDialog-bytes"_s, u"ValueDialog-picture"_s};
        for (int row = 0; row < names.size(); ++row) {
            makeCurrent(row, row == 0 ? 12 : 13);
            trigger(u"PopMnuDataAction28"_s);
            QTest::qWait(100);
            auto *viewer = m_grid.findChild<QDialog *>(u"ValueDialog"_s);
            take(viewer, names.at(row));
            if (viewer)
                viewer->close();
            QTest::qWait(20); // it goes
        }
    }

    void takeRecord()
    {
        makeCurrent(2, 3);
        trigger(u"SingleRecord"_s);
        QTest::qWait(20);
        take(&m_grid, u"grid-record"_s);
        trigger(u"AllRecord"_s);
    }

    void takeFullScreen()
    {
        QTimer::singleShot(100, &m_grid, [&] {
            for (QWidget *window : QApplication::topLevelWidgets()) {
                if (window->objectName() != "frm_FullScreen"_L1 || !window->isVisible())
                    continue;
                take(window, u"frm_FullScreen"_s);
                window->close();
                return;
            }
            m_photographer.fail(u"frm_FullScreen did not come"_s);
        });
        trigger(u"FullScreen"_s);
    }

    void takeNothingFound()
    {
        m_grid.PutSQLShow(sample(u"select * from 订单 where 1 = 0"_s));
        m_grid.IsLoadData();
        QTest::qWait(20);
        take(&m_grid, u"grid-empty"_s);
        takeDuring(u"QMessageBox"_s, [&] {
            m_grid.PutSQLShow(sample(u"select * from 没有这个表"_s));
            m_grid.IsLoadData();
        });
    }

    Photographer &m_photographer;
    KOVAVSFDataGrid m_grid;
};

} // namespace

void takeGrid(Photographer &photographer, const QString &connectionString)
{
    GridShots(photographer, connectionString).takeAll();
}
