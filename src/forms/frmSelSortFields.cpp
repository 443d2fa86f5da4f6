#include "forms/frmSelSortFields.h"

#include "forms/FormTexts.h"
#include "forms/widgets/FieldCombo.h"
#include "forms/widgets/FlatCmd.h"
#include "forms/widgets/SortList.h"
#include "forms/widgets/TextWidth.h"
#include "query/QueryTexts.h"
#include "sql/Names.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The heading; the written name instead if that is the quoted heading, or if the heading is not unique.
QString captionOf(const OfferedField &field, const QList<OfferedField> &fields)
{
    const bool isQuotedName = field.written.size() == field.name.size() + 2 &&
                              !closingQuote(field.written.front()).isNull() &&
                              lastNamePart(field.written) == field.name;
    const bool isUnique = std::ranges::count(fields, field.name, &OfferedField::name) == 1;
    return isUnique && !isQuotedName ? field.name : field.written;
}

} // namespace

frmSelSortFields::frmSelSortFields(QWidget *parent)
    : SelectionDialog(u"frmSelSortFields"_s, FormTexts::SelectSortTitle, u"picBack"_s, parent),
      m_fields(new FieldCombo(this)),
      m_order(new QComboBox(this)),
      m_add(new FlatCmd(FormTexts::AddSortField, this)),
      m_sort(new SortList(this)),
      m_up(new FlatCmd(FormTexts::MoveSortFieldUp, this)),
      m_down(new FlatCmd(FormTexts::MoveSortFieldDown, this)),
      m_delete(new FlatCmd(FormTexts::DeleteSortField, this)),
      m_hint(new QLabel(this))
{
    m_add->setObjectName(u"cmdAddField"_s);
    m_delete->setObjectName(u"cmdDeleteField"_s);
    m_up->setObjectName(u"cmdUpField"_s);
    m_down->setObjectName(u"cmdDownField"_s);

    m_hint->setObjectName(u"lblHint"_s);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    content()->addWidget(makeAddRow());
    content()->addWidget(makeList(), 1);
    content()->addWidget(m_hint);
    addButtons();

    connect(m_add, &QPushButton::clicked, this, &frmSelSortFields::addField);
    connect(m_delete, &QPushButton::clicked, this, &frmSelSortFields::deleteField);
    connect(m_up, &QPushButton::clicked, this, [this] { moveField(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveField(1); });
    connect(m_fields, &QComboBox::currentTextChanged, this, &frmSelSortFields::enableButtons);
    connect(m_sort, &SortList::itemSelectionChanged, this, &frmSelSortFields::enableButtons);
    connect(m_sort, &SortList::itemDoubleClicked, this, &SortList::flipOrder);
    connectKeys();
    enableButtons();
    m_fields->setFocus();
    resize(widthOfDigits(*this, 64), fontMetrics().height() * 24);
}

QWidget *frmSelSortFields::makeAddRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    const auto add = [&](QComboBox *combo, const QString &name, const QString &text, int stretch) {
        combo->setObjectName(name);
        auto *label = new QLabel(text, row);
        label->setBuddy(combo);
        layout->addWidget(label);
        layout->addWidget(combo, stretch);
    };
    add(m_fields, u"cmbFields"_s, FormTexts::SortField, 1);
    add(m_order, u"cmbOrder"_s, FormTexts::SortOrder, 0);
    layout->addWidget(m_add);
    m_fields->setMinimumContentsLength(12);
    m_order->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return row;
}

QWidget *frmSelSortFields::makeList()
{
    auto *area = new QWidget(this);
    auto *layout = new QHBoxLayout(area);
    layout->setContentsMargins({});
    layout->addWidget(m_sort, 1);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_up);
    buttons->addWidget(m_down);
    buttons->addWidget(m_delete);
    buttons->addStretch();
    layout->addLayout(buttons);
    return area;
}

