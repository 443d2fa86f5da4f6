#include "tab/QueryPage.h"

#include "HostTexts.h"
#include "database/Catalogue.h"
#include "tab/ConnectionEdit.h"
#include "tab/RecentConnections.h"
#include "tab/StatementEdit.h"

#include <KOVAVSFDataGrid>
#include <KOVAVSFDataGridLib/control/face/NewValuePane.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;

namespace {

QLabel *labelFor(const QString &text, QWidget *field)
{
    auto *label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

} // namespace

QueryPage::QueryPage(const Options &options, QWidget *parent)
    : QWidget(parent),
      m_grid(new KOVAVSFDataGrid),
      m_connection(new ConnectionEdit(options.connection)),
      m_recent(new QToolButton),
      m_dbType(new QComboBox),
      m_sql(new StatementEdit(options.sql)),
      m_part(new QLineEdit(options.part)),
      m_sort(new QLineEdit(options.sort)),
      m_further(makeFurtherFields(options)),
      m_tableType(options.tableType)
{
    m_dbType->addItem(u"Access / SQLite"_s, KOVAVSFDataGrid::dbAccess);
    m_dbType->addItem(u"Oracle"_s, KOVAVSFDataGrid::dbOracle);
    m_dbType->addItem(u"SQL Server"_s, KOVAVSFDataGrid::dbSQLServer);
    m_dbType->setCurrentIndex(m_dbType->findData(options.dbType));
    auto *parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(makeForm());
    parts->addWidget(m_grid);
    parts->setStretchFactor(1, 1);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(6, 6, 6, 6);
    rows->addWidget(parts);
    connect(m_sql, &StatementEdit::runRequested, this, &QueryPage::loadForm);
    m_valuePane = KOVAVSFDataGridLib::newValuePane(*m_grid, this, [this] { Q_EMIT valueWanted(); });
    m_valuePane->hide();
}

QueryPage::~QueryPage()
{
    delete m_valuePane; // wherever it is now
}

QWidget *QueryPage::makeForm()
{
    m_connection->setObjectName(u"connection"_s);
    m_recent->setObjectName(u"recent"_s);
    m_recent->setText(HostTexts::Recent());
    m_recent->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(m_recent);
    m_recent->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &QueryPage::showRecent);
    auto *run = new QPushButton(HostTexts::Run());
    run->setObjectName(u"run"_s);
    run->setToolTip(HostTexts::RunTip());
    run->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    connect(run, &QPushButton::clicked, this, &QueryPage::loadForm);
    auto *more = new QToolButton;
    more->setText(HostTexts::More());
    more->setToolTip(HostTexts::MoreTip());
    more->setCheckable(true);
    more->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(more, &QToolButton::toggled, m_further, &QWidget::setVisible);

    auto *form = new QWidget;
    auto *grid = new QGridLayout(form);
    grid->setContentsMargins({});
    auto *connection = new QHBoxLayout;
    connection->addWidget(m_connection, 1);
    connection->addWidget(m_recent);
    connection->addWidget(labelFor(HostTexts::DbType(), m_dbType));
    connection->addWidget(m_dbType);
    grid->addWidget(labelFor(HostTexts::Connection(), m_connection), 0, 0);
    grid->addLayout(connection, 0, 1, 1, 2);
    grid->addWidget(labelFor(HostTexts::Statement(), m_sql), 1, 0, Qt::AlignTop);
    grid->addWidget(m_sql, 1, 1);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(run, 1);
    buttons->addWidget(more);
    grid->addLayout(buttons, 1, 2);
    grid->addWidget(m_further, 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    m_further->hide();
    return form;
}

QWidget *QueryPage::makeFurtherFields(const Options &)
{
    m_part->setObjectName(u"part"_s);
    m_sort->setObjectName(u"sort"_s);
    auto *fields = new QWidget(this);
    auto *row = new QHBoxLayout(fields);
    row->setContentsMargins({});
    row->addWidget(labelFor(HostTexts::Part(), m_part));
    row->addWidget(m_part, 3);
    row->addWidget(labelFor(HostTexts::Sort(), m_sort));
    row->addWidget(m_sort, 1);
    return fields;
}

void QueryPage::showRecent()
{
    QMenu &menu = *m_recent->menu();
    menu.clear();
    for (const QString &connection : RecentConnections::all()) {
        constexpr int widest = 420;
        const QString shown = fontMetrics().elidedText(connection, Qt::ElideMiddle, widest);
        menu.addAction(QString(shown).replace(u'&', u"&&"_s), this, [this, connection] {
            setConnection(connection);
            m_connection->setFocus();
        });
    }
    if (menu.isEmpty()) {
        menu.addAction(HostTexts::NoRecent())->setEnabled(false);
        return;
    }
    menu.addSeparator();
    menu.addAction(HostTexts::ClearRecent(), this, [] { RecentConnections::clear(); });
}

QString QueryPage::connection() const
{
    return m_connection->connection();
}

void QueryPage::setConnection(const QString &connection)
{
    m_connection->setConnection(connection);
}

qint32 QueryPage::dbType() const
{
    return m_dbType->currentData().toInt();
}

// All that a host must do: set what to show, then load. ConnectionString must be first, because setting it
// clears the statement properties.
void QueryPage::setUpGrid()
{
    m_grid->PutConnectionString(connection());
    m_grid->PutDBType(dbType());
    m_grid->PutTableType(m_tableType);
    m_grid->PutSQLShow(m_sql->statement());
    m_grid->PutSQLPartDisplay(m_part->text());
    m_grid->PutSQLSort(m_sort->text());
}

bool QueryPage::load()
{
    QElapsedTimer timer;
    timer.start();
    const bool isLoaded = m_grid->IsLoadData();
    if (isLoaded)
        m_grid->setFocus();
    m_seconds = static_cast<double>(timer.nsecsElapsed()) * 1e-9;
    return isLoaded;
}

void QueryPage::loadForm()
{
    setUpGrid();
    if (!load())
        return;
    RecentConnections::add(connection());
    Q_EMIT loaded();
}

void QueryPage::openTable(const QString &name)
{
    m_sql->setPlainText(Catalogue::statementFor(name));
    m_part->clear();
    m_sort->clear();
    loadForm();
}

bool QueryPage::closeResult()
{
    m_grid->ClearObject();
    return m_grid->RecordSet() == nullptr;
}

QString QueryPage::caption() const
{
    static const QRegularExpression table(u"\\bfrom\\s+([^\\s,;()]+)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    const QString name = table.match(m_sql->statement()).captured(1);
    constexpr qsizetype longest = 24;
    return name.isEmpty() ? HostTexts::NewTab() : name.left(longest);
}
