#pragma once

#include "filter/ValueReading.h"
#include "filter/ticks/TickState.h"

#include <QtCore/QSet>
#include <QtWidgets/QTreeWidget>

#include <optional>

namespace KOVAVSFDataGridLib {

// Values with check boxes and record counts; dates by years and months. Ticks are stored in a TickState.
class TickList final : public QTreeWidget
{
    Q_OBJECT

public:
    // `state` must outlive the list.
    explicit TickList(TickState &state, QWidget *parent = nullptr);

    // Lists the values of a field of that class. `hasNull` adds an entry for the records without a value.
    // Expanded and current entries stay so if they are listed again.
    void list(FieldClass fieldClass, const OfferedValues &values, bool hasNull, bool areOpen);

    // Whether all listed values are ticked, or none, or some.
    Qt::CheckState stateOfAll() const;

Q_SIGNALS:
    void ticked();

private:
    enum class Entry { Value, Null, Others };
    // The user's position, by values.
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
