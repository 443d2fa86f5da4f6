#include "filter/rows/FilterGroupHead.h"

#include "filter/FilterTexts.h"
#include "filter/rows/FilterGrip.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QToolButton *newButton(const QString &text, const QString &toolTip, QWidget *parent)
{
    auto *const button = new QToolButton(parent);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

FilterGroupHead::FilterGroupHead(QWidget *parent)
    : QWidget(parent),
      m_grip(new FilterGrip(this)),
      m_kind(new QComboBox(this)),
      m_add(newButton(FilterTexts::AddToGroup, FilterTexts::AddToGroupTip, this)),
      m_dissolve(newButton(FilterTexts::Dissolve, FilterTexts::DissolveTip, this))
{
    m_kind->addItem(FilterTexts::GroupAll, static_cast<int>(FilterNode::Kind::All));
    m_kind->addItem(FilterTexts::GroupAny, static_cast<int>(FilterNode::Kind::Any));
    m_kind->addItem(FilterTexts::GroupNone, static_cast<int>(FilterNode::Kind::None));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    for (QWidget *part : std::initializer_list<QWidget *>{m_grip, m_kind, m_add, m_dissolve})
        row->addWidget(part);
    row->addStretch();
    connect(m_kind, &QComboBox::currentIndexChanged, this, &FilterGroupHead::kindChanged);
    connect(m_add, &QToolButton::clicked, this, &FilterGroupHead::addWanted);
    connect(m_dissolve, &QToolButton::clicked, this, &FilterGroupHead::dissolveWanted);
}

void FilterGroupHead::setPlace(int number, int level, FilterNode::Kind kind)
{
    const QString suffix = QString::number(number);
    m_grip->setObjectName(u"grpMove"_s + suffix);
    m_kind->setObjectName(u"cmbGroup"_s + suffix);
    m_add->setObjectName(u"cmdAddToGroup"_s + suffix);
    m_dissolve->setObjectName(u"cmdDissolve"_s + suffix);
    const auto name = [&suffix](QWidget &part, const Text &said) {
        part.setAccessibleName(FilterTexts::PartOfGroup.arg(said(), suffix));
    };
    name(*m_kind, FilterTexts::GroupKind);
    name(*m_add, FilterTexts::AddToGroupTip);
    name(*m_dissolve, FilterTexts::DissolveTip);
    m_grip->setAccessibleName(FilterTexts::MoveGroup.arg(number).arg(level));
    m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(kind)));
    m_grip->setVisible(level > 0);
    m_dissolve->setVisible(level > 0);
    layout()->setContentsMargins(indentOf(*this, level), 0, 0, 0);
}

FilterNode::Kind FilterGroupHead::kind() const
{
    return static_cast<FilterNode::Kind>(m_kind->currentData().toInt());
}

QWidget *FilterGroupHead::followInTabOrder(QWidget *previous)
{
    for (QWidget *part : std::initializer_list<QWidget *>{m_grip, m_kind, m_add, m_dissolve}) {
        setTabOrder(previous, part);
        previous = part;
    }
    return previous;
}

QWidget *FilterGroupHead::lastPart() const
{
    return m_dissolve;
}

int indentOf(const QWidget &widget, int level)
{
    return level * widget.fontMetrics().height() * 3 / 2;
}

} // namespace KOVAVSFDataGridLib
