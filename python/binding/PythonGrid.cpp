#include "PythonGrid.h"

#include <KOVAVSFDataGridLib/ado/Adodc.h>

PythonGrid::PythonGrid(QWidget *parent) : KOVAVSFDataGrid(parent)
{
    // PyQt looks types up by these names.
    qRegisterMetaType<MouseArguments>("MouseArguments");
    qRegisterMetaType<KeyArguments>("KeyArguments");
    qRegisterMetaType<ErrorArguments>("ErrorArguments");
    qRegisterMetaType<FilterArguments>("FilterArguments");

    // A handler may delete the grid, so after a signal only the arguments are used.
    const auto forwardMouse = [this](auto from, auto to) {
        connect(this, from, this, [this, to](qint16 &Button, qint16 &Shift, float &x, float &y) {
            const MouseArguments arguments({Button, Shift, x, y});
            Q_EMIT(this->*to)(arguments);
            Button = arguments->Button;
            Shift = arguments->Shift;
            x = arguments->x;
            y = arguments->y;
        });
    };
    forwardMouse(&KOVAVSFDataGrid::DataMouseDown, &PythonGrid::DataMouseDown);
    forwardMouse(&KOVAVSFDataGrid::DataMouseUp, &PythonGrid::DataMouseUp);
    forwardMouse(&KOVAVSFDataGrid::DataMouseMove, &PythonGrid::DataMouseMove);
    forwardMouse(&KOVAVSFDataGrid::MouseUp, &PythonGrid::MouseUp);
    connect(this, &KOVAVSFDataGrid::Error, this, [this](qint16 DataError, qint16 &Response) {
        const ErrorArguments arguments({DataError, Response});
        Q_EMIT Error(arguments);
        Response = arguments->Response;
    });
    connect(this, &KOVAVSFDataGrid::DataKeyDown, this, [this](qint16 &KeyCode, qint16 &Shift) {
        const KeyArguments arguments({KeyCode, Shift});
        Q_EMIT DataKeyDown(arguments);
        KeyCode = arguments->KeyCode;
        Shift = arguments->Shift;
    });
    connect(this, &KOVAVSFDataGrid::QurryFilter, this, [this](qint32 &Cancel, const QString &strLastFilter) {
        const FilterArguments arguments({Cancel, strLastFilter});
        Q_EMIT QurryFilter(arguments);
        Cancel = arguments->Cancel;
    });
}

Result PythonGrid::result()
{
    const auto *control = qobject_cast<ADODB::Adodc *>(GetBond());
    return Result(control ? control->Recordset() : nullptr);
}
