#include "forms/frmSelSortFields.h"

#include "forms/FlatCmd.h"
#include "forms/FormTexts.h"
#include "query/QueryTexts.h"
#include "query/SelectionText.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTreeWidget>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

frmSelSortFields::frmSelSortFields(QWidget *parent)
    : SelectionDialog(u"frmSelSortFields"_s, FormTexts::SelectSortTitle, u"picBack"_s, parent),
      m_fields(new QComboBox(this)),
      m_order(new QComboBox(this)),
      m_add(new QPushButton(FormTexts::AddSortField, this)),
      m_sort(new QTreeWidget(this)),
      m_up(new FlatCmd(FormTexts::MoveSortFieldUp, this)),
      m_down(new FlatCmd(FormTexts::MoveSortFieldDown, this)),
      m_delete(new FlatCmd(FormTexts::DeleteSortField, this))
{
    m_add->setObjectName(u"cmdAddField"_s);
    m_add->setAutoDefault(false);
    m_delete->setObjectName(u"cmdDeleteField"_s);
    m_up->setObjectName(u"cmdUpField"_s);
    m_down->setObjectName(u"cmdDownField"_s);

    auto *hint = new QLabel(FormTexts::SortListHint, this);
    hint->setForegroundRole(QPalette::PlaceholderText);
    content()->addWidget(makeAddRow());
    content()->addWidget(makeList(), 1);
    content()->addWidget(hint);
    addButtons();

    connect(m_add, &QPushButton::clicked, this, &frmSelSortFields::addField);
    connect(m_delete, &QPushButton::clicked, this, &frmSelSortFields::deleteField);
    connect(m_up, &QPushButton::clicked, this, [this] { moveField(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveField(1); });
    connect(m_fields, &QComboBox::currentTextChanged, this, &frmSelSortFields::enableButtons);
    connect(m_sort, &QTreeWidget::itemSelectionChanged, this, &frmSelSortFields::enableButtons);
    connect(m_sort, &QTreeWidget::itemDoubleClicked, this, &frmSelSortFields::flipOrder);
    // A drag takes the row out and puts it in again.
    connect(m_sort->model(), &QAbstractItemModel::rowsInserted, this, &frmSelSortFields::enableButtons);
    connectKeys();
    enableButtons();
    m_fields->setFocus();
    resize(fontMetrics().averageCharWidth() * 64, fontMetrics().height() * 24);
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
    m_fields->setMaxVisibleItems(20);
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

    m_sort->setObjectName(u"lvSortFields"_s);
    m_sort->setAccessibleName(FormTexts::SelectSortTitle);
    m_sort->setHeaderLabels({FormTexts::SortFieldColumn, FormTexts::OrderColumn});
    m_sort->header()->setStretchLastSection(false);
    m_sort->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_sort->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_sort->setRootIsDecorated(false);
    m_sort->setUniformRowHeights(true);
    m_sort->setAlternatingRowColors(true);
    m_sort->setDragDropMode(QAbstractItemView::InternalMove);
    m_sort->setExpandsOnDoubleClick(false);
    return area;
}

void frmSelSortFields::connectKeys()
{
    const auto onKey = [this](const QKeySequence &keys, auto act) {
        connect(new QShortcut(keys, m_sort, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
                this, act);
    };
    onKey(Qt::Key_Space, [this] {
        if (selectedRow() >= 0)
            flipOrder(m_sort->currentItem());
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
    for (const QString &term : *PassSortFields) {
        const SortTerm split = SplitSortTerm(term);
        appendRow(split.field, split.orderWord);
    }
    enableButtons();
    return true;
}

bool frmSelSortFields::AppendListFields(const QStringList *PassAllFields)
{
    if (!PassAllFields || PassAllFields->isEmpty())
        return false;
    m_fields->clear();
    m_fields->addItems(*PassAllFields);
    m_fields->setCurrentIndex(0);
    return true;
}

bool frmSelSortFields::AppendSortOrder()
{
    m_order->clear();
    m_order->addItems({QueryTexts::Ascending(), QueryTexts::Descending()});
    m_order->setCurrentIndex(0);
    enableButtons();
    return true;
}

void frmSelSortFields::appendRow(const QString &field, const QString &orderWord)
{
    auto *item = new QTreeWidgetItem({field, orderWord});
    // Nothing can be dropped on a row, only between rows.
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                   Qt::ItemNeverHasChildren);
    m_sort->addTopLevelItem(item);
}

bool frmSelSortFields::isInSort(const QString &field) const
{
    return !m_sort->findItems(field, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty();
}

int frmSelSortFields::selectedRow() const
{
    const auto selected = m_sort->selectedItems();
    return selected.isEmpty() ? -1 : m_sort->indexOfTopLevelItem(selected.constFirst());
}

void frmSelSortFields::addField()
{
    if (isInSort(m_fields->currentText()))
        return;
    appendRow(m_fields->currentText(), m_order->currentText());
    m_sort->setCurrentItem(m_sort->topLevelItem(m_sort->topLevelItemCount() - 1));
}

void frmSelSortFields::deleteField()
{
    if (const int row = selectedRow(); row >= 0)
        delete m_sort->takeTopLevelItem(row);
    enableButtons();
}

void frmSelSortFields::moveField(int by)
{
    const int row = selectedRow();
    const int target = row + by;
    if (row < 0 || target < 0 || target >= m_sort->topLevelItemCount())
        return;
    QTreeWidgetItem *item = m_sort->takeTopLevelItem(row);
    m_sort->insertTopLevelItem(target, item);
    m_sort->setCurrentItem(item);
}

void frmSelSortFields::flipOrder(QTreeWidgetItem *item)
{
    const bool isDescending = item->text(1) == QueryTexts::Descending();
    item->setText(1, isDescending ? QueryTexts::Ascending() : QueryTexts::Descending());
}

void frmSelSortFields::enableButtons()
{
    const int row = selectedRow();
    const bool isListed = isInSort(m_fields->currentText());
    m_add->setEnabled(m_fields->count() > 0 && m_order->count() > 0 && !isListed);
    m_add->setToolTip(isListed ? FormTexts::AlreadyInSort : QString());
    m_delete->setEnabled(row >= 0);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_sort->topLevelItemCount() - 1);
}

void frmSelSortFields::takeChoice()
{
    QList<SortTerm> terms;
    for (int row = 0; row < m_sort->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_sort->topLevelItem(row);
        terms.append({item->text(0), item->text(1)});
    }
    setResultText(ComposeSortList(terms));
    accept();
}

} // namespace KOVAVSFDataGridLib
