#pragma once

#include "EventArguments.h"
#include "Result.h"

#include <KOVAVSFDataGrid>

// The control for Python. Events with reference arguments
// carry an object instead, under the same names.
class PythonGrid : public KOVAVSFDataGrid
{
    Q_OBJECT

public:
    explicit PythonGrid(QWidget *parent = nullptr);

    // The open result; a closed one if there is none.
    Result result();

    // Public, because the binding forwards calls from Python to them.
    using KOVAVSFDataGrid::changeEvent;
    using KOVAVSFDataGrid::resizeEvent;

Q_SIGNALS:
    void DataMouseDown(const MouseArguments &arguments);
    void DataMouseUp(const MouseArguments &arguments);
    void DataMouseMove(const MouseArguments &arguments);
    void Error(const ErrorArguments &arguments);
    void DataKeyDown(const KeyArguments &arguments);
    void MouseUp(const MouseArguments &arguments);
    void QurryFilter(const FilterArguments &arguments);
};
