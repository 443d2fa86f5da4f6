#include "control/input/GridEvents.h"

#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "ado/Stream.h"
#include "ado/Texts.h"
#include "control/input/InputEvents.h"
#include "control/input/KeyCodes.h"
#include "control/input/MenuKey.h"
#include "control/parts/GridParts.h"
#include "control/parts/Survives.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/pages/Pages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>

#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

// The arguments of a mouse event, in twips from the widget's corner. A handler may change them.
struct GridEvents::MouseArguments
{
    MouseArguments(const QWidget &source, const QMouseEvent &event, const QWidget &origin)
        : button(buttonState(event.type() == QEvent::MouseMove ? event.buttons() : event.button())),
          shift(shiftState(event.modifiers()))
    {
        const QPoint position = source.mapTo(&origin, event.position().toPoint());
        x = static_cast<float>(Twips::fromPixels(position.x(), origin));
        y = static_cast<float>(Twips::fromPixels(position.y(), origin));
    }

    qint16 button;
    qint16 shift;
    float x = 0;
    float y = 0;
};

GridEvents::GridEvents(InputEvents &host, const GridParts &parts, Session &session)
    : m_host(host), m_parts(parts), m_session(session)
{
    VSFlexGrid &grid = *parts.vsfgDataGrid;
    for (QWidget *surface :
         {grid.viewport(), grid.horizontalHeader()->viewport(), grid.verticalHeader()->viewport()}) {
        surface->setMouseTracking(true);
        surface->installEventFilter(this);
    }
    grid.installEventFilter(this);
    parts.picMainBack->installEventFilter(this);
    connect(&grid, &FlexGrid::HeadingClicked, this,
            [this](int col) { Q_EMIT m_host.HeadClick(static_cast<qint16>(col)); });
    connect(&grid, &FlexGrid::CurrentRowChanged, this, &GridEvents::followGridRow);
}

QString GridEvents::pictureFile()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(u"PicRecord.bmp"_s);
}

bool GridEvents::isGridSurface(const QObject *object) const
{
    const VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    return object == grid.viewport() || object == grid.horizontalHeader()->viewport() ||
           object == grid.verticalHeader()->viewport();
}

bool GridEvents::eventFilter(QObject *watched, QEvent *event)
{
    // The host is notified before the grid itself acts. A disabled grid reports nothing.
    if (!m_parts.vsfgDataGrid->isEnabled() && watched != m_parts.picMainBack)
        return QObject::eventFilter(watched, event);
    if (isGridSurface(watched)) {
        auto &source = *static_cast<QWidget *>(watched);
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return mousePressed(source, *static_cast<QMouseEvent *>(event));
        case QEvent::MouseMove:
            return report({source, *static_cast<QMouseEvent *>(event), *m_parts.vsfgDataGrid},
                          &InputEvents::DataMouseMove);
        case QEvent::MouseButtonRelease:
            return mouseReleased(source, *static_cast<QMouseEvent *>(event));
        case QEvent::MouseButtonDblClick:
            return doubleClicked(source, *static_cast<QMouseEvent *>(event));
        default:
            return false;
        }
    }
    if (watched == m_parts.vsfgDataGrid && event->type() == QEvent::KeyPress)
        return keyPressed(*static_cast<QKeyEvent *>(event));
    if (watched == m_parts.picMainBack && event->type() == QEvent::MouseButtonRelease)
        return panelReleased(*static_cast<QMouseEvent *>(event));
    return false;
}

bool GridEvents::report(MouseArguments arguments, MouseSignal raised)
{
    return !survives(m_host, raised, arguments.button, arguments.shift, arguments.x, arguments.y);
}

bool GridEvents::mousePressed(QWidget &source, QMouseEvent &event)
{
    m_isPressed = event.button() == Qt::LeftButton;
    return report({source, event, *m_parts.vsfgDataGrid}, &InputEvents::DataMouseDown);
}

bool GridEvents::mouseReleased(QWidget &source, QMouseEvent &event)
{
    const Place place = placeOf(source, event);
    const MouseArguments arguments(source, event, *m_parts.vsfgDataGrid);
    if (isData(place) && !survives(*this, &GridEvents::followGridRow))
        return true;
    if (event.button() == Qt::LeftButton && std::exchange(m_isPressed, false) &&
        !survives(*this, &GridEvents::clicked, place))
        return true;
    if (event.button() == Qt::RightButton && !survives(*this, &GridEvents::askForMenuAt, place, event))
        return true;
    return report(arguments, &InputEvents::DataMouseUp);
}

GridEvents::Place GridEvents::placeOf(const QWidget &source, const QMouseEvent &event) const
{
    const VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    const QPoint position = event.position().toPoint();
    if (&source == grid.horizontalHeader()->viewport())
        return Place::Heading;
    if (&source == grid.verticalHeader()->viewport())
        return grid.rowAt(position.y()) >= 0 ? Place::RowNumber : Place::None;
    return grid.indexAt(position).isValid() ? Place::Cell : Place::None;
}

void GridEvents::clicked(Place place)
{
    const QString stays = removePicture();
    if (!survives(*this, &GridEvents::reportPicture, stays) || !isOnRecord(place))
        return;
    if (!stays.isEmpty() || survives(*this, &GridEvents::reportPicture, writePicture()))
        Q_EMIT m_host.DataClick();
}

bool GridEvents::isOnRecord(Place place) const
{
    return isData(place) && m_parts.vsfgDataGrid->Row() != 0 && m_session.result().isOpen();
}

