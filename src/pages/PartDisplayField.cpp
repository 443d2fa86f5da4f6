#include "pages/PartDisplayField.h"

#include "pages/PageTexts.h"
#include "pages/PartFields.h"

#include <QtCore/QVariant>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

AllDBType databaseOf(const QObject &control)
{
    return static_cast<AllDBType>(control.property("DBType").toInt());
}

QStringList textsOf(const QListWidget &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts += list.item(row)->text();
    return texts;
}

} // namespace

PartDisplayField::PartDisplayField(QWidget *parent)
    : PropertyPage(u"SQLPartDisplay"_s, u"txtSQLPartDisplay"_s, PageTexts::PartDisplay,
                   PageTexts::PartDisplayHint, parent),
      m_notChosen(new QListWidget(this)),
      m_chosen(new QListWidget(this)),
      m_add(new QPushButton(PageTexts::Add, this)),
      m_remove(new QPushButton(PageTexts::Remove, this))
{
    setObjectName(u"PartDisplayField"_s);
    m_notChosen->setObjectName(u"List_NotCho"_s);
    m_chosen->setObjectName(u"List_Cho"_s);
    m_add->setObjectName(u"Cmd_add"_s);
    m_add->setAutoDefault(false);
    m_remove->setObjectName(u"Cmd_Abs"_s);
    m_remove->setAutoDefault(false);
    layOut();

    const auto add = [this] { move(*m_notChosen, *m_chosen); };
    const auto remove = [this] { move(*m_chosen, *m_notChosen); };
    connect(m_add, &QPushButton::clicked, this, add);
    connect(m_notChosen, &QListWidget::itemDoubleClicked, this, add);
    connect(m_remove, &QPushButton::clicked, this, remove);
    connect(m_chosen, &QListWidget::itemDoubleClicked, this, remove);
    connect(m_notChosen, &QListWidget::itemSelectionChanged, this, &PartDisplayField::enableButtons);
    connect(m_chosen, &QListWidget::itemSelectionChanged, this, &PartDisplayField::enableButtons);
    enableButtons();
}

void PartDisplayField::layOut()
{
    auto *buttons = new QVBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto *lists = new QGridLayout;
    const auto addList = [&](const QString &caption, QListWidget *list, int column) {
        auto *label = new QLabel(caption, this);
        label->setBuddy(list);
        lists->addWidget(label, 0, column);
        lists->addWidget(list, 1, column);
        lists->setColumnStretch(column, 1);
    };
    addList(PageTexts::NotChosen, m_notChosen, 0);
    lists->addLayout(buttons, 1, 1);
    addList(PageTexts::Chosen, m_chosen, 2);
    rows().addLayout(lists, 1);
    setTabOrder(&text(), m_notChosen);
    setTabOrder(m_notChosen, m_add);
    setTabOrder(m_add, m_remove);
    setTabOrder(m_remove, m_chosen);
}

void PartDisplayField::SelectionChanged()
{
    PropertyPage::SelectionChanged();
    text().setText(text().text().trimmed());
    text().setCursorPosition(0);
    listFields();
    PutChanged(false);
}

void PartDisplayField::listFields()
{
    if (!control())
        return;
    const AllDBType database = databaseOf(*control());
    PartFields::StarReader reader;
    if (m_reader)
        reader = [this](const QString &statement) { return m_reader(*control(), statement); };
    const auto all = PartFields::read(control()->property("SQLShow").toString(), database, reader);
    const auto part = PartFields::read(text().text(), database, reader);
    if (!all && !part)
        return;

    m_table = all ? all->table : part->table;
    m_words = all ? all->words : part->words;
    m_group = all ? all->group : part->group;
    const QStringList chosen = part ? part->fields : QStringList();
    m_chosen->clear();
    m_chosen->addItems(chosen);
    m_notChosen->clear();
    for (const QString &field : all ? all->fields : QStringList()) {
        const auto isIt = [&](const QString &other) { return PartFields::isSame(field, other); };
        if (std::none_of(chosen.begin(), chosen.end(), isIt))
            m_notChosen->addItem(field);
    }
    enableButtons();
}

void PartDisplayField::move(QListWidget &from, QListWidget &to)
{
    const QList<QListWidgetItem *> selected = from.selectedItems();
    if (selected.isEmpty() || !control())
        return;
    to.addItem(from.takeItem(from.row(selected.first())));
    to.setCurrentRow(to.count() - 1);
    text().setText(PartFields::compose(
        {.fields = textsOf(*m_chosen), .table = m_table, .words = m_words, .group = m_group},
        databaseOf(*control())));
    enableButtons();
}

void PartDisplayField::enableButtons()
{
    m_add->setEnabled(!m_notChosen->selectedItems().isEmpty());
    m_remove->setEnabled(!m_chosen->selectedItems().isEmpty());
}

} // namespace KOVAVSFDataGridLib
