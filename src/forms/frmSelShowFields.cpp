#include "forms/frmSelShowFields.h"

#include "forms/FormTexts.h"
#include "forms/Messages.h"
#include "forms/widgets/FlatCmd.h"
#include "forms/widgets/GradualControl.h"
#include "forms/widgets/TextWidth.h"
#include "forms/widgets/TickBoxes.h"
#include "query/conditions/SelectionText.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int writtenRole =
    Qt::UserRole; // what a chosen field adds to the result; empty: only its name is known

} // namespace

frmSelShowFields::frmSelShowFields(QWidget *parent)
    : SelectionDialog(u"frmSelShowFields"_s, FormTexts::SelectFieldsTitle, u"GradualControl1"_s, parent),
      m_list(new QTreeWidget),
      m_count(new QLabel)
{
    content()->addWidget(makeSearchRow());
    content()->addWidget(makeList(), 1);
    content()->addWidget(makeCheckRow());
    auto *line = new GradualControl(this);
    line->setObjectName(u"GradualControl3"_s);
    line->setFixedHeight(2);
    content()->addWidget(line);
    addButtons();

    connect(m_list, &QTreeWidget::itemChanged, this, &frmSelShowFields::countChecks);
    countChecks();
    m_list->setFocus();
    resize(widthOfDigits(*this, 56), fontMetrics().height() * 28);
}

QWidget *frmSelShowFields::makeSearchRow()
{
    auto *row = new QWidget(this);
    m_search = new QLineEdit(row);
    m_search->setObjectName(u"txtSearchField"_s);
    m_search->setPlaceholderText(FormTexts::SearchFieldHint);
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    auto *label = new QLabel(FormTexts::SearchField, row);
    label->setBuddy(m_search);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_search, 1);
    connect(m_search, &QLineEdit::textChanged, this, &frmSelShowFields::listOnly);
    return row;
}

QWidget *frmSelShowFields::makeList()
{
    auto *back = new QFrame(this);
    back->setObjectName(u"picListViewBack"_s);
    auto *layout = new QVBoxLayout(back);
    layout->setContentsMargins({});
    layout->addWidget(m_list);

    m_list->setItemDelegate(new TickDelegate(m_list));
    m_list->setObjectName(u"lvSelField"_s);
    m_list->setAccessibleName(FormTexts::FieldNameColumn);
    m_list->setHeaderLabel(FormTexts::FieldNameColumn);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    return back;
}

QWidget *frmSelShowFields::makeCheckRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    const auto add = [&](const QString &name, const QString &text, bool (*change)(bool)) {
        auto *button = new FlatCmd(text, row);
        button->setObjectName(name);
        button->setToolTip(FormTexts::ChecksActOnListed);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, change] { changeChecks(change); });
        return button;
    };
    m_all = add(u"cmdCheckAll"_s, FormTexts::CheckAll, [](bool) { return true; });
    m_none = add(u"cmdCheckNone"_s, FormTexts::CheckNone, [](bool) { return false; });
    m_invert = add(u"cmdCheckInvert"_s, FormTexts::CheckInvert, [](bool isChecked) { return !isChecked; });
    m_count->setObjectName(u"lblCheckedCount"_s);
    layout->addStretch();
    layout->addWidget(m_count);
    return row;
}

bool frmSelShowFields::AppendListFields(const QStringList *PassAllFields)
{
    if (!PassAllFields)
        return false;
    QList<OfferedField> fields;
    for (const QString &name : *PassAllFields)
        fields.append({name, {}});
    AppendListFields(fields);
    return true;
}

void frmSelShowFields::AppendListFields(const QList<OfferedField> &fields)
{
    {
        const QSignalBlocker quiet(m_list);
        m_list->clear();
        for (const OfferedField &field : fields) {
            auto *item = new QTreeWidgetItem(m_list, {field.name});
            item->setData(0, writtenRole, field.written);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                           Qt::ItemNeverHasChildren);
            item->setCheckState(0, Qt::Unchecked);
        }
    }
    listOnly(m_search->text());
}

bool frmSelShowFields::SetListFieldCheck(const QStringList *PassPartFields)
{
    if (!PassPartFields)
        return false;
    {
        const QSignalBlocker quiet(m_list);
        QStringList texts;
        for (const QTreeWidgetItem *item : items())
            texts.append(item->text(0));
        const QList<bool> checks = KOVAVSFDataGridLib::SetListFieldCheck(texts, *PassPartFields);
        for (int row = 0; row < checks.size(); ++row) {
            if (checks.at(row))
                m_list->topLevelItem(row)->setCheckState(0, Qt::Checked);
        }
    }
    countChecks();
    return true;
}

QList<QTreeWidgetItem *> frmSelShowFields::items() const
{
    QList<QTreeWidgetItem *> all;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        all.append(m_list->topLevelItem(row));
    return all;
}

void frmSelShowFields::listOnly(const QString &part)
{
    for (QTreeWidgetItem *item : items())
        item->setHidden(!item->text(0).contains(part.trimmed(), Qt::CaseInsensitive));
    const auto *current = m_list->currentItem();
    if (!current || current->isHidden())
        m_list->setCurrentItem(firstListed());
    countChecks();
}

QTreeWidgetItem *frmSelShowFields::firstListed() const
{
    const auto all = items();
    const auto found = std::ranges::find_if(all, [](const auto *item) { return !item->isHidden(); });
    return found == all.end() ? nullptr : *found;
}

void frmSelShowFields::changeChecks(bool (*change)(bool isChecked))
{
    {
        const QSignalBlocker quiet(m_list);
        for (QTreeWidgetItem *item : items()) {
            if (!item->isHidden())
                item->setCheckState(0,
                                    change(item->checkState(0) == Qt::Checked) ? Qt::Checked : Qt::Unchecked);
        }
    }
    countChecks();
}

void frmSelShowFields::countChecks()
{
    int checked = 0;
    int listed = 0;
    int listedAndChecked = 0;
    for (const QTreeWidgetItem *item : items()) {
        const bool isChecked = item->checkState(0) == Qt::Checked;
        checked += isChecked;
        listed += !item->isHidden();
        listedAndChecked += isChecked && !item->isHidden();
    }
    m_count->setText(FormTexts::CheckedCount.arg(checked).arg(m_list->topLevelItemCount()));
    m_all->setEnabled(listedAndChecked < listed);
    m_none->setEnabled(listedAndChecked > 0);
    m_invert->setEnabled(listed > 0);
    m_list->viewport()->update();
}

// Enter and Down in the search box move to the list: Enter there means "found", not "done".
bool frmSelShowFields::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down) {
            m_list->setFocus();
            return true;
        }
    }
    return SelectionDialog::eventFilter(watched, event);
}

void frmSelShowFields::acceptChoice()
{
    QList<ListedField> rows;
    for (const QTreeWidgetItem *item : items())
        rows.append(
            {item->text(0), item->checkState(0) == Qt::Checked, item->data(0, writtenRole).toString()});
    setResultText(composeFieldList(rows));
    if (strRetFields().isEmpty())
        Messages::show(this, FormTexts::AtLeastOneField);
    else
        accept();
}

} // namespace KOVAVSFDataGridLib
