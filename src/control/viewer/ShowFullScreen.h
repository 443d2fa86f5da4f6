#pragma once

#include <QtCore/QString>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace KOVAVSFDataGridLib {

class GridParts;
class PageView;
class ResultSet;
class clsFilterManagement;

// What the control lends the full-screen viewer.
struct FullScreenRequest
{
    QWidget &owner; // the control itself
    GridParts &parts;
    ResultSet &result;
    PageView &pages;
    std::shared_ptr<clsFilterManagement> filter;
    QString connectionString;
    qint32 dbType;     // AllDBType
    QString statement; // the one shown
    QString sqlSort;
    QString pictureField;
    // Lets the user build a condition in a dialog above `parent`; an empty text when he cancels.
    std::function<QString(QWidget *parent)> askCondition;
};

// What the user left in the viewer.
struct FullScreenOutcome
{
    bool isAll;        // whether all fields are shown; "All" or "Part" is pressed accordingly
    bool isRequeried;  // whether another result is open now
    QString statement; // the one shown now
};

// Shows the control's result on the whole screen until the user comes back, and brings the control in step
// with what he left: the result with its page and columns when he asked for another one, else the page alone.
// When he changed neither, nothing moves. The toolbar and the page button are enabled afterwards. The history
// and the field catalogue go along by themselves, as they belong to the filter manager.
//
// The caller leaves the single-record view first and takes the outcome into its properties. Nothing when
// there are no records to show, when the host opened or closed a result of the control meanwhile (the control
// then shows that one), or when it destroyed the control: then the request's parts are gone.
std::optional<FullScreenOutcome> ShowFullScreen(const FullScreenRequest &control);

} // namespace KOVAVSFDataGridLib
