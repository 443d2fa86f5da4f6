#pragma once

#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// What the selected cells come to, in the line below the grid. Each value can be clicked, or reached by the
// arrow keys and pressed by Enter, to copy it.
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
