#pragma once

#include "control/parts/lines/platform/EscapeKey.h"
#include "language/CountedText.h"
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

// Exists while a statement is being opened or records are written, which happens on the GUI thread. It first
// shows the wait cursor. After half a second, or as soon as the user presses Esc, a line over the window's
// foot shows the number of records and offers to cancel, with its button or Esc.
//
// Until then no event is dispatched: what a host does in events can't come in the middle of short work, and
// what the user types meanwhile is dealt with afterwards. From then on, the application's events are
// dispatched, so that windows are painted and timers run. But the user's input is accepted only by the line,
// by a modal dialog that a timer has opened meanwhile, and by the view of the first records, which can be
// scrolled.
// Only one can exist in a process; the session that creates it makes sure of that.
class LoadProgress final : public QObject, public OpeningProgress
{
    Q_OBJECT

public:
    // The line covers the rectangle `place` of `window`, which is called again because the window can be
    // resized. If the window is deleted in one of the events, the load is cancelled.
    LoadProgress(QWidget &window, std::function<QRect()> place);
    // The same for work on `total` records. `done` is the text for the number of records done.
    LoadProgress(QWidget &window, std::function<QRect()> place, const CountedText &done, qint64 total);
    // The same for a wait without a number.
    LoadProgress(QWidget &window, std::function<QRect()> place, const QString &text);
    ~LoadProgress() override;

    // May still be called after it returned false; it then continues to paint.
    bool shouldContinue(qint64 rowsDone) override;
    // The line tells a large estimate beside the number of records read, which it must exceed, and its bar
    // shows the part that is read.
    void expect(qint64 records) override;
    bool isWindowGone() const { return m_isWindowGone; }
    // This view receives mouse events and, wherever the focus is, the keys that scroll.
    void setScrolledView(QAbstractScrollArea *view) { m_view = view; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Words = std::function<QString(qint64 rowsDone)>;

    LoadProgress(QWidget &window, std::function<QRect()> place, Words words, qint64 total,
                 QString cancelHint);
    void showLine();
    void updateLine(qint64 rowsDone);
    void updateBar(qint64 rowsDone);
    void takeKey(QKeyEvent &key);

    QWidget &m_window;
    const std::function<QRect()> m_place;
    const Words m_words;
    const qint64 m_total;  // 0 if unknown
    qint64 m_expected = 0; // 0 if unknown or not worth telling
    const QString m_cancelHint;
    EscapeKey m_escapeKey;
    QPointer<QWidget> m_line; // null until it shows; a child of the window
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
