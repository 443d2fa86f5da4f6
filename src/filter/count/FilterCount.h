#pragma once

#include "filter/count/CountReading.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <functional>

class QLabel;
class QToolButton;

namespace KOVAVSFDataGridLib {

// Shows how many records meet the condition of a builder. They are counted in the background shortly after
// the last change; a button cancels a count that takes long.
class FilterCount final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int delay = 300; // milliseconds after the last change

    explicit FilterCount(QWidget *parent = nullptr);

    // Returns how to count the current condition; no value if there is nothing to count. May throw
    // ADODB::Error.
    void setSource(std::function<std::optional<CountRequest>()> source) { m_source = std::move(source); }
    // The condition has changed: the count is no longer valid.
    void restart();
    // Cancels a count in progress.
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