void frmSelSortFields::connectKeys()
{
    const auto onKey = [this](const QKeySequence &keys, auto act) {
        connect(new QShortcut(keys, m_sort, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
                this, act);
    };
    onKey(Qt::Key_Space, [this] {
        if (m_sort->selectedRow() >= 0)
            SortList::flipOrder(m_sort->topLevelItem(m_sort->selectedRow()));
    });
    onKey(QKeySequence::Delete, [this] { deleteField(); });
    onKey(Qt::ALT | Qt::Key_Up, [this] { moveField(-1); });
    onKey(Qt::ALT | Qt::Key_Down, [this] { moveField(1); });
}

bool frmSelSortFields::AppendListSortFields(const QStringList *PassSortFields)
{
    if (!PassSortFields)
        return false;
    m_sort->clear();
    for (const QString &written : *PassSortFields) {
        SortTerm term = splitSortTerm(written);
        term.field = m_writtenByCaption.key(term.field, term.field);
        m_sort->append(term);
    }
    enableButtons();
    return true;
}

bool frmSelSortFields::AppendListFields(const QStringList *PassAllFields)
{
    if (!PassAllFields || PassAllFields->isEmpty())
        return false;
    m_writtenByCaption.clear();
    m_fields->clear();
    m_fields->addItems(*PassAllFields);
    m_fields->setCurrentIndex(0);
    return true;
}

bool frmSelSortFields::AppendListFields(const QList<OfferedField> &fields)
{
    QStringList captions;
    QHash<QString, QString> writtenByCaption;
    m_whyNotSorted.clear();
    for (const OfferedField &field : fields) {
        const QString caption = captionOf(field, fields);
        captions.append(caption);
        writtenByCaption.insert(caption, field.written);
        if (!field.whyNotSorted.isEmpty())
            m_whyNotSorted.insert(caption, field.whyNotSorted);
    }
    if (!AppendListFields(&captions))
        return false;
    m_writtenByCaption = writtenByCaption;
    return true;
}

bool frmSelSortFields::AppendSortOrder()
{
    m_order->clear();
    m_order->addItems({QueryTexts::Ascending, QueryTexts::Descending});
    m_order->setCurrentIndex(0);
    enableButtons();
    return true;
}

void frmSelSortFields::addField()
{
    if (m_sort->contains(m_fields->currentText()))
        return;
    m_sort->append({m_fields->currentText(), m_order->currentText()});
    m_sort->setCurrentItem(m_sort->topLevelItem(m_sort->topLevelItemCount() - 1));
}

void frmSelSortFields::deleteField()
{
    if (const int row = m_sort->selectedRow(); row >= 0)
        m_sort->removeRow(row);
    enableButtons();
}

void frmSelSortFields::moveField(int by)
{
    const int row = m_sort->selectedRow();
    m_sort->moveRow(row, row + by);
}

void frmSelSortFields::enableButtons()
{
    const int row = m_sort->selectedRow();
    const bool isListed = m_sort->contains(m_fields->currentText());
    const QString whyNot = m_whyNotSorted.value(m_fields->currentText());
    m_add->setEnabled(m_fields->count() > 0 && m_order->count() > 0 && !isListed && whyNot.isEmpty());
    m_add->setToolTip(isListed ? FormTexts::AlreadyInSort : whyNot);
    m_hint->setText(!whyNot.isEmpty()                  ? whyNot
                    : m_sort->topLevelItemCount() == 0 ? FormTexts::NoSortHint
                                                       : FormTexts::SortListHint);
    m_delete->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_sort->topLevelItemCount() - 1);
}

void frmSelSortFields::acceptChoice()
{
    QList<SortTerm> terms = m_sort->terms();
    for (SortTerm &term : terms)
        term.field = m_writtenByCaption.value(term.field, term.field);
    setResultText(composeSortList(terms));
    accept();
}

} // namespace KOVAVSFDataGridLib
