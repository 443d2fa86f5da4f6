#pragma once

#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// One line of plain text that may get narrower than its text: what has no room is cut with an ellipsis, and
// the tool tip, unless there is another one, then has the text whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QString shownText READ shownText)

public:
    explicit ElidedLabel(QWidget *parent);

    QSize minimumSizeHint() const override;
    // What there is room for.
    virtual QString shownText() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace KOVAVSFDataGridLib
