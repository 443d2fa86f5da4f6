#pragma once

#include <QtWidgets/QLabel>

class QAbstractScrollArea;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Explains in the middle of an empty view why it is empty, and offers to add the first record to an empty
// table. Mouse events pass through the text.
class EmptyHint final : public QLabel
{
    Q_OBJECT

public:
    explicit EmptyHint(QAbstractScrollArea &view);

    // An empty text hides it.
    void showText(const QString &text);
    // Says that the result has no records, and what the user can do: go back to the previous statement, or
    // add the first record.
    void showNoRecords(bool canGoBack, bool canAdd);

Q_SIGNALS:
    // The user wants to add a record. The view has the focus.
    void addWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // A sibling of the view's viewport and not a child, because scrolling moves children.
    void place();

    QAbstractScrollArea &m_view;
    QPushButton *m_add; // a sibling of the text, because it needs mouse events
    bool m_offersToAdd = false;
};

} // namespace KOVAVSFDataGridLib
