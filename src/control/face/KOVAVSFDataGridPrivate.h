#pragma once

#include "control/face/ControlWindow.h"
#include "control/face/KOVAVSFDataGrid.h"
#include "control/face/LayoutKeeper.h"
#include "control/face/OleColor.h"
#include "control/input/CloseGuard.h"
#include "control/input/CommandInput.h"
#include "control/input/GridEvents.h"
#include "control/input/InputEvents.h"
#include "control/input/PressedPart.h"
#include "control/input/SelectionWatch.h"
#include "control/input/SingleRecordView.h"
#include "control/parts/DialogQuestions.h"
#include "control/parts/GridParts.h"
#include "control/parts/ResultFinder.h"
#include "control/settings/KeptFilters.h"
#include "session/HostEvents.h"
#include "session/Session.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>

// The data of the public class: the session, the objects that show it and run its commands, and the control's
// own properties.
class KOVAVSFDataGrid::Private final : public KOVAVSFDataGridLib::HostEvents
{
public:
    explicit Private(KOVAVSFDataGrid &control);
    ~Private() override;

    // Sets a property's value and notifies the host, even if the value is the same. Returns false if the host
    // has deleted the control in response.
    template<typename Value>
    bool put(Value &property, const Value &value, const char *name)
    {
        property = value;
        return notifyWritten(name);
    }
    bool notifyWritten(const char *name);

    bool isUserMode() const;
    void applyBackColor();
    // Passes the middle-tier switch to the connection factory, which may have been replaced.
    void setThreeTierSwitch() const;
    void focusGrid() const;
    // Runs the steps in order. If one fails, asks the user whether to continue: Yes runs the next one, No
    // ends.
    void runSteps(QStringView title, std::initializer_list<std::function<void()>> steps);
    void showText(QStringView title, const QString &label, const QString &text);
    // The text if the user accepted it with editing allowed; otherwise nothing.
    std::optional<QString> editText(const QString &label, const QString &text);
    // For a cell outside the grid, shows a message with the title and returns "".
    QString cellText(int row, int col, const QString &title);
    // Where the filters of the loaded table are stored.
    KOVAVSFDataGridLib::FilterPlace filterPlace() const;
    void emptyGrid();
    // Updates the texts that depend on the result after a change of the language.
    void writeTexts();
    // Saves the user's changes before the control is destroyed. If that fails, the user reads about it later.
    void saveBeforeEnd();

    void filterWritten() override;
    void askFilter(qint32 &cancel, const QString &base) override;
    void fieldsChanged(const QString &statement) override;
    void refresh() override;

private:
    void connectHost();
    void showClickedValue();

public:
    KOVAVSFDataGrid &q;
    KOVAVSFDataGridLib::GridParts parts;
    KOVAVSFDataGridLib::ControlWindow window;
    KOVAVSFDataGridLib::DialogQuestions questions;
    // Outlives this object if one of its commands is running.
    const std::shared_ptr<KOVAVSFDataGridLib::Session> session;
    KOVAVSFDataGridLib::InputEvents input;
    KOVAVSFDataGridLib::GridEvents events;
    KOVAVSFDataGridLib::SingleRecordView singleRecord;

    KOVAVSFDataGridLib::OleColor backColor{KOVAVSFDataGridLib::OleColor::buttonFace};
    std::optional<bool> userMode; // as set by the host
    UseModelChoose useModel = ModelUsing;
    bool errorHint = false;
    QString sqlTemp;
    QString sysDBCnn;
    QString sysDBMode;

    KOVAVSFDataGridLib::CommandInput commands;
    KOVAVSFDataGridLib::PressedPart pressedPart;
    KOVAVSFDataGridLib::CloseGuard closeGuard;
    KOVAVSFDataGridLib::SelectionWatch selection;
    KOVAVSFDataGridLib::ResultFinder finder;
    KOVAVSFDataGridLib::LayoutKeeper layout;
};
