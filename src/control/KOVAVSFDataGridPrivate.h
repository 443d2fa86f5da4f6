#pragma once

#include "control/GridParts.h"
#include "control/KOVAVSFDataGrid.h"
#include "control/OleColor.h"
#include "control/PageView.h"
#include "control/ResultSet.h"
#include "control/SharedValues.h"

#include <functional>
#include <initializer_list>
#include <optional>

// What the public class keeps behind its face: the property texts, the parts and the routines that
// several members share.
class KOVAVSFDataGrid::Private
{
public:
    explicit Private(KOVAVSFDataGrid &control);

    // Stores a property's value and tells the host that it was written, even when it is the same.
    template<typename Value>
    void put(Value &property, const Value &value, const char *name)
    {
        property = value;
        Q_EMIT q.PropertyChanged(QLatin1StringView(name));
    }

    bool isUserMode() const;
    void applyBackColor();
    // Opens the statement and shows its first page; a failure is told to the user and changes nothing.
    bool openAndShow(const QString &statement);
    void showPage(qint64 page);
    void goToTypedPage();
    // Runs the steps one after the other. A failing one is told with the question whether to continue:
    // Yes goes on with the next, No ends.
    void runSteps(QStringView title, std::initializer_list<std::function<void()>> steps);
    void showText(QStringView title, const QString &label, const QString &text);
    // The text that the user accepted with editing allowed; nothing otherwise.
    std::optional<QString> editText(const QString &label, const QString &text);
    // A cell outside the grid is told under the title and gives "".
    QString cellText(int row, int col, const QString &title);
    void emptyGrid();

    KOVAVSFDataGrid &q;
    KOVAVSFDataGridLib::SharedValues &shared = KOVAVSFDataGridLib::SharedValues::instance();
    KOVAVSFDataGridLib::GridParts parts;
    KOVAVSFDataGridLib::ResultSet result;
    KOVAVSFDataGridLib::PageView pages;

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
};
