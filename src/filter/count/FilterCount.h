#pragma once

#include "filter/count/CountReading.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <functional>

class QLabel;
class QToolButton;

namespace KOVAVSFDataGridLib {

// Says how many records meet the condition of a builder. They are counted in the background a moment after
// the last change, and a button ends a count that takes long.
class FilterCount final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int delay = 300; // milliseconds after the last change

    explicit FilterCount(QWidget *parent = nullptr);

    // How the condition that is there now is counted; nothing where there is none to count. May throw
    // ADODB::Error.
    void setSource(std::function<std::optional<CountRequest>()> source) { m_source = std::move(source); }
    // The condition has changed: what was counted is no longer true.
    void restart();
    // Ends a count that is under way.
    void stop();

private:
    void begin();
    void onEnded();
    void show(const QString &text, bool isCounting = false);

    std::function<std::optional<CountRequest>()> m_source;
    std::unique_ptr<CountReading> m_reading;
    QTimer m_delay;
    QLabel *m_text;
    QToolButton *m_stop;
};

} // namespace KOVAVSFDataGridLib