// The picture of another record must not remain. If the file can't be removed, it is emptied. Returns the
// reason if that fails too.
QString GridEvents::removePicture()
{
    QFile file(pictureFile());
    if (!file.exists() || file.remove() || file.resize(0))
        return {};
    return ADODB::Texts::fileNotWritten().arg(file.fileName(), file.errorString());
}

void GridEvents::reportPicture(const QString &failure)
{
    if (!failure.isEmpty() && !std::exchange(m_isPictureReported, true))
        m_session.questions().show(failure);
}

void GridEvents::followGridRow()
{
    VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    if (grid.Row() == 0 || !m_session.result().isOpen())
        return;
    const auto session = m_session.shared_from_this(); // saving the previous record can call the host
    const ResultWatch watch(*session);
    const ADODB::Notifications::Hold hold(session->notifications());
    ADODB::Recordset &recordset = *watch.recordset();
    const qint64 record = session->pages().recordOfRow(grid.Row());
    try {
        if (record <= recordset.RecordCount() && record != recordset.AbsolutePosition())
            recordset.PutAbsolutePosition(record);
    } catch (const ADODB::Error &) {
        if (!watch.isUntouched())
            return;
        if (const int row = session->pages().rowOfRecord(recordset.AbsolutePosition()); row > 0)
            grid.PutRow(row);
    }
}

// Returns the reason if it failed.
QString GridEvents::writePicture()
{
    const int index = m_session.pages().pictureField();
    if (index < 0)
        return {};
    try {
        const QVariant picture = m_session.result().recordset()->Fields().Item(index).Value();
        if (!picture.isValid())
            return {};
        ADODB::Stream stream;
        stream.PutType(ADODB::adTypeBinary);
        stream.Open();
        stream.Write(picture.toByteArray());
        // If the file could only be emptied, it still exists.
        const bool isThere = QFile::exists(pictureFile());
        stream.SaveToFile(pictureFile(),
                          isThere ? ADODB::adSaveCreateOverWrite : ADODB::adSaveCreateNotExist);
        stream.Close();
    } catch (const ADODB::Error &error) {
        return error.Description(); // the host finds no file, as for a record without a picture
    }
    return {};
}

bool GridEvents::doubleClicked(QWidget &source, QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    m_isPressed = false;
    const Place place = placeOf(source, event);
    if (!survives(*this, &GridEvents::makeCurrent, place, event.position().toPoint()) ||
        !survives(m_host, &InputEvents::DataDblClick))
        return true;
    const VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    if (!isData(place) || grid.Row() == 0)
        return false;
    // A row number means the whole row, even if its first columns are scrolled out of view or hidden.
    const bool isWholeRow = m_parts.CheckSelAllRow->isChecked() || place == Place::RowNumber ||
                            (grid.Col() == 1 && grid.ColSel() != 1);
    if (!(isWholeRow ? survives(m_host, &InputEvents::DataDBLClickOneRow, grid.Row())
                     : survives(m_host, &InputEvents::DataDBLClickOneCell, grid.Col(), grid.Row())))
        return true;
    if (place == Place::Cell && grid.Row() > 0 && grid.IsTextCut(grid.Row(), grid.Col()))
        return !survives(*this, &GridEvents::valueWanted);
    return false;
}

// The second press can hit another cell than the first. The grid makes it current only after the host was
// notified.
void GridEvents::makeCurrent(Place place, const QPoint &position)
{
    VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    if (place == Place::Cell && grid.indexAt(position) != grid.currentIndex())
        grid.notifyAfter([&] { grid.setCurrentIndex(grid.indexAt(position)); });
    else if (place == Place::RowNumber && grid.rowAt(position.y()) != grid.currentIndex().row())
        grid.notifyAfter([&] { grid.selectRow(grid.rowAt(position.y())); });
}

bool GridEvents::keyPressed(QKeyEvent &event)
{
    const qint16 code = virtualKey(event);
    if (code == 0)
        return false;
    qint16 keyCode = code;
    qint16 shift = shiftState(event.modifiers());
    if (!survives(m_host, &InputEvents::DataKeyDown, keyCode, shift) || keyCode == 0)
        return true; // set by a handler that wants the grid to ignore the key
    if (!isMenuKey(event) || m_parts.vsfgDataGrid->Row() == 0)
        return false;
    if (survives(*this, &GridEvents::followGridRow))
        askForMenu(menuPlace(*m_parts.vsfgDataGrid));
    return true;
}

bool GridEvents::canShowMenu() const
{
    return m_parts.Toolbar1->isEnabled() && m_session.result().isOpen() &&
           m_session.result().recordset()->RecordCount() > 0;
}

void GridEvents::askForMenuAt(Place place, const QMouseEvent &event)
{
    const int col =
        place == Place::Heading ? m_parts.vsfgDataGrid->ColumnOfHeadingAt(event.position().toPoint()) : 0;
    if (col > 0 && canShowMenu())
        Q_EMIT headingMenuWanted(col, event.globalPosition().toPoint());
    else
        askForMenu(event.globalPosition().toPoint());
}

void GridEvents::askForMenu(const QPoint &position)
{
    if (canShowMenu())
        Q_EMIT menuWanted(position);
}

bool GridEvents::panelReleased(QMouseEvent &event)
{
    return report({*m_parts.picMainBack, event, *m_parts.picMainBack}, &InputEvents::MouseUp);
}

} // namespace KOVAVSFDataGridLib
