#include "ViewerFixture.h"

#include "ado/Recordset.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "query/SharedValues.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ShownStatement.h"

#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

QStringList namesOf(const QList<OfferedField> &fields)
{
    QStringList names;
    for (const OfferedField &field : fields)
        names.append(field.name);
    return names;
}

} // namespace

std::optional<QString>
PreparedUser::ChooseVisibleFields(const QString &, const QList<KOVAVSFDataGridLib::OfferedField> &allFields,
                                  const QStringList &partFields)
{
    fields = namesOf(allFields);
    chosen = partFields;
    return answer;
}

std::optional<QString> PreparedUser::ChooseSort(const QString &,
                                                const QList<KOVAVSFDataGridLib::OfferedField> &allFields,
                                                const QStringList &sortTerms)
{
    fields = namesOf(allFields);
    chosen = sortTerms;
    return answer;
}

LoadedParts::LoadedParts()
    : database(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Name VARCHAR(20), Price NUMERIC(8,2), Born DATE);"
               "INSERT INTO T VALUES (1,'Anna',10,'2001-01-01'),(2,'Berta',NULL,'2002-02-02'),"
               "(3,'O''Neil',30,'2003-03-03'),(4,'Anna',40,'2004-04-04'),(5,NULL,50,'2005-05-05')"_s)
{
    window.setSession(*session);
    control.resize(800, 500);
    parts.layOut(800, 500);
    SharedValues::instance() = {};
}

void LoadedParts::load(const QString &sql, const QString &partStatement, const QString &sort)
{
    const QString connection = database.connectionString();
    statement = sql;
    session->texts.connectionString = connection;
    session->texts.sqlShow = sql;
    session->texts.sqlSort = sort;
    session->shown().setText(sql);
    session->fields().setView(FieldView::All);
    result.replaceBy(ResultSet::open(connection, statement, dbAccess, {}));
    filter.SetDBType(dbAccess);
    filter.SetDBConnString(connection);
    filter.SetAllFields(statement);
    filter.SetOriginFilter(statement);
    filter.SetShowFields(partStatement);
    filter.SetOrderFields(sort);
    filter.SetSQLInitData();
    session->pages().setPage(1);
    session->pages().fillPage();
    session->columns().RecordShowSQL(statement, FieldView::All, true, colShowSQLSentences::NoPartField(),
                                     colShowSQLSentences::NoSort(), connection);
}

void LoadedParts::forgetWidths()
{
    QStringList keys;
    for (const clsDataField &field : history().DataFields())
        keys.append(field.FieldKey);
    for (const QString &key : keys)
        history().DataFields().Update(key, [](clsDataField &field) { field.FieldWidth = 0; });
}

qint64 LoadedParts::position() const
{
    return result.recordset()->AbsolutePosition();
}

QString LoadedParts::latestStatement() const
{
    QString latest;
    filter.SQLManager().GetLatestSQL(latest);
    return latest;
}

template<typename Part>
Part &ViewerUser::part(const char *name) const
{
    auto *found = m_viewer.findChild<Part *>(QLatin1StringView(name));
    if (!found)
        qFatal("the viewer has no %s", name);
    return *found;
}

GridToolbar &ViewerUser::toolbar() const
{
    return part<GridToolbar>("Toolbar1");
}

VSFlexGrid &ViewerUser::grid() const
{
    return part<VSFlexGrid>("vsfgShowData");
}

QMenu &ViewerUser::menu() const
{
    return part<QMenu>("PopMnu");
}

QAction *ViewerUser::menuItem(int index) const
{
    return menu().findChild<QAction *>(u"PopMnuAction"_s + QString::number(index));
}

QString ViewerUser::label() const
{
    return part<QLabel>("lblPageCount").text();
}

QString ViewerUser::box() const
{
    return part<QLineEdit>("txtPage").text();
}

QString ViewerUser::row(int row) const
{
    QStringList texts;
    for (int col = 1; col < grid().Cols(); ++col) {
        if (grid().ColWidth(col) != 0)
            texts.append(grid().TextMatrix(row, col));
    }
    return texts.join(u' ');
}

int ViewerUser::rows() const
{
    return grid().UsedRows() - 1;
}

void ViewerUser::press(const QString &key) const
{
    QTest::mouseClick(toolbar().widgetForAction(toolbar().findChild<QAction *>(key)), Qt::LeftButton);
}

void ViewerUser::goTo(const QString &page) const
{
    auto &pageBox = part<QLineEdit>("txtPage");
    pageBox.clear();
    QTest::keyClicks(&pageBox, page);
    QTest::mouseClick(&part<QPushButton>("cmdPgae"), Qt::LeftButton);
}

void ViewerUser::rightClick(int row, int col) const
{
    const QModelIndex cell = grid().model()->index(row - 1, col - 1);
    QTest::mouseClick(grid().viewport(), Qt::RightButton, {}, grid().visualRect(cell).center());
}

void ViewerUser::choose(int menuIndex) const
{
    QTest::mouseClick(&menu(), Qt::LeftButton, {}, menu().actionGeometry(menuItem(menuIndex)).center());
}

ViewerHost Viewer::lend()
{
    return {
        [this](const QString &sql, const ResultSet::Progress &progress) {
            ++openings;
            result.replaceBy(ResultSet::open(database.connectionString(), sql, dbAccess, progress));
            return ResultSet::Opened{database.connectionString(), result.connection(), result.recordset()};
        },
        [this](QWidget *, const ConditionRequest &request) {
            if (request.refusal.isEmpty())
                return condition;
            refusals += request.refusal;
            return QString();
        }};
}

void Viewer::show(qint32 page, bool isAll)
{
    viewer.PutFilterManager(session->sharedHistory().manager());
    viewer.GetData(result.connection(), result.recordset(), page, database.connectionString(), statement,
                   true, {}, isAll, true, true, true);
    viewer.show();
}

PagedViewer::PagedViewer()
{
    load(u"select * from T"_s);
    result.recordset()->PutPageSize(2);
}

} // namespace KovaTest
