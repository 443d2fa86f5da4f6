#pragma once

#include "database/Catalogue.h"

#include <QtWidgets/QTreeWidget>

// The tables and views of a database. A name can be dragged
// to a statement; a double click or Enter opens it.
class TableList : public QTreeWidget
{
    Q_OBJECT

public:
    explicit TableList(QWidget *parent = nullptr);

    // Reads them again if the connection is another one or with `isForced`. If that fails, the reason is
    // shown instead.
    void showTablesOf(const QString &connection, qint32 dbType, bool isForced = false);

    // The first table or view in its form for SQL; empty if there is none.
    QString firstName() const;

Q_SIGNALS:
    // The name in its form for SQL.
    void opened(const QString &name);

protected:
    QMimeData *mimeData(const QList<QTreeWidgetItem *> &items) const override;
    QStringList mimeTypes() const override;

private:
    void fill(const std::vector<Catalogue::Table> &tables);
    void showRemark(const QString &text);

    QString m_connection;
};
