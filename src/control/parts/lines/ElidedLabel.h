#pragma once

#include <QtWidgets/QLabel>

namespace KOVAVSFDataGridLib {

// One line of plain text that is elided if it does not fit. Unless another tool tip is set, the tool tip then
// shows the whole text.
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
