#include "HostWindow.h"

#include "ConnectionEdit.h"
#include "EventLog.h"
#include "SampleDatabase.h"

#include <KOVAVSFDataGrid>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace Qt::StringLiterals;

HostWindow::HostWindow(const Options &options) : m_grid(new KOVAVSFDataGrid), m_tableType(options.tableType)
{
    setWindowTitle(u"KOVAVSFDataGrid 数据表格"_s);
    auto *centre = new QWidget;
    auto *rows = new QVBoxLayout(centre);
    rows->addWidget(makeForm(options));
    rows->addWidget(m_grid, 1);
    setCentralWidget(centre);
    makeDocks();
    makeMenus();
    listenToGrid();
    resize(1280, 800);
}

HostWindow::~HostWindow() = default;

QWidget *HostWindow::makeForm(const Options &options)
{
    m_connection = new ConnectionEdit(options.connection);
    m_dbType = new QComboBox;
    m_dbType->addItem(u"Access / SQLite"_s, KOVAVSFDataGrid::dbAccess);
    m_dbType->addItem(u"Oracle"_s, KOVAVSFDataGrid::dbOracle);
    m_dbType->addItem(u"SQL Server"_s, KOVAVSFDataGrid::dbSQLServer);
    m_dbType->setCurrentIndex(m_dbType->findData(options.dbType));
    m_sql = new QLineEdit(options.sql);
    m_part = new QLineEdit(options.part);
    m_sort = new QLineEdit(options.sort);
    auto *loadButton = new QPushButton(u"加载(&L)"_s);
    connect(loadButton, &QPushButton::clicked, this, &HostWindow::loadForm);

    auto *form = new QWidget;
    auto *grid = new QGridLayout(form);
    grid->setContentsMargins({});
    const auto addField = [grid](const QString &label, QWidget *field, int row, int column, int span) {
        auto *text = new QLabel(label);
        text->setBuddy(field);
        grid->addWidget(text, row, column);
        grid->addWidget(field, row, column + 1, 1, span);
    };
    addField(u"连接字符串(&C):"_s, m_connection, 0, 0, 3);
    addField(u"数据库类型(&D):"_s, m_dbType, 0, 4, 1);
    addField(u"查询语句(&S):"_s, m_sql, 1, 0, 5);
    addField(u"部分字段(&P):"_s, m_part, 2, 0, 3);
    addField(u"排序(&O):"_s, m_sort, 2, 4, 1);
    grid->addWidget(loadButton, 0, 6, 3, 1);
    loadButton->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(5, 1);
    return form;
}

void HostWindow::makeDocks()
{
    m_picture = new QLabel(u"（无图片）"_s);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setMinimumSize(160, 96);
    m_log = new EventLog;
    const auto addDock = [this](const QString &title, QWidget *widget) {
        auto *dock = new QDockWidget(title, this);
        dock->setWidget(widget);
        addDockWidget(Qt::BottomDockWidgetArea, dock);
        return dock;
    };
    m_docks = {addDock(u"图片"_s, m_picture), addDock(u"事件"_s, m_log)};
    resizeDocks(m_docks, {1, 3}, Qt::Horizontal);
    resizeDocks(m_docks, {130, 130}, Qt::Vertical);
}

void HostWindow::makeMenus()
{
    QMenu *file = menuBar()->addMenu(u"文件(&F)"_s);
    file->addAction(u"加载(&L)"_s, QKeySequence::Refresh, this, &HostWindow::loadForm);
    file->addSeparator();
    file->addAction(u"退出(&X)"_s, QKeySequence::Quit, this, &QWidget::close);
    QMenu *view = menuBar()->addMenu(u"视图(&V)"_s); // brings a closed window part back
    for (QDockWidget *dock : m_docks)
        view->addAction(dock->toggleViewAction());
    QMenu *help = menuBar()->addMenu(u"帮助(&H)"_s);
    help->addAction(u"关于 KOVAVSFDataGrid(&A)"_s, this, [this] {
        QMessageBox::about(this, u"关于 KOVAVSFDataGrid"_s,
                           u"KOVAVSFDataGrid %1\n\n查看查询结果，随意筛选和排序。"_s.arg(
                               QCoreApplication::applicationVersion()));
    });
    help->addAction(u"关于 Qt(&Q)"_s, this, [this] { QMessageBox::aboutQt(this); });
}

