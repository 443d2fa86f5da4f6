#pragma once

#include "control/input/CellEditor.h"
#include "control/input/record/ListedField.h"
#include "control/input/record/PictureFields.h"
#include "control/input/record/RecordHeading.h"
#include "control/input/record/RequiredFields.h"
#include "session/SessionWindow.h"

#include <QtCore/QObject>

#include <memory>
#include <vector>

class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace KOVAVSFDataGridLib {

class InputEvents;

// The current record as a list of field names and values in MSFlexGrid1,
// instead of the grid. Binary fields are omitted, unless the user wants
// to see pictures. The values can be edited if the result can be written.
class SingleRecordView : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object. The view's double-clicks become events of `control`.
    SingleRecordView(QWidget &control, InputEvents &host, Session &session, GridParts &parts);

    // Shows the list instead of the grid, or the grid instead of the list. The focus moves along.
    void show();
    void hide();
    // Lists the current record of the open result; if it has no records, the fields without values.
    void FillSingleRecordView();
    // The main grid's column of the list's current field; 0 if there is none.
    int currentGridCol() const;
    // The main grid's columns of all fields in the list, and of the marked ones.
    std::vector<int> listedColumns() const;
    std::vector<int> markedColumns() const;
    MarkedFields markedFields() const;
    CellEditor &editor() { return m_editor; }

Q_SIGNALS:
    // The list was right-clicked, or the menu key was pressed. `position` is in screen coordinates.
    void menuWanted(const QPoint &position);
    // The user wants to discard or save the changes to the record.
    void cancelWanted();
    void saveWanted();
    // The user wants to run the command with this key.
    void commandWanted(const QString &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool handleEvent(QObject *watched, QEvent *event);
    bool keyPressed(const QKeyEvent &event);
    void doubleClicked(const QWidget &source, const QMouseEvent &event);
    bool editCurrent();
    void clearCurrent();
    bool isPictureCurrent() const;
    void listFields();
    void markRequired();
    void showPictures();
    void fitNameColumn();
    void togglePictures();
    QString valueText(int field) const;
    bool isNull(int field) const;
    QString spokenValue(int row) const;

    QWidget &m_control;
    InputEvents &m_host;
    Session &m_session;
    GridParts &m_parts;
    PictureFields m_pictureFields;
    RecordHeading m_heading;
    std::vector<ListedField> m_fields; // for the rows below the heading
    RequiredFields m_required;
    CellEditor m_editor;
};

} // namespace KOVAVSFDataGridLib
