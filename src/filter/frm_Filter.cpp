#include "filter/frm_Filter.h"

#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "forms/Contrast.h"
#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/widgets/GradualControl.h"
#include "forms/widgets/StandardPicture.h"
#include "forms/widgets/TextWidth.h"

#include <QtGui/QIcon>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int pictureSize = 16; // pixels at 96 DPI

} // namespace

frm_Filter::frm_Filter(QWidget *parent)
    : QDialog(parent), m_builder(new SetFilter(this)), m_picture(new QLabel(this))
{
    makeHintsReadable(*this);
    setObjectName(u"frm_Filter"_s);
    setWindowTitle(FilterTexts::Title);
    setSizeGripEnabled(true);
    m_builder->setObjectName(u"SetFilter1"_s);
    auto *back = new QFrame(this);
    back->setObjectName(u"pic_BackGround1"_s);
    auto *backRows = new QVBoxLayout(back);
    backRows->setContentsMargins({});
    backRows->addWidget(m_builder);

    auto *filter = new QPushButton(FilterTexts::Filter, this);
    filter->setObjectName(u"cmd_Filter"_s);
    filter->setDefault(true);
    auto *cancel = new QPushButton(FormTexts::Cancel, this);
    cancel->setObjectName(u"cmd_Cancel"_s);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(filter);
    buttons->addWidget(cancel);

    const int margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    auto *body = new QVBoxLayout;
    body->setContentsMargins(margin, 0, margin, margin);
    body->addWidget(back, 1);
    body->addLayout(buttons);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(makeBand());
    rows->addLayout(body);
    // Wide enough for two dates and the parts around them, but never wider than the screen.
    const int comfortable = widthOfDigits(*this, 150);
    const int margins = 2 * margin;
    resize(
        std::max(sizeHint().width(), std::min(comfortable, screen()->availableGeometry().width() - margins)),
        fontMetrics().height() * 28);

    connect(filter, &QPushButton::clicked, this, &frm_Filter::filter);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget *frm_Filter::makeBand()
{
    auto *band = new GradualControl(this);
    band->setObjectName(u"GradualControl1"_s);
    m_picture->setObjectName(u"Picture2"_s);
    m_picture->setPixmap(standardPicture(*this, QStyle::SP_FileDialogContentsView, pictureSize));
    auto *explanation = new QLabel(FilterTexts::Explanation, band);
    explanation->setObjectName(u"Label2"_s);
    QFont bold = explanation->font();
    bold.setBold(true);
    explanation->setFont(bold);
    auto *row = new QHBoxLayout(band);
    row->addWidget(m_picture);
    row->addWidget(explanation, 1);
    return band;
}

void frm_Filter::SetPicture(const QIcon &picture)
{
    if (!picture.isNull())
        m_picture->setPixmap(picture.pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
}

// Esc is easily pressed by accident; the buttons are not.
void frm_Filter::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel) && m_builder->IsChanged() &&
        !Messages::ask(this, FilterTexts::GiveUp, FilterTexts::Title, QMessageBox::Question, QMessageBox::No))
        return;
    QDialog::keyPressEvent(event);
}

void frm_Filter::filter()
{
    m_strFilterCondition = m_builder->ConditionText();
    if (!m_strFilterCondition.isEmpty())
        accept();
}

} // namespace KOVAVSFDataGridLib
