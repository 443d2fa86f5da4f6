#pragma once

#include <QtWidgets/QLabel>

class QAbstractScrollArea;

namespace KOVAVSFDataGridLib {

// Says in the middle of a view that has nothing to show why that is so. The mouse passes through it.
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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // It follows the view's inner area from outside, because scrolling takes along what is inside.
    void place();

    QAbstractScrollArea &m_view;
};

} // namespace KOVAVSFDataGridLib
