#include "control/face/KOVAVSFDataGrid.h"

#include "ado/Notifications.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/face/PropertyBag.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "session/layout/ShownColumns.h"

#include <QtGui/QResizeEvent>
#include <QtWidgets/QDialog>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// So that handlers connected by name can receive arguments passed by reference.
void registerReferenceTypes()
{
    QMetaType::registerNormalizedTypedef("qint16&", QMetaType::fromType<qint16>());
    QMetaType::registerNormalizedTypedef("qint32&", QMetaType::fromType<qint32>());
    QMetaType::registerNormalizedTypedef("float&", QMetaType::fromType<float>());
}

} // namespace

KOVAVSFDataGrid::KOVAVSFDataGrid(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>(*this))
{
    registerReferenceTypes();
    setMinimumSize(Twips::toPixels(GridParts::minimumWidth, *this),
                   Twips::toPixels(GridParts::minimumHeight, *this));
    setFocusProxy(d->parts.vsfgDataGrid); // if a host sets the focus to the control, it means the grid
    d->applyBackColor();
    CloseAllAction();
}

KOVAVSFDataGrid::~KOVAVSFDataGrid()
{
    d->saveBeforeEnd();
    // Dialogs that are open now are on the stack of their callers. They are cancelled, and must not be
    // deleted again as children of this control.
    const auto dialogs = findChildren<QDialog *>();
    for (QDialog *dialog : dialogs) {
        dialog->setParent(nullptr, dialog->windowFlags());
        dialog->done(QDialog::Rejected);
    }
}

void KOVAVSFDataGrid::InitProperties()
{
    LoadRequest &texts = d->session->texts;
    texts.sqlShow.clear();
    texts.sqlPartDisplay.clear();
    texts.sqlFilter.clear();
    texts.sqlSort.clear();
    d->useModel = ModelUsing;
    d->session->fields().putView(FieldView::All);
    d->emptyGrid();
}

void KOVAVSFDataGrid::ReadProperties(const PropertyBag &bag)
{
    d->backColor = OleColor(bag.ReadProperty(u"BackColor"_s, OleColor::buttonFace).toUInt());
    d->applyBackColor();
}

void KOVAVSFDataGrid::WriteProperties(PropertyBag &bag) const
{
    bag.WriteProperty(u"BackColor"_s, d->backColor.number(), OleColor::buttonFace);
}

QSize KOVAVSFDataGrid::sizeHint() const
{
    return minimumSize() * 3;
}

void KOVAVSFDataGrid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const ADODB::Notifications::Hold hold(
        d->session->notifications()); // its destructor runs last: a host may delete this
    // Before the editor is closed. A text that does not fit is only hidden.
    d->singleRecord.editor().commit();
    d->parts.layOut(event->size().width(), event->size().height());
}

void KOVAVSFDataGrid::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        d->applyBackColor();
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        const ADODB::Notifications::Hold hold(d->session->notifications()); // as above
        d->singleRecord.editor().commit();
        d->parts.layOut(width(), height());
    } else if (event->type() == QEvent::LanguageChange)
        d->writeTexts();
}
