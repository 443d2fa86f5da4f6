#include "HostWindow.h"

#include "EventLog.h"
#include "SampleDatabase.h"

#include <KOVAVSFDataGrid>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
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
    listenToGrid();
    resize(1280, 800);
}

HostWindow::~HostWindow() = default;

QWidget *HostWindow::makeForm(const Options &options)
{
    m_connection = new QLineEdit(options.connection);
    m_dbType = new QComboBox;
    m_dbType->addItem(u"Access / SQLite"_s, KOVAVSFDataGrid::dbAccess);
    m_dbType->addItem(u"Oracle"_s, KOVAVSFDataGrid::dbOracle);
    m_dbType->addItem(u"SQL Server"_s, KOVAVSFDataGrid::dbSQLServer);
    m_dbType->setCurrentIndex(m_dbType->findData(options.dbType));
    m_sql = new QLineEdit(options.sql);
    m_part = new QLineEdit(options.part);
    m_sort = new QLineEdit(options.sort);
    auto *loadButton = new QPushButton(u"加载(&L)"_s);
    connect(loadButton, &QPushButton::clicked, this, [this] {
        setUpGrid();
        load();
    });

    auto *form = new QWidget;
    auto *grid = new QGridLayout(form);
    grid->setContentsMargins({});
    const auto addField = [grid](const QString &label, QWidget *field, int row, int column, int span) {
        auto *text = new QLabel(label);
        text->setBuddy(field);
        grid->addWidget(text, row, column);
        grid->addWidget(field, row, column + 1, 1, span);
    };
    addField(u"连接字符串(&C)"_s, m_connection, 0, 0, 3);
    addField(u"数据库类型(&D)"_s, m_dbType, 0, 4, 1);
    addField(u"查询语句(&S)"_s, m_sql, 1, 0, 5);
    addField(u"部分字段(&P)"_s, m_part, 2, 0, 3);
    addField(u"排序(&O)"_s, m_sort, 2, 4, 1);
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
    QDockWidget *picture = addDock(u"图片"_s, m_picture);
    QDockWidget *log = addDock(u"事件"_s, m_log);
    resizeDocks({picture, log}, {1, 3}, Qt::Horizontal);
    resizeDocks({picture, log}, {130, 130}, Qt::Vertical);
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
    m_grid->PutConnectionString(m_connection->text());
    m_grid->PutDBType(m_dbType->currentData().toInt());
    m_grid->PutTableType(m_tableType);
    m_grid->PutSQLShow(m_sql->text());
    m_grid->PutSQLPartDisplay(m_part->text());
    m_grid->PutSQLSort(m_sort->text());
    m_grid->PutPicField(SampleDatabase::pictureField());
}

bool HostWindow::load()
{
    QElapsedTimer timer;
    timer.start();
    const bool isLoaded = m_grid->IsLoadData();
    m_seconds = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    return isLoaded;
}

// The grid leaves the picture of the clicked record in this file; a record without one leaves no file.
void HostWindow::showPicture()
{
    const QPixmap picture(QCoreApplication::applicationDirPath() + u"/PicRecord.bmp"_s);
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
