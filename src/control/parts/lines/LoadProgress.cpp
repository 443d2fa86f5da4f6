#include "control/parts/lines/LoadProgress.h"

#include "control/parts/GridTexts.h"
#include "language/GroupedNumber.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace KOVAVSFDataGridLib {

namespace {

constexpr qint64 hiddenAtFirst = 500; // milliseconds before the line shows
constexpr qint64 keyInterval = 10;    // milliseconds between two looks at the keyboard before
constexpr qint64 eventsInterval = 30; // milliseconds between two dispatches of events
constexpr int barSteps = 1000;
constexpr int mostExpected = barSteps * 99 / 100;
// So many records are worth a warning.
constexpr qint64 manyRecords = 1'000'000;

// With two significant digits: an estimate knows no more.
qint64 roughly(qint64 number)
{
    qint64 unit = 1;
    while (number / unit >= 100)
        unit *= 10;
    return (number + unit / 2) / unit * unit;
}

bool isInput(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    case QEvent::Close:
        return event.spontaneous(); // by the user, or by close() on a visible window
    default:
        return event.isInputEvent();
    }
}

// Whether it is a mouse event for one part of the window.
bool isFor(const QWidget *part, const QObject &watched, const QEvent &event)
{
    if (!part || !event.isPointerEvent())
        return false;
    if (watched.isWidgetType()) {
        const auto &widget = static_cast<const QWidget &>(watched);
        return &widget == part || part->isAncestorOf(&widget);
    }
    // A pointer event for a widget passes through the window first.
    const auto &points = static_cast<const QPointerEvent &>(event).points();
    return !points.isEmpty() &&
           part->rect().contains(part->mapFromGlobal(points.front().globalPosition()).toPoint());
}

// No value for a key that doesn't scroll.
std::optional<QAbstractSlider::SliderAction> scrollingOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
    case Qt::Key_Right:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return {};
    }
}

} // namespace

LoadProgress::LoadProgress(QWidget &window, std::function<QRect()> place)
    : LoadProgress(window, std::move(place), GridTexts::RecordsRead, 0, GridTexts::CancelOpeningHint)
{
}

LoadProgress::LoadProgress(QWidget &window, std::function<QRect()> place, const CountedText &done,
                           qint64 total)
    : LoadProgress(window, std::move(place), done, total, GridTexts::CancelWritingHint)
{
}

LoadProgress::LoadProgress(QWidget &window, std::function<QRect()> place, const QString &text)
    : LoadProgress(
          window, std::move(place), [text](qint64) { return text; }, 0, GridTexts::CancelWaitingHint)
{
}

LoadProgress::LoadProgress(QWidget &window, std::function<QRect()> place, Words words, qint64 total,
                           QString cancelHint)
    : m_window(window),
      m_place(std::move(place)),
      m_words(std::move(words)),
      m_total(total),
      m_cancelHint(std::move(cancelHint)),
      m_modalBefore(QApplication::activeModalWidget())
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_sinceBegin.start();
    m_sinceEvents.start();
}

LoadProgress::~LoadProgress()
{
    if (!m_isLineShown)
        QApplication::restoreOverrideCursor();
    delete m_line;
}

bool LoadProgress::shouldContinue(qint64 rowsDone)
{
    if (!m_sinceEvents.hasExpired(m_isLineShown ? eventsInterval : keyInterval))
        return !m_isCancelled;
    if (!m_isLineShown && (m_sinceBegin.hasExpired(hiddenAtFirst) || m_escapeKey.isPressed()))
        showLine();
    if (m_line) {
        updateLine(rowsDone);
        QCoreApplication::processEvents();
        m_isWindowGone = m_line.isNull();
        m_isCancelled |= m_isWindowGone;
    }
    m_sinceEvents.start();
    return !m_isCancelled;
}

void LoadProgress::expect(qint64 records)
{
    m_expected = records > manyRecords ? roughly(records) : 0;
}

// It covers the page box and its neighbours, which can't be used meanwhile.
void LoadProgress::showLine()
{
    QApplication::restoreOverrideCursor();
    m_isLineShown = true;
    m_line = new QWidget(&m_window);
    m_line->setAutoFillBackground(true);
    m_bar = new QProgressBar;
    m_bar->setTextVisible(false);
    m_bar->setMaximumHeight(m_bar->fontMetrics().height() / 2);
    // If there is not enough room, the number is more useful than the bar.
    m_bar->setSizePolicy(QSizePolicy::Ignored, m_bar->sizePolicy().verticalPolicy());
    m_count = new QLabel;
    m_count->setTextFormat(Qt::PlainText);
    auto *cancel = new QPushButton(GridTexts::CancelOpening);
    cancel->setFocusPolicy(Qt::NoFocus); // the focus must not move
    cancel->setToolTip(m_cancelHint);
    connect(cancel, &QPushButton::clicked, this, [this] { m_isCancelled = true; });

    auto *layout = new QHBoxLayout(m_line);
    layout->setContentsMargins(6, 0, 6, 0); // pixels, as a style's own margins
    layout->addWidget(m_bar, 1);
    layout->addWidget(m_count);
    layout->addWidget(cancel);
    updateLine(0);
    m_line->show();
    qApp->installEventFilter(this);
}

void LoadProgress::updateLine(qint64 rowsDone)
{
    // After a cancel, the server can still take a while to respond.
    if (m_isCancelled)
        m_count->setText(GridTexts::Cancelling);
    else if (m_expected > rowsDone)
        m_count->setText(GridTexts::RecordsReadOfAbout.arg(rowsDone, grouped(rowsDone), grouped(m_expected)));
    else
        m_count->setText(m_words(rowsDone));
    updateBar(rowsDone);
    m_line->setGeometry(m_place()); // the window may have been resized
    m_line->layout()->activate();
}

// Without a total, the bar only shows that work is in progress. An expected one is not exact and never makes
// it full.
void LoadProgress::updateBar(qint64 rowsDone)
{
    const bool isExpected = m_expected > rowsDone;
    const qint64 total = isExpected ? m_expected : m_total;
    const qint64 part = total > 0 ? rowsDone * barSteps / total : rowsDone;
    const qint64 most = isExpected ? mostExpected : std::numeric_limits<int>::max();
    m_bar->setRange(0, total > 0 ? barSteps : 0);
    m_bar->setValue(static_cast<int>(std::min(part, most)));
}

bool LoadProgress::eventFilter(QObject *watched, QEvent *event)
{
    // A dialog that waits for its user would otherwise block forever, and the load with it.
    if (!isInput(*event) || QApplication::activeModalWidget() != m_modalBefore ||
        isFor(m_line, *watched, *event) || isFor(m_view, *watched, *event))
        return false;
    event->ignore();
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        takeKey(static_cast<QKeyEvent &>(*event));
    return true;
}

void LoadProgress::takeKey(QKeyEvent &key)
{
    const bool isPress = key.type() == QEvent::KeyPress;
    if (key.key() == Qt::Key_Escape) {
        key.accept(); // not a shortcut of the host
        m_isCancelled |= isPress;
    }
    const auto scrolling = scrollingOf(key.key());
    if (!m_view || !scrolling)
        return;
    key.accept(); // not a shortcut of a command now
    const bool isSideways = key.key() == Qt::Key_Left || key.key() == Qt::Key_Right;
    QScrollBar *const bar = isSideways ? m_view->horizontalScrollBar() : m_view->verticalScrollBar();
    if (isPress)
        bar->triggerAction(*scrolling);
}

} // namespace KOVAVSFDataGridLib
