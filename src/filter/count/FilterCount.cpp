#include "filter/count/FilterCount.h"

#include "ado/Error.h"
#include "filter/FilterTexts.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

FilterCount::FilterCount(QWidget *parent)
    : QWidget(parent), m_text(new QLabel(this)), m_stop(new QToolButton(this))
{
    m_text->setObjectName(u"lblCount"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAccessibleName(FilterTexts::CountName);
    m_stop->setObjectName(u"cmdStopCount"_s);
    m_stop->setText(u"×"_s);
    m_stop->setAutoRaise(true);
    m_stop->setFocusPolicy(Qt::StrongFocus);
    m_stop->setToolTip(FilterTexts::StopCounting);
    m_stop->setAccessibleName(FilterTexts::StopCounting);
    m_stop->hide();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addWidget(m_text);
    row->addWidget(m_stop);
    m_delay.setSingleShot(true);
    m_delay.setInterval(delay);
    connect(&m_delay, &QTimer::timeout, this, &FilterCount::begin);
    connect(m_stop, &QToolButton::clicked, this, &FilterCount::stop);
}

void FilterCount::restart()
{
    stop();
    m_delay.start();
}

void FilterCount::stop()
{
    m_delay.stop();
    m_reading.reset();
    show({});
}

void FilterCount::begin()
{
    constexpr int patience = 50; // milliseconds before it shows that it is counting
    try {
        auto request = m_source ? m_source() : std::nullopt;
        if (!request)
            return;
        m_reading = std::make_unique<CountReading>(*std::move(request));
    } catch (const ADODB::Error &error) {
        show(FilterTexts::NotCounted);
        m_text->setToolTip(error.Description());
        return;
    }
    connect(m_reading.get(), &CountReading::ended, this, &FilterCount::onEnded);
    if (m_reading->waitForEnd(patience))
        onEnded();
    else
        show(FilterTexts::Counting, true);
}

void FilterCount::onEnded()
{
    if (!m_reading)
        return;
    const auto count = m_reading->count();
    const QString failure = m_reading->failure();
    m_reading.reset();
    show(count ? FilterTexts::AboutRecords(*count) : FilterTexts::NotCounted);
    m_text->setToolTip(failure);
}

void FilterCount::show(const QString &text, bool isCounting)
{
    m_text->setText(text);
    m_text->setToolTip({});
    m_stop->setVisible(isCounting);
}

} // namespace KOVAVSFDataGridLib
