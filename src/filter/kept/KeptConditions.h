#pragma once

#include "sql/Engine.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QVBoxLayout;

namespace KOVAVSFDataGridLib {

class KeptLine;

// Conditions in force that the builder has no rows for: a line for each, with a tick that keeps it.
class KeptConditions final : public QWidget
{
    Q_OBJECT

public:
    explicit KeptConditions(QWidget *parent = nullptr);

    // How conditions are read that are added from now on.
    void setDialect(const Dialect &dialect) { m_dialect = dialect; }
    // Whether the brackets of a condition match, so that it doesn't change what it is joined to.
    bool canAdd(const QString &condition) const;
    // One line for each part of such a condition, ticked. What is there already is ticked again.
    void add(const QString &condition);
    void clearTicks();
    void removeAll();

    // Those with a tick, as statements have them.
    QStringList kept() const;
    bool isAnyKept() const { return !kept().isEmpty(); }
    // The same and another condition, all of which hold. That one may be empty; it must not have an OR
    // outside all brackets.
    QString joinedWith(const QString &condition) const;
    // Conditions for the user to read, so that further ones can be joined to them.
    QStringList wordsOf(const QStringList &conditions) const;

    // Whether the lines show the conditions as SQL.
    void showSql(bool isSql);
    // The tab key walks through the lines after `previous`.
    void followInTabOrder(QWidget *previous);

Q_SIGNALS:
    void changed();

private:
    QString inWords(const QString &condition) const;

    Dialect m_dialect;
    bool m_isSql = false;
    QList<KeptLine *> m_lines;
    QVBoxLayout *m_layout;
};

} // namespace KOVAVSFDataGridLib
