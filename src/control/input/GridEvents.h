#pragma once

#include <QtCore/QObject>

class QKeyEvent;
class QMouseEvent;

namespace KOVAVSFDataGridLib {

class GridParts;
class InputEvents;
class Session;

// Converts the user's mouse and key input in the grid to the control's events, moves the recordset to the
// grid's current row, and writes a clicked record's picture to a file for the host.
class GridEvents : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object.
    GridEvents(InputEvents &host, const GridParts &parts, Session &session);

    // Moves the recordset to the record of the grid's current row; the data control reports the move. If the
    // previous record can't be left (its edit can't be saved), it stays current, in the grid too.
    void followGridRow();

    // The file for a clicked record's picture: in the folder of the host program.
    static QString pictureFile();

Q_SIGNALS:
    // The right button was released on data, or the menu key was pressed, while there are records and the
    // toolbar is enabled. `position` is in screen coordinates.
    void menuWanted(const QPoint &position);
    // A truncated text was double-clicked. Emitted after the host was notified.
    void valueWanted();
    // The same as menuWanted for a column's heading.
    void headingMenuWanted(int col, const QPoint &position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Place { None, Heading, RowNumber, Cell };
    static bool isData(Place place) { return place == Place::RowNumber || place == Place::Cell; }

    struct MouseArguments;
    using MouseSignal = void (InputEvents::*)(qint16 &, qint16 &, float &, float &);

    // These return true if the event must not be processed further: the host handled a key, it asked for the
    // menu, or it has deleted the control.
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
    bool m_isPictureReported = false; // so that a file that can't be written is reported only once
    bool m_isPressed = false;         // the left button is pressed, not as part of a double-click
};

} // namespace KOVAVSFDataGridLib
