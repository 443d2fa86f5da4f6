#include "ado/Error.h"
#include "filter/FilterTexts.h"
#include "filter/SetFilter.h"
#include "filter/ValueEdit.h"
#include "filter/WaitCursor.h"

#include <utility>

// Offers the values of a field in the builder.
namespace KOVAVSFDataGridLib {

void SetFilter::offerValues(const FilterField &field, ValueEdit &edit, int most)
{
    constexpr int patience = 100; // milliseconds before the list shows that it is being read
    constexpr int growth = 10;
    stopReading();
    disconnect(&edit, nullptr, this, nullptr);
    connect(&edit, &ValueEdit::listClosed, this, &SetFilter::stopReading);
    connect(&edit, &ValueEdit::moreWanted, this,
            [this, field, &edit, most] { offerValues(field, edit, most * growth); });
    const auto known = m_knownValues.constFind(field.written);
    if (known != m_knownValues.constEnd() && (!known->hasMore || known->values.size() >= most))
        return edit.showValues(*known);
    try {
        const WaitCursor waiting;
        m_reading = std::make_unique<ValueReading>(m_source.valueRequest(field, most));
    } catch (const ADODB::Error &error) {
        return show(FilterTexts::ValuesUnreadable.arg(error.Description()));
    }
    m_readingFor = &edit;
    m_shownValues.reset();
    m_readingOf = field;
    connect(m_reading.get(), &ValueReading::arrived, this, &SetFilter::onValuesArrived);
    if (m_reading->waitForValues(patience))
        onValuesArrived();
    else
        edit.showReading();
}

void SetFilter::onValuesArrived()
{
    if (!m_reading)
        return;
    const OfferedValues values = m_reading->values();
    const QString failure = m_reading->failure();
    if (failure.isEmpty() && values.note.isEmpty())
        m_knownValues.insert(m_readingOf.written, values);
    if (!failure.isEmpty())
        show(FilterTexts::ValuesUnreadable.arg(failure));
    else if (!values.note.isEmpty() || values.values.isEmpty())
        show(values.note.isEmpty() ? FilterTexts::NoValues : values.note);
    else
        show({});
    // A list that the user is moving in is not refilled with the same values.
    if (m_readingFor && std::exchange(m_shownValues, values) != values)
        m_readingFor->showValues(values);
}

void SetFilter::stopReading()
{
    m_reading.reset();
}

} // namespace KOVAVSFDataGridLib
