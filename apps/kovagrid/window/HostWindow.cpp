#include "window/HostWindow.h"

#include "HostTexts.h"
#include "Settings.h"
#include "database/Catalogue.h"
#include "tab/QueryPage.h"
#include "tab/StatementEdit.h"
#include "window/EventLog.h"
#include "window/HelpWindow.h"
#include "window/PicturePane.h"
#include "window/TableList.h"

#include <KOVAVSFDataGrid>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtGui/QDropEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString geometryKey = u"geometry"_s;
const QString stateKey = u"state"_s;

// The files being dragged; empty if something else is.
QStringList filesIn(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

HostWindow::HostWindow(const Options &options)
    : m_tabs(new QTabWidget),
      m_tables(new TableList),
      m_picture(new PicturePane),
      m_log(new EventLog),
      m_values(new QStackedWidget)
{
    setWindowTitle(HostTexts::WindowTitle());
    setAcceptDrops(true);
    m_tabs->setDocumentMode(true);
    m_tabs->setTabsClosable(true);
    m_tabs->setMovable(true);
    m_tabs->setTabBarAutoHide(true);
    connect(m_tabs, &QTabWidget::tabCloseRequested, this, &HostWindow::closePage);
    connect(m_tabs, &QTabWidget::currentChanged, this, &HostWindow::showPage);
    connect(m_tables, &TableList::opened, this, [this](const QString &name) {
        if (page())
            page()->openTable(name);
    });
    setCentralWidget(m_tabs);
    makeDocks();
    makeMenus();
    addPage(options);
    fitToScreen();
}

HostWindow::~HostWindow() = default;

QueryPage *HostWindow::page() const
{
    return qobject_cast<QueryPage *>(m_tabs->currentWidget());
}

KOVAVSFDataGrid *HostWindow::grid() const
{
    return page()->grid();
}

void HostWindow::fitToScreen()
{
    const QSize free = screen()->availableSize();
    resize(std::min(1280, free.width() * 19 / 20), std::min(800, free.height() * 9 / 10));
}

void HostWindow::makeDocks()
{
    const auto addDock = [this](Qt::DockWidgetArea area, const QString &name, const QString &title,
                                QWidget *widget) {
        auto *dock = new QDockWidget(title, this);
        dock->setObjectName(name);
        dock->setWidget(widget);
        addDockWidget(area, dock);
        m_docks.append(dock);
        return dock;
    };
    addDock(Qt::LeftDockWidgetArea, u"tablesPane"_s, HostTexts::TablesPane(), m_tables);
    addDock(Qt::LeftDockWidgetArea, u"picturePane"_s, HostTexts::PicturePane(), m_picture);
    addDock(Qt::RightDockWidgetArea, u"valuePane"_s, HostTexts::ValuePane(), m_values)->hide();
    addDock(Qt::BottomDockWidgetArea, u"eventsPane"_s, HostTexts::EventsPane(), m_log)->hide();
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    resizeDocks({m_docks[0], m_docks[1]}, {3, 1}, Qt::Vertical);
    resizeDocks({m_docks[0]}, {180}, Qt::Horizontal);
}

void HostWindow::makeMenus()
{
    QMenu *file = menuBar()->addMenu(HostTexts::FileMenu());
    file->addAction(HostTexts::OpenFileAction(), QKeySequence::Open, this, &HostWindow::chooseFile);
    file->addAction(HostTexts::NewTabAction(), QKeySequence(u"Ctrl+T"_s), this, &HostWindow::addEmptyPage);
    file->addAction(HostTexts::CloseTabAction(), QKeySequence(u"Ctrl+W"_s), this,
                    [this] { closePage(m_tabs->currentIndex()); });
    file->addSeparator();
    file->addAction(HostTexts::ReloadAction(), QKeySequence::Refresh, this, [this] { page()->loadForm(); });
    file->addAction(HostTexts::RefreshTablesAction(), this,
                    [this] { m_tables->showTablesOf(page()->connection(), page()->dbType(), true); });
    file->addSeparator();
    file->addAction(HostTexts::QuitAction(), QKeySequence::Quit, this, &QWidget::close);
    QMenu *view = menuBar()->addMenu(HostTexts::ViewMenu()); // for showing a closed pane again
    for (QDockWidget *dock : m_docks)
        view->addAction(dock->toggleViewAction());
    view->addSeparator();
    view->addAction(HostTexts::NextPaneAction(), QKeySequence(u"F6"_s), this, &HostWindow::focusNextPart);
    QMenu *help = menuBar()->addMenu(HostTexts::HelpMenu());
    help->addAction(HostTexts::ShortcutsAction(), QKeySequence(u"F1"_s), this,
                    [this] { showShortcuts(this); });
    help->addSeparator();
    help->addAction(HostTexts::AboutAction(), this, [this] {
        QMessageBox::about(this, HostTexts::About(),
                           HostTexts::AboutText().arg(QCoreApplication::applicationVersion()));
    });
    help->addAction(HostTexts::AboutQtAction(), this, [this] { QMessageBox::aboutQt(this); });
}

QueryPage *HostWindow::addPage(const Options &options)
{
    auto *added = new QueryPage(options);
    KOVAVSFDataGrid *const grid = added->grid();
    if (m_remembersSettings)
        grid->PutLayoutKey(u"kovagrid"_s);
    m_log->listenTo(*grid);
    const auto showPicture = [this, grid] {
        if (page() && page()->grid() == grid && m_picture->isVisible())
            m_picture->showRecordOf(*grid);
    };
    connect(grid, &KOVAVSFDataGrid::DataClick, this, showPicture);
    connect(grid, &KOVAVSFDataGrid::RecordChanged, this, showPicture);
    connect(grid, &KOVAVSFDataGrid::RecordsetChanged, this, showPicture);
    m_values->addWidget(added->valuePane());
    connect(added, &QueryPage::valueWanted, this, [this, added] {
        m_values->setCurrentWidget(added->valuePane());
        auto *dock = qobject_cast<QDockWidget *>(m_values->parentWidget());
        dock->show();
        dock->raise();
    });
    connect(added, &QueryPage::loaded, this, [this, added] {
        m_tabs->setTabText(m_tabs->indexOf(added), added->caption());
        if (added == page())
            showPage();
    });
    m_tabs->setCurrentIndex(m_tabs->addTab(added, added->caption()));
    return added;
}

// With the current tab's database, if there is one.
void HostWindow::addEmptyPage()
{
    Options options;
    if (page()) {
        options.connection = page()->connection();
        options.dbType = page()->dbType();
    }
    addPage(options)->statement()->setFocus();
}

void HostWindow::closePage(int index)
{
    auto *closed = qobject_cast<QueryPage *>(m_tabs->widget(index));
    if (!closed || m_tabs->count() < 2 || !closed->closeResult())
        return;
    m_tabs->removeTab(index);
    closed->deleteLater();
}

// Updates the panes for the tab.
void HostWindow::showPage()
{
    if (!page() || !isVisible())
        return;
    m_tables->showTablesOf(page()->connection(), page()->dbType());
    m_picture->showRecordOf(*grid());
    m_values->setCurrentWidget(page()->valuePane());
}

void HostWindow::openFile(const QString &path)
{
    const std::optional<QString> connection = Catalogue::connectionForFile(path);
    if (!connection) {
        QMessageBox::warning(this, HostTexts::OpenFile(),
                             HostTexts::NotADatabase().arg(QFileInfo(path).fileName()));
        return;
    }
    Options options;
    options.connection = *connection;
    QueryPage *const opened = addPage(options);
    const QString first = m_tables->firstName();
    if (!first.isEmpty())
        opened->openTable(first);
}

void HostWindow::chooseFile()
{
    const QString path =
        QFileDialog::getOpenFileName(this, HostTexts::OpenFile(), {}, HostTexts::DatabaseFiles());
    if (!path.isEmpty())
        openFile(path);
}

void HostWindow::focusNextPart()
{
    const QWidget *const now = focusWidget();
    if (now == m_tables)
        grid()->setFocus();
    else if (now == page()->statement() && m_tables->isVisible())
        m_tables->setFocus();
    else if (now == page()->statement())
        grid()->setFocus();
    else if (m_values->isVisible() && !m_values->isAncestorOf(now))
        page()->valuePane()->setFocus();
    else
        page()->statement()->setFocus();
}

void HostWindow::rememberSettings()
{
    m_remembersSettings = true;
    grid()->PutLayoutKey(u"kovagrid"_s);
    const auto settings = userSettings();
    restoreGeometry(settings->value(geometryKey).toByteArray());
    restoreState(settings->value(stateKey).toByteArray());
}

void HostWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!filesIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void HostWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    for (const QString &file : filesIn(*event->mimeData()))
        openFile(file);
}

void HostWindow::closeEvent(QCloseEvent *event)
{
    for (int index = 0; index < m_tabs->count(); ++index) {
        if (!qobject_cast<QueryPage *>(m_tabs->widget(index))->closeResult()) {
            m_tabs->setCurrentIndex(index);
            event->ignore();
            return;
        }
    }
    if (m_remembersSettings) {
        const auto settings = userSettings();
        settings->setValue(geometryKey, saveGeometry());
        settings->setValue(stateKey, saveState());
    }
    QMainWindow::closeEvent(event);
}
