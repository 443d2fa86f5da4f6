#pragma once

#include <QtCore/QList>
#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// The totals of the selected cells, in the line below the grid. To copy a value, click it, or reach it with
// the Tab key and press Enter. Values are never cut: if they don't fit, the menu of "…" lists all of
// them.
class SummaryLine final : public QLabel
{
    Q_OBJECT

public:
    struct Item
    {
        QString caption;
        QString value;      // what a click copies
        QString shown = {}; // what is seen instead of it; empty if it is the same

        const QString &text() const { return shown.isEmpty() ? value : shown; }
    };

    explicit SummaryLine(QWidget *parent);

    // An empty summary hides the line.
    using QWidget::show;
    void show(const QList<Item> &items);

    // Wide enough for all values.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // The pixels for so many of the values, and for what leads to the others.
    int widthFor(qsizetype values) const;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fit();
    QString html(qsizetype values) const;
    void follow(const QString &link);
    void openMenu();
    void copy(const QString &value);

    QList<Item> m_items;
};

} // namespace KOVAVSFDataGridLib
