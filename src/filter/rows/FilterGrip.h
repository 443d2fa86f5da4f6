#pragma once

#include <QtWidgets/QAbstractButton>

namespace KOVAVSFDataGridLib {

// What a line of a tree is taken by to be moved: dragged by the mouse, or by the arrow keys.
class FilterGrip final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FilterGrip(QWidget *parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    // By the keys: one place up (-1) or down (1).
    void stepped(int by);
    // By the mouse; places are on the screen.
    void dragged(const QPoint &place);
    void dropped(const QPoint &place);
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isDragging = false;
};

} // namespace KOVAVSFDataGridLib
