#include "control/parts/GridParts.h"

#include "ado/Adodc.h"
#include "control/parts/GridTexts.h"
#include "control/parts/lines/ElidedLabel.h"
#include "control/parts/lines/EmptyHint.h"
#include "control/parts/lines/FilterBar.h"
#include "control/parts/lines/FindBar.h"
#include "control/parts/lines/StatementLine.h"
#include "control/parts/lines/SummaryLine.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "filter/ValueEdit.h"
#include "forms/Contrast.h"
#include "forms/widgets/Named.h"
#include "forms/widgets/TickBoxes.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "language/Language.h"

#include <QtWidgets/QFrame>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int gridLeft = 7;         // twips
constexpr int gridWidthMargin = 67; // twips
constexpr int footGap = 90;         // twips, between the parts of the foot

} // namespace

GridParts::GridParts(QWidget &control)
    : picMainBack(named(new QWidget(&control), u"picMainBack"_s)),
      Toolbar1(new GridToolbar(picMainBack)),
      conditions(new FilterBar(picMainBack)),
      vsfgDataGrid(named(new VSFlexGrid(picMainBack), gridName)),
      find(new FindBar(picMainBack)),
      lblEmpty(new EmptyHint(*vsfgDataGrid)),
      MSFlexGrid1(named(new MSFlexGrid(picMainBack), u"MSFlexGrid1"_s)),
      txtEdit(named(new ValueEdit(picMainBack), u"txtEdit"_s)),
      txtPage(named(new QLineEdit(picMainBack), u"txtPage"_s)),
      cmdPgae(named(new QPushButton(picMainBack), u"cmdPgae"_s)),
      lblFieldCount(named(new ElidedLabel(picMainBack), u"lblFieldCount"_s)),
      lblSummary(new SummaryLine(picMainBack)),
      cmdSaveRecord(named(new QPushButton(picMainBack), u"cmdSaveRecord"_s)),
      lblStatement(new StatementLine(picMainBack)),
      CheckSelAllRow(named(new CheckBox(picMainBack), u"CheckSelAllRow"_s)),
      Adodc1(named(new ADODB::Adodc(&control), u"Adodc1"_s))
{
    picMainBack->setAutoFillBackground(true);
    makeHintsReadable(*picMainBack);
    for (QFrame *&divider : m_dividers) {
        divider = new QFrame(picMainBack);
        divider->setFrameShape(QFrame::VLine);
        divider->setFrameShadow(QFrame::Plain);
        divider->setForegroundRole(QPalette::PlaceholderText);
    }
    MSFlexGrid1->hide();
    txtEdit->hide();
    cmdSaveRecord->setAutoDefault(false);
    cmdSaveRecord->setFocusPolicy(Qt::TabFocus); // a mouse click does not move the focus
    cmdSaveRecord->hide();
    txtPage->setAlignment(Qt::AlignRight);
    Language::keepTranslated(control, [this] { writeTexts(); });
    QObject::connect(find, &FindBar::shownOrHidden, &control,
                     [this, &control] { layOut(control.width(), control.height()); });
}

void GridParts::writeTexts() const
{
    txtPage->setAccessibleName(GridTexts::PageBoxHint);
    txtPage->setToolTip(GridTexts::PageBoxHint);
    cmdPgae->setText(GridTexts::GoToPage);
    cmdPgae->setToolTip(GridTexts::GoToPageTip);
    cmdSaveRecord->setText(GridTexts::SaveRecord);
    cmdSaveRecord->setToolTip(GridTexts::SaveRecordTip);
    cmdSaveRecord->setAccessibleName(GridTexts::SaveRecordTip);
    CheckSelAllRow->setText(GridTexts::SelectWholeRows);
    Toolbar1->setAccessibleName(GridTexts::ToolbarName);
    vsfgDataGrid->setAccessibleName(GridTexts::GridName);
    MSFlexGrid1->setAccessibleName(GridTexts::SingleRecordName);
}

void GridParts::layOut(int width, int height)
{
    picMainBack->setGeometry(0, 0, width, height);
    const int toolbarHeight = Toolbar1->sizeHint().height();
    Toolbar1->setGeometry(0, 0, width, toolbarHeight);

    const int barHeight = conditions->isHidden() ? 0 : conditions->sizeHint().height();
    conditions->setGeometry(0, toolbarHeight, width, barHeight);
    const int above = toolbarHeight + barHeight;
    const int foot = footHeight();
    const int left = Twips::toPixels(gridLeft, *picMainBack);
    const int gridWidth = width - Twips::toPixels(gridWidthMargin, *picMainBack);
    const int findHeight = find->isHidden() ? 0 : find->heightForWidth(width);
    const int gridHeight = std::max(0, height - above - findHeight - foot);
    vsfgDataGrid->setGeometry(left, above, gridWidth, gridHeight);
    find->setGeometry(0, above + gridHeight, width, findHeight);
    MSFlexGrid1->setGeometry(vsfgDataGrid->geometry());
    txtEdit->hide();
    layOutFoot();
}

