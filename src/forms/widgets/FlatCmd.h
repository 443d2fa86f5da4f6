#pragma once

#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

// A push button that is a mere outline until the mouse, the keyboard focus or a press is on it. Enter presses
// it like the space bar does, and never presses it from elsewhere.
class FlatCmd final : public QPushButton
{
    Q_OBJECT

public:
    explicit FlatCmd(const QString &text, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace KOVAVSFDataGridLib
