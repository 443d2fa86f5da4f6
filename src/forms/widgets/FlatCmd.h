#pragma once

#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

// A push button that shows only an outline until it is hovered, focused or pressed. Enter presses it like the
// space bar if it has the focus, and never otherwise.
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
