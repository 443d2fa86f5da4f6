#pragma once

#include "session/SessionWindow.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QRect>
#include <QtWidgets/QAbstractScrollArea>

#include <functional>

class QKeyEvent;
class QLabel;
class QProgressBar;

namespace KOVAVSFDataGridLib {

// Lives while a statement is opened or records are written, which happens on the GUI thread. At first it
// shows the wait cursor. After half a second a line over the window's foot says how many records are done and
// offers to cancel, by its button or Esc.
//
// From then on the application's events are dispatched, so that windows are drawn and timers run, but
// nothing except the line takes the user's input (a modal dialog that a timer has opened meanwhile does), and
// a view of what has come, which can be scrolled.
// Only one can live in a process; the session that makes it sees to that.
class LoadProgress final : public QObject, public OpeningProgress
{
    Q_OBJECT

public:
    // The line covers `place` on `window`, which is asked for again as the window can be resized. When the
    // window is deleted in one of the events, the load is cancelled.
    LoadProgress(QWidget &window, std::function<QRect()> place);
    // The same for work on `total` records; `done` says how many are, with %1 for the number.
    LoadProgress(QWidget &window, std::function<QRect()> place, QString done, qint64 total);
    // The same for a wait that has no number to show.
    LoadProgress(QWidget &window, std::function<QRect()> place, const QString &text);
    ~LoadProgress() override;

    // May still be called once it has answered false: it then goes on painting.
    bool shouldContinue(qint64 rowsDone) override;
    bool isWindowGone() const { return m_isWindowGone; }
    // This one takes the mouse, and wherever the focus is the keys that scroll.
    void setScrolledView(QAbstractScrollArea *view) { m_view = view; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showLine();
    void updateLine(qint64 rowsDone);
    void takeKey(QKeyEvent &key);

    QWidget &m_window;
    const std::function<QRect()> m_place;
    const QString m_done;
    const qint64 m_total; // 0 when nobody knows
    QString m_cancelHint;
    QPointer<QWidget> m_line; // null during the first half second; a child of the window
    QPointer<QAbstractScrollArea> m_view;
    QLabel *m_count = nullptr;
    QProgressBar *m_bar = nullptr;
    QPointer<QWidget> m_modalBefore;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceEvents;
    bool m_isLineShown = false;
    bool m_isCancelled = false;
    bool m_isWindowGone = false;
};

} // namespace KOVAVSFDataGridLib
