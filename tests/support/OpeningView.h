#pragma once

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTableView>

namespace KovaTest {

// Finds, in any window, the view of the first records while a statement is being opened.
class OpeningView : public QObject
{
public:
    OpeningView() { qApp->installEventFilter(this); }

    // Null while there is none.
    QTableView *view() const { return m_view; }
    // How often its cells were painted, even if it has been destroyed.
    int paintings() const { return m_paintings; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const view = qobject_cast<QTableView *>(watched->parent());
        if (event->type() != QEvent::Paint || !view || view->viewport() != watched ||
            view->objectName() != QLatin1StringView("vsfgOpening"))
            return false;
        if (m_view != view)
            connect(view, &QObject::destroyed, this, [this] { m_view = nullptr; });
        m_view = view;
        ++m_paintings;
        return false;
    }

private:
    QTableView *m_view = nullptr;
    int m_paintings = 0;
};

} // namespace KovaTest
