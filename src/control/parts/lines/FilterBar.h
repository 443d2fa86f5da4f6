#pragma once

#include <QtWidgets/QWidget>

class QMenu;
class QToolButton;

namespace KOVAVSFDataGridLib {

// The active conditions, each in words on a button that removes it. Visible only if there are any. Those that
// don't fit are in a menu at the end.
class FilterBar final : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(QWidget *parent);

    // Shows the conditions; hides itself if there are none.
    void show(const QStringList &conditions);
    const QStringList &conditions() const { return m_conditions; }

    QSize sizeHint() const override;

Q_SIGNALS:
    // The user removes a condition, numbered from 0.
    void removeWanted(int condition);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *makeButton(int condition);
    void layOut();
    int gap() const;

    QStringList m_conditions;
    QList<QToolButton *> m_buttons;
    QToolButton *m_more;
    QMenu *m_menu;
};

} // namespace KOVAVSFDataGridLib
