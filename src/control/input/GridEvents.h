#pragma once

#include <QtCore/QObject>

class QKeyEvent;
class QMouseEvent;

namespace KOVAVSFDataGridLib {

class GridParts;
class InputEvents;
class Session;

// Turns what the user does on the grid with mouse and keys into the control's events, moves the recordset
// along with the grid's current row, and leaves a clicked record's picture in a file for the host.
class GridEvents : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object.
    GridEvents(InputEvents &host, const GridParts &parts, Session &session);

    // Moves the recordset to the record of the grid's current row; the data control tells of the move. A
    // record that can't be left (its edit can't be saved) stays current, in the grid as well.
    void followGridRow();

    // Where a clicked record's picture is left: in the folder of the host program.
    static QString pictureFile();

Q_SIGNALS:
    // The right button came up on data (or the menu key was pressed) while there are records and the toolbar
    // is enabled: time for the menu. `position` is on the screen.
    void menuWanted(const QPoint &position);
    // A text that is cut off was double-clicked, after the host has heard of it.
    void valueWanted();
    // The same as menuWanted on a column's heading.
    void headingMenuWanted(int col, const QPoint &position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Place { None, Heading, RowNumber, Cell };
    static bool isData(Place place) { return place == Place::RowNumber || place == Place::Cell; }

    struct MouseArguments;
    using MouseSignal = void (InputEvents::*)(qint16 &, qint16 &, float &, float &);

    // These are true when the event goes no further: the host took a key for itself, it asked for the menu,
    // or the host has deleted the control.
    bool report(MouseArguments arguments, MouseSignal raised);
    bool mousePressed(QWidget &source, QMouseEvent &event);
    bool mouseReleased(QWidget &source, QMouseEvent &event);
    bool doubleClicked(QWidget &source, QMouseEvent &event);
    bool keyPressed(QKeyEvent &event);
    bool panelReleased(QMouseEvent &event);

    void makeCurrent(Place place, const QPoint &position);
    bool canShowMenu() const;
    void askForMenuAt(Place place, const QMouseEvent &event);
    void askForMenu(const QPoint &position);
    void clicked(Place place);
    bool isOnRecord(Place place) const;
    QString removePicture();
    QString writePicture();
    void reportPicture(const QString &failure);
    bool isGridSurface(const QObject *object) const;
    Place placeOf(const QWidget &source, const QMouseEvent &event) const;

    InputEvents &m_host;
    const GridParts &m_parts;
    Session &m_session;
    bool m_isPictureReported = false; // that the file can't be written is said once
    bool m_isPressed = false;         // the left button, and no double-click has come of it
};

} // namespace KOVAVSFDataGridLib
