#include "window/TableList.h"

#include "HostTexts.h"

#include <KOVAVSFDataGridLib/ado/Error.h>

#include <QtCore/QMimeData>

using namespace Qt::StringLiterals;

namespace {

constexpr int nameRole = Qt::UserRole;

} // namespace

TableList::TableList(QWidget *parent) : QTreeWidget(parent)
{
    setObjectName(u"tables"_s);
    setAccessibleName(HostTexts::Tables());
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(12);
    setDragDropMode(DragOnly);
    setExpandsOnDoubleClick(false);
    setMinimumWidth(120);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem *item) {
        const QString name = item->data(0, nameRole).toString();
        if (!name.isEmpty())
            Q_EMIT opened(name);
    });
}

void TableList::showTablesOf(const QString &connection, qint32 dbType, bool isForced)
{
    if (connection == m_connection && !isForced)
        return;
    m_connection = connection;
    clear();
    try {
        fill(Catalogue::read(connection, dbType));
    } catch (const ADODB::Error &error) {
        showRemark(HostTexts::CantListTables().arg(error.Description()));
    }
}

QString TableList::firstName() const
{
    const QTreeWidgetItem *const group = topLevelItem(0);
    const QTreeWidgetItem *const item = group ? group->child(0) : nullptr;
    return item ? item->data(0, nameRole).toString() : QString();
}

void TableList::fill(const std::vector<Catalogue::Table> &tables)
{
    for (const bool isView : {false, true}) {
        QTreeWidgetItem *group = nullptr;
        for (const Catalogue::Table &table : tables) {
            if (table.isView != isView)
                continue;
            if (!group) {
                group = new QTreeWidgetItem(this, {isView ? HostTexts::Views() : HostTexts::Tables()});
                group->setFlags(Qt::ItemIsEnabled);
                group->setExpanded(true);
            }
            auto *item = new QTreeWidgetItem(group, {table.caption});
            item->setData(0, nameRole, table.name);
            item->setToolTip(0, table.caption);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
        }
    }
    if (topLevelItemCount() == 0)
        showRemark(HostTexts::NoTables());
}

void TableList::showRemark(const QString &text)
{
    auto *item = new QTreeWidgetItem(this, {text});
    item->setToolTip(0, text);
    item->setFlags(Qt::ItemIsEnabled);
}

QStringList TableList::mimeTypes() const
{
    return {u"text/plain"_s};
}

QMimeData *TableList::mimeData(const QList<QTreeWidgetItem *> &items) const
{
    auto *dragged = new QMimeData;
    if (!items.isEmpty())
        dragged->setText(items.constFirst()->data(0, nameRole).toString());
    return dragged;
}
