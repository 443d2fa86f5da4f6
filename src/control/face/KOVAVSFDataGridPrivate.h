#pragma once

#include "control/commands/GridCommands.h"
#include "control/face/KOVAVSFDataGrid.h"
#include "control/face/OleColor.h"
#include "control/input/GridEvents.h"
#include "control/input/PressedPart.h"
#include "control/parts/ControlFieldChooser.h"
#include "control/parts/GridParts.h"
#include "control/parts/PageView.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/ColumnLayout.h"
#include "session/ConnectionFieldReader.h"
#include "session/ResultSet.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

// What the public class keeps behind its face: the property texts, the parts and the routines that
// several members share.
class KOVAVSFDataGrid::Private
{
public:
    explicit Private(KOVAVSFDataGrid &control);

    // Stores a property's value and tells the host that it was written, even when it is the same. False when
    // the host, told of it, has deleted the control.
    template<typename Value>
    bool put(Value &property, const Value &value, const char *name)
    {
        property = value;
        return tellWritten(name);
    }
    // The second half of it.
    bool tellWritten(const char *name);

    bool isUserMode() const;
    void applyBackColor();
    // The filter manager, made on first use.
    KOVAVSFDataGridLib::clsFilterManagement &filterManager() { return *filterManagerToShare(); }
    // The same for one who needs it even when a load has put another one in its place.
    const std::shared_ptr<KOVAVSFDataGridLib::clsFilterManagement> &filterManagerToShare();
    KOVAVSFDataGridLib::ColumnLayout columns();

    // The whole load; see IsLoadData.
    bool load();
    enum class Opening {
        Done,
        Failed,   // told to the user; nothing has changed
        Overtaken // the host, when it was told, has put something else in the result's place
    };
    // Opens the statement as the current result through a connection for `dbType` (AllDBType). Fails silently
    // while a statement is being opened, by this control or another.
    //
    // Whenever the host is told of something it may delete the control: members that do so are followed by a
    // look at a QPointer wherever there is more to do. Overtaken stands for that as well.
    Opening open(const QString &statement, qint32 dbType);
    // False when the host, told of it, has put something else in the result's place or deleted the control.
    bool closeResult();
    // False when it stays where it is because an edit of the current record can't be saved. The user is told,
    // and can have destroyed the control meanwhile.
    bool showPage(qint64 page);
    // Hands the middle-tier switch to the connection factory, which may have been made anew.
    void giveThreeTierSwitch();
    // Takes the open result's number of records and position into the shared values.
    void updateRecordPosition();
    // Keeps the open result's number of records for all to see, as a load does.
    void takeRecordCount();
    // Read afresh, because the shared number may be another control's. False while nothing is open.
    bool hasRecords();
    // 1 presses "All", 2 "Part"; anything else does nothing.
    void setPartAllButton(qint32 mode);
    bool isSingleRecordShown() const;
    void showMultiRecordView();
    // Tells below the grid where the user is and what is shown.
    void tellStatement();
    // Runs the steps one after the other. A failing one is told with the question whether to continue:
    // Yes goes on with the next, No ends.
    void runSteps(QStringView title, std::initializer_list<std::function<void()>> steps);
    void showText(QStringView title, const QString &label, const QString &text);
    // The text that the user accepted with editing allowed; nothing otherwise.
    std::optional<QString> editText(const QString &label, const QString &text);
    // A cell outside the grid is told under the title and gives "".
    QString cellText(int row, int col, const QString &title);
    void emptyGrid();

private:
    std::unique_ptr<KOVAVSFDataGridLib::clsFilterManagement> newFilterManager();
    std::unique_ptr<KOVAVSFDataGridLib::clsFilterManagement> filterManagerForLoad();
    // Nothing when it can't be spelt out, for the reason that `reader` tells.
    std::optional<QString> statementToOpen(KOVAVSFDataGridLib::clsFilterManagement &manager) const;
    // The user can have destroyed the control meanwhile. Always Failed.
    Opening tellOpenError(const QString &description);
    KOVAVSFDataGridLib::ResultSet::Opened read(const QString &statement, qint32 dbType);
    void enableForData();
    void layOutColumns(const QString &statement);

public:
    KOVAVSFDataGrid &q;
    KOVAVSFDataGridLib::SharedValues &shared = KOVAVSFDataGridLib::SharedValues::instance();
    KOVAVSFDataGridLib::GridParts parts;
    KOVAVSFDataGridLib::ResultSet result;
    KOVAVSFDataGridLib::PageView pages;
    KOVAVSFDataGridLib::ConnectionFieldReader reader;
    KOVAVSFDataGridLib::ControlFieldChooser chooser;
    std::shared_ptr<KOVAVSFDataGridLib::clsFilterManagement> filter;
    KOVAVSFDataGridLib::GridEvents events;

    KOVAVSFDataGridLib::OleColor backColor{KOVAVSFDataGridLib::OleColor::ButtonFace};
    std::optional<bool> userMode; // as the host said
    qint32 useModel = ModelUsing;
    qint32 showModel = ModelAll;
    qint32 tableType = DataTable;
    bool errorHint = false;
    QString sqlTemp;
    QString connectionString;
    QString sqlShow;
    QString recordSource;
    QString sqlPartDisplay;
    QString sqlFilter;
    QString sqlSort;
    QString sysDBCnn;
    QString sysDBMode;
    QString passQurryFilter;
    QString picField;

    KOVAVSFDataGridLib::GridCommands commands;
    KOVAVSFDataGridLib::PressedPart pressedPart;
};
