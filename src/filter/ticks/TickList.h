#pragma once

#include "filter/ValueReading.h"
#include "filter/ticks/TickState.h"

#include <QtCore/QSet>
#include <QtWidgets/QTreeWidget>

#include <optional>

namespace KOVAVSFDataGridLib {

// Values with a box each and the number of their records; days by years and months. Ticks go to a state.
class TickList final : public QTreeWidget
{
    Q_OBJECT

public:
    // `state` must outlive the list.
    explicit TickList(TickState &state, QWidget *parent = nullptr);

    // Lists the values of a field of that class. `hasNull` adds an entry for the records without a value.
    // What was listed before stays open and current as far as it is listed again.
    void list(FieldClass fieldClass, const OfferedValues &values, bool hasNull, bool areOpen);

    // Whether each value that is listed is ticked, or none is.
    Qt::CheckState stateOfAll() const;

Q_SIGNALS:
    void ticked();

private:
    enum class Entry { Value, Null, Others };
    // Where the user is, in values.
    struct Place
    {
        std::optional<QString> current = {};
        QSet<QString> open = {};
        int scrolled = 0;
    };

    Place place();
    void restore(const Place &place);
    void fill(FieldClass fieldClass, const OfferedValues &values, bool hasNull, bool areOpen);

    void onItemChanged(const QTreeWidgetItem *item);
    bool isTicked(Entry entry, const QString &value) const;
    void addDays(const OfferedValues &days, bool areOpen);
    QTreeWidgetItem *group(QTreeWidgetItem *parent, const QString &text, const QString &value, bool isOpen);
    void add(QTreeWidgetItem *parent, Entry entry, const QString &text, const QString &value, qint64 count);

    TickState &m_state;
    bool m_isFilling = false;
};

} // namespace KOVAVSFDataGridLib