// Every event but DataMouseMove, which would drown the others.
void HostWindow::listenToGrid()
{
    const auto log = [this](const QString &line) { m_log->add(line); };
    connect(m_grid, &KOVAVSFDataGrid::DataMouseDown, this,
            [log](qint16 &button, qint16 &shift, float &x, float &y) {
                log(u"DataMouseDown %1 %2 (%3, %4)"_s.arg(button).arg(shift).arg(x).arg(y));
            });
    connect(m_grid, &KOVAVSFDataGrid::DataMouseUp, this,
            [log](qint16 &button, qint16 &shift, float &x, float &y) {
                log(u"DataMouseUp %1 %2 (%3, %4)"_s.arg(button).arg(shift).arg(x).arg(y));
            });
    connect(m_grid, &KOVAVSFDataGrid::HeadClick, this,
            [log](qint16 col) { log(u"HeadClick %1"_s.arg(col)); });
    connect(m_grid, &KOVAVSFDataGrid::DataClick, this, [this, log] {
        log(u"DataClick"_s);
        showPicture();
    });
    connect(m_grid, &KOVAVSFDataGrid::DataDblClick, this, [log] { log(u"DataDblClick"_s); });
    connect(m_grid, &KOVAVSFDataGrid::DataKeyDown, this,
            [log](qint16 &key, qint16 &shift) { log(u"DataKeyDown %1 %2"_s.arg(key).arg(shift)); });
    connect(m_grid, &KOVAVSFDataGrid::MouseUp, this,
            [log](qint16 &button, qint16 &shift, float &x, float &y) {
                log(u"MouseUp %1 %2 (%3, %4)"_s.arg(button).arg(shift).arg(x).arg(y));
            });
    connect(m_grid, &KOVAVSFDataGrid::ShowFieldsChange, this,
            [log](const QString &sql) { log(u"ShowFieldsChange "_s + sql); });
    connect(m_grid, &KOVAVSFDataGrid::QurryFilter, this, [log](qint32 &cancel, const QString &lastFilter) {
        log(u"QurryFilter Cancel=%1 %2"_s.arg(cancel).arg(lastFilter));
    });
    connect(m_grid, &KOVAVSFDataGrid::RecordChanged, this, [log](qint32 reason, qint32 position) {
        log(u"RecordChanged %1 %2"_s.arg(reason).arg(position));
    });
    connect(m_grid, &KOVAVSFDataGrid::RecordsetChanged, this,
            [log](qint32 reason) { log(u"RecordsetChanged %1"_s.arg(reason)); });
    connect(m_grid, &KOVAVSFDataGrid::DataDBLClickOneCell, this,
            [log](qint32 col, qint32 row) { log(u"DataDBLClickOneCell %1 %2"_s.arg(col).arg(row)); });
    connect(m_grid, &KOVAVSFDataGrid::DataDBLClickOneRow, this,
            [log](qint32 row) { log(u"DataDBLClickOneRow %1"_s.arg(row)); });
    connect(m_grid, &KOVAVSFDataGrid::HostError, this, [log](qint32 number, const QString &description) {
        log(u"HostError %1 %2"_s.arg(number).arg(description));
    });
}

// All that a host has to do: say what to show, then load. ConnectionString comes first, since writing it
// empties the texts of the statement.
void HostWindow::setUpGrid()
{
    m_grid->PutConnectionString(m_connection->connection());
    m_grid->PutDBType(m_dbType->currentData().toInt());
    m_grid->PutTableType(m_tableType);
    m_grid->PutSQLShow(m_sql->text());
    m_grid->PutSQLPartDisplay(m_part->text());
    m_grid->PutSQLSort(m_sort->text());
    m_grid->PutPicField(SampleDatabase::pictureField());
}

void HostWindow::loadForm()
{
    setUpGrid();
    load();
}

bool HostWindow::load()
{
    QElapsedTimer timer;
    timer.start();
    const bool isLoaded = m_grid->IsLoadData();
    if (isLoaded)
        m_grid->setFocus();
    m_seconds = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    return isLoaded;
}

// The grid leaves the picture of the clicked record in this file; a record without one leaves no file.
void HostWindow::showPicture()
{
    const QFileInfo file(QCoreApplication::applicationDirPath() + u"/PicRecord.bmp"_s);
    // One from before, in a folder that can't be written any more, is another record's.
    const bool isOld = file.lastModified() < m_started;
    const QPixmap picture = isOld ? QPixmap() : QPixmap(file.filePath());
    if (picture.isNull())
        m_picture->setText(u"（无图片）"_s);
    else
        m_picture->setPixmap(
            picture.scaled(m_picture->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void HostWindow::closeEvent(QCloseEvent *event)
{
    m_grid->ClearObject();
    QMainWindow::closeEvent(event);
}
