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

// What the public class keeps behind its face: the session, what shows it and what drives it, and the
// properties that are the control's own.
class KOVAVSFDataGrid::Private final : public KOVAVSFDataGridLib::HostEvents
{
public:
    explicit Private(KOVAVSFDataGrid &control);
    ~Private() override;

    // Stores a property's value and reports that it was written, even when it is the same. False when the
    // host has deleted the control at that.
    template<typename Value>
    bool put(Value &property, const Value &value, const char *name)
    {
        property = value;
        return notifyWritten(name);
    }
    bool notifyWritten(const char *name);

    bool isUserMode() const;
    void applyBackColor();
    // Hands the middle-tier switch to the connection factory, which may be another one by now.
    void setThreeTierSwitch() const;
    void focusGrid() const;
    // Runs the steps one after the other. A failing one is reported with the question whether to continue:
    // Yes goes on with the next, No ends.
    void runSteps(QStringView title, std::initializer_list<std::function<void()>> steps);
    void showText(QStringView title, const QString &label, const QString &text);
    // The text that the user accepted with editing allowed; nothing otherwise.
    std::optional<QString> editText(const QString &label, const QString &text);
    // For a cell outside the grid a message with the title, and "".
    QString cellText(int row, int col, const QString &title);
    // Where the filters of the loaded table are kept.
    KOVAVSFDataGridLib::FilterPlace filterPlace() const;
    void emptyGrid();
    // Writes what depends on the result once more, after a change of the language.
    void writeTexts();
    // Saves what the user wrote into a record before the control goes; what can't be saved he reads later.
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
    // Outlives this object while one of its commands runs.
    const std::shared_ptr<KOVAVSFDataGridLib::Session> session;
    KOVAVSFDataGridLib::InputEvents input;
    KOVAVSFDataGridLib::GridEvents events;
    KOVAVSFDataGridLib::SingleRecordView singleRecord;

    KOVAVSFDataGridLib::OleColor backColor{KOVAVSFDataGridLib::OleColor::buttonFace};
    std::optional<bool> userMode; // as the host said
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
