#include "Photographer.h"
#include "Sample.h"

#include "control/face/KOVAVSFDataGrid.h"
#include "start/Options.h"
#include "tab/QueryPage.h"
#include "window/HostWindow.h"

#include <QtGui/QAction>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QTableView>

using namespace Qt::StringLiterals;

void takeHost(Photographer &photographer, const QString &database)
{
    Options options;
    options.connection = u"Provider=SQLite;Data Source="_s + database;
    options.sql = sample(u"select 订单编号, 客户名称, 数量, 备注 from 订单 order by 订单编号"_s);
    HostWindow window(options);
    window.resize(window.screen()->availableSize());
    window.show();
    window.openFile(database); // a second tab
    auto *const table = window.grid()->findChild<QTableView *>(u"vsfgDataGrid"_s);
    auto *const showValue = window.grid()->findChild<QAction *>(u"PopMnuDataAction28"_s);
    if (!QTest::qWaitForWindowActive(&window) || !table || table->model()->rowCount() == 0 || !showValue)
        return photographer.fail(u"kovagrid shows no table"_s);
    constexpr int note = 12; // of the first record, which is JSON
    table->setFocus();
    table->setCurrentIndex(table->model()->index(0, note));
    showValue->trigger();
    QTest::qWait(200); // what it shows is read in the background
    photographer.take(window, u"kovagrid-tabs-value"_s);
}
