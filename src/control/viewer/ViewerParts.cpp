#include "control/viewer/ViewerParts.h"

#include "control/parts/GridTexts.h"
#include "control/parts/lines/EmptyHint.h"
#include "control/parts/lines/FilterBar.h"
#include "control/parts/lines/FindBar.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/viewer/ViewerTexts.h"
#include "grid/FlexGrid.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 6; // pixels at 96 DPI, around the bars above and below the grid
constexpr int pageDigits = 30;

} // namespace

ViewerParts::ViewerParts(QDialog &window)
    : picBox(new QWidget(&window)),
      fraTitle(new QFrame(picBox)),
      Toolbar1(new GridToolbar(fraTitle)),
      cmdClose(new QPushButton(ViewerTexts::Close, fraTitle)),
      conditions(new FilterBar(picBox)),
      vsfgShowData(new VSFlexGrid(picBox)),
      find(new FindBar(picBox)),
      lblEmpty(new EmptyHint(*vsfgShowData)),
      txtPage(new QLineEdit(picBox)),
      cmdPgae(new QPushButton(GridTexts::GoToPage, picBox)),
      lblPageCount(new QLabel(picBox))
{
    nameParts();
    Toolbar1->hideButtonsNotInViewer();
    layOut(window);
    vsfgShowData->setFrameShape(QFrame::NoFrame);
    txtPage->setAlignment(Qt::AlignRight);
    txtPage->setMaxLength(pageDigits);
    lblPageCount->setTextFormat(Qt::PlainText);
    // Enter is for the page box and must not press a button beside it.
    cmdPgae->setAutoDefault(false);
    cmdClose->setAutoDefault(false);
}

void ViewerParts::nameParts()
{
    picBox->setObjectName(u"picBox"_s);
    fraTitle->setObjectName(u"fraTitle"_s);
    cmdClose->setObjectName(u"cmdClose"_s);
    cmdClose->setToolTip(ViewerTexts::CloseHint);
    vsfgShowData->setObjectName(u"vsfgShowData"_s);
    vsfgShowData->setAccessibleName(ViewerTexts::Data);
    txtPage->setObjectName(u"txtPage"_s);
    txtPage->setAccessibleName(GridTexts::PageBoxHint);
    txtPage->setToolTip(GridTexts::PageBoxHint);
    cmdPgae->setObjectName(u"cmdPgae"_s);
    cmdPgae->setToolTip(ViewerTexts::GoToPageHint);
    lblPageCount->setObjectName(u"lblPageCount"_s);
    Toolbar1->setAccessibleName(ViewerTexts::Title);
}

QRect ViewerParts::foot() const
{
    QRect foot = picBox->rect();
    foot.setTop((find->isHidden() ? vsfgShowData->geometry() : find->geometry()).bottom() + 1);
    return foot;
}

void ViewerParts::layOut(QDialog &window)
{
    auto *title = new QHBoxLayout(fraTitle);
    title->setContentsMargins(0, 0, gap, 0);
    title->addWidget(Toolbar1, 1);
    title->addWidget(cmdClose);

    auto *foot = new QHBoxLayout;
    foot->setContentsMargins(gap, gap, gap, gap);
    foot->setSpacing(gap);
    txtPage->setFixedWidth(txtPage->fontMetrics().horizontalAdvance(u'0') * 8);
    foot->addWidget(txtPage);
    foot->addWidget(cmdPgae);
    foot->addWidget(lblPageCount, 1);

    auto *box = new QVBoxLayout(picBox);
    box->setContentsMargins({});
    box->setSpacing(0);
    box->addWidget(fraTitle);
    box->addWidget(conditions);
    box->addWidget(vsfgShowData, 1);
    box->addWidget(find);
    box->addLayout(foot);

    auto *whole = new QVBoxLayout(&window);
    whole->setContentsMargins({});
    whole->addWidget(picBox);
}

} // namespace KOVAVSFDataGridLib
