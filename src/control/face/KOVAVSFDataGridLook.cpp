#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "session/commands/CommandKeys.h"

#include <QtWidgets/QPushButton>

// The properties for colours, the font and enabled buttons.

using namespace KOVAVSFDataGridLib;

namespace {

// Whether a widget itself was disabled, and not only a parent.
bool isExplicitlyEnabled(const QWidget &widget)
{
    return !widget.testAttribute(Qt::WA_ForceDisabled);
}

} // namespace

bool KOVAVSFDataGrid::Enabled() const
{
    return isExplicitlyEnabled(*this);
}

void KOVAVSFDataGrid::PutEnabled(bool on)
{
    d->parts.picMainBack->setEnabled(on);
    d->parts.vsfgDataGrid->setEnabled(on);
}

QColor KOVAVSFDataGrid::BackColor() const
{
    return d->backColor.in(palette());
}

void KOVAVSFDataGrid::PutBackColor(const QColor &colour)
{
    const OleColor written = colour.isValid() ? OleColor(colour) : OleColor(OleColor::buttonFace);
    d->backColor = written;
    d->applyBackColor();
    d->notifyWritten("BackColor");
}

void KOVAVSFDataGrid::ResetBackColor()
{
    PutBackColor({});
}

bool KOVAVSFDataGrid::DisplayEable() const
{
    return isExplicitlyEnabled(*d->parts.Toolbar1);
}

void KOVAVSFDataGrid::PutDisplayEable(bool on)
{
    d->parts.Toolbar1->setEnabled(on);
    d->parts.cmdPgae->setEnabled(on);
    if (!on)
        d->parts.Toolbar1->setAllButtonsEnabled(false);
}

bool KOVAVSFDataGrid::FilterEnable() const
{
    return d->parts.Toolbar1->isButtonEnabled(CommandKeys::Filter);
}

void KOVAVSFDataGrid::PutFilterEnable(bool on)
{
    d->parts.Toolbar1->setButtonEnabled(CommandKeys::Filter, on);
}

bool KOVAVSFDataGrid::SortEnable() const
{
    return d->parts.Toolbar1->isButtonEnabled(CommandKeys::Sort);
}

void KOVAVSFDataGrid::PutSortEnable(bool on)
{
    d->parts.Toolbar1->setButtonEnabled(CommandKeys::Sort, on);
}

QColor KOVAVSFDataGrid::DataBackColor() const
{
    return d->parts.vsfgDataGrid->BackColor();
}

void KOVAVSFDataGrid::PutDataBackColor(const QColor &colour)
{
    d->parts.vsfgDataGrid->PutBackColor(colour);
    d->parts.MSFlexGrid1->PutBackColor(colour); // shows one record of the same data
}

QFont KOVAVSFDataGrid::DataFont() const
{
    return d->parts.vsfgDataGrid->font();
}

void KOVAVSFDataGrid::PutDataFont(const QFont &font)
{
    d->parts.vsfgDataGrid->setFont(font);
    d->parts.MSFlexGrid1->setFont(font);
}
