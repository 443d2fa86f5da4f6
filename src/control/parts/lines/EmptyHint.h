#pragma once

#include <QtWidgets/QLabel>

class QAbstractScrollArea;
class QPushButton;

namespace KOVAVSFDataGridLib {

// Says in the middle of a view that has nothing to show why that is so, and offers to add the first record of
// an empty table. The mouse passes through the text.
class EmptyHint final : public QLabel
{
    Q_OBJECT

public:
    explicit EmptyHint(QAbstractScrollArea &view);

    // An empty text hides it.
    void showText(const QString &text);
    // That the result has no records, and what the user can do: step back to one that may have some, or add
    // the first one.
    void showNoRecords(bool canGoBack, bool canAdd);

Q_SIGNALS:
    // The user wants to add a record. The view has the keyboard.
    void addWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // It follows the view's inner area from outside, because scrolling takes along what is inside.
    void place();

    QAbstractScrollArea &m_view;
    QPushButton *m_add; // beside the text, as it takes the mouse
    bool m_offersToAdd = false;
};

} // namespace KOVAVSFDataGridLib
