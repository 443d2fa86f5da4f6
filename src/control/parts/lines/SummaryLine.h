#pragma once

#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// The summary of the selected cells, in the line below the grid. Clicking a value, or selecting it with the
// arrow keys and pressing Enter, copies it.
class SummaryLine final : public QLabel
{
    Q_OBJECT

public:
    struct Item
    {
        QString caption;
        QString value;
    };

    explicit SummaryLine(QWidget *parent);

    // An empty summary hides the line.
    using QWidget::show;
    void show(const QList<Item> &items);

    QSize minimumSizeHint() const override;

private:
    void copy(const QString &link);

    QStringList m_values;
};

} // namespace KOVAVSFDataGridLib