void GridParts::describeGrid() const
{
    QStringList parts{lblStatement->place()};
    if (!lblSummary->isHidden())
        parts.append(lblSummary->accessibleName());
    if (!conditions->conditions().isEmpty())
        parts.append(GridTexts::FilteredBy.arg(conditions->conditions().join(GridTexts::BetweenSummaries)));
    parts.removeAll(QString());
    const QString description = parts.join(GridTexts::BetweenDescriptions);
    if (description != vsfgDataGrid->accessibleDescription())
        vsfgDataGrid->setAccessibleDescription(description);
}

QRect GridParts::foot() const
{
    const int height = footHeight();
    return {0, picMainBack->height() - height, picMainBack->width(), height};
}

int GridParts::footHeight() const
{
    return std::max({txtPage->sizeHint().height(), cmdPgae->sizeHint().height(),
                     CheckSelAllRow->sizeHint().height()}) +
           gap();
}

int GridParts::gap() const
{
    return Twips::toPixels(footGap, *picMainBack);
}

// The page box, its button, the label, the selection's summary and the statement from the left, the check box
// at the right edge. When it gets narrow, the statement gives way, then the summary, whose values are in a
// menu then, then the label, then box and button, and the check box last. What saves a record, and the place
// that tells it isn't saved, take their room from all of these but the check box.
void GridParts::layOutFoot() const
{
    const QRect strip = foot();
    const int top = strip.top();
    const int width = strip.width();
    const int gap = this->gap();
    const int partHeight = strip.height() - gap;
    int x = gap;
    const auto place = [&](QWidget *part, int partWidth) {
        part->setGeometry(x, top + gap / 2, partWidth, partHeight);
        x += partWidth + gap;
    };
    std::size_t dividers = 0;
    // A line between two gaps.
    const auto divide = [&](int at) {
        m_dividers[dividers]->setGeometry(at, top + gap, 1, partHeight - gap);
        m_dividers[dividers++]->show();
    };
    const int digit = txtPage->fontMetrics().horizontalAdvance(u'0');
    const int caption = cmdPgae->fontMetrics().horizontalAdvance(cmdPgae->text());
    const bool canSave = !cmdSaveRecord->isHidden();
    const int saveNeeds =
        canSave ? cmdSaveRecord->sizeHint().width() + lblStatement->smallestWidth() + 4 * gap : 0;
    const bool isNarrow =
        8 * digit + cmdPgae->sizeHint().width() + CheckSelAllRow->sizeHint().width() + 4 * gap + saveNeeds >
        width;
    place(txtPage, (isNarrow ? 4 : 8) * digit);
    place(cmdPgae, isNarrow ? caption + 2 * gap : cmdPgae->sizeHint().width());
    const int checkWidth = std::min(CheckSelAllRow->sizeHint().width(), width - gap - x);
    const int room = std::max(0, width - checkWidth - 3 * gap - x);
    const int saveWidth = canSave ? std::min(room, cmdSaveRecord->sizeHint().width()) : 0;
    const int saveRoom = saveWidth > 0 ? saveWidth + 2 * gap : 0;
    const int placeRoom = canSave ? lblStatement->widthOfPlace() + gap : 0;
    const bool isSummed = !lblSummary->isHidden();
    const int leastOfSummary = isSummed ? lblSummary->widthFor(0) + 2 * gap : 0;
    const int labelWidth =
        std::clamp(room - saveRoom - placeRoom - leastOfSummary, 0, lblFieldCount->sizeHint().width());
    const bool hasLabel = labelWidth > 0;
    place(lblFieldCount, labelWidth);
    if (!hasLabel)
        x -= gap;
    int rest = std::max(0, room - labelWidth - (hasLabel ? gap : 0));
    // A part behind a divider.
    const auto placeNext = [&](QWidget *part, int partWidth) {
        divide(x);
        x += gap;
        place(part, partWidth);
        rest = std::max(0, rest - partWidth - 2 * gap);
    };
    if (isSummed) {
        // Where there is room, it leaves some to the record's place.
        constexpr qsizetype mainValues = 3;
        const int most = rest - saveRoom - gap;
        const int besides = lblStatement->fontMetrics().horizontalAdvance(lblStatement->place() +
                                                                          GridTexts::BeforeStatement + u'…') +
                            3 * gap;
        const bool leavesPlace = most - besides >= lblSummary->widthFor(mainValues);
        placeNext(lblSummary,
                  std::clamp(leavesPlace ? most - besides : most, 0, lblSummary->sizeHint().width()));
    }
    if (saveWidth > 0 && (hasLabel || isSummed)) {
        placeNext(cmdSaveRecord, saveWidth);
    } else if (saveWidth > 0) {
        place(cmdSaveRecord, saveWidth);
        rest = std::max(0, rest - saveWidth - gap);
    }
    if (saveWidth > 0 || rest <= gap)
        place(lblStatement, rest);
    else
        placeNext(lblStatement, rest - gap);
    x = width - checkWidth - gap;
    if (room > 0)
        divide(x - gap);
    place(CheckSelAllRow, checkWidth);
    for (; dividers < m_dividers.size(); ++dividers)
        m_dividers[dividers]->hide();
}

} // namespace KOVAVSFDataGridLib
