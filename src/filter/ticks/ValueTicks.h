#pragma once

#include "filter/ValueReading.h"
#include "filter/ticks/TickState.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTimer;

namespace KOVAVSFDataGridLib {

class TickList;

// The values of a field with check boxes, for the user to tick those whose records he wants. Dates are listed
// by years and months. Values are read in the background, which can be cancelled. If there are too many, the
// first ones are listed, and a search reads others; ticks are kept meanwhile.
//
//     ticks->start(
//         field.fieldClass,
//         [&](const QString &search) { return source.tickRequest(field, condition, search); }, ticked);
//     …
//     conditionOf(source.dialect(), field, ticks->ticked());
class ValueTicks final : public QWidget
{
    Q_OBJECT

public:
    // Returns how to read the values that contain a text; all if it is empty. Throws ADODB::Error.
    using Requests = std::function<ValueRequest(const QString &search)>;

    explicit ValueTicks(QWidget *parent = nullptr);
    ~ValueTicks() override;

    // Lists the values of a field of that class, with these initial ticks. What `requests` refers to must
    // live until the next start() or as long as this object.
    void start(FieldClass fieldClass, Requests requests, const TickedValues &ticked = {});
    // Stops the reading. The listed values stay.
    void stop();

    // The current choice. conditionOf() converts it to a condition, listOf() to a list that can be typed.
    TickedValues ticked() const;

Q_SIGNALS:
    // The ticks have changed, or the set of values.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectParts();
    void layOut();
    void read();
    void onValuesArrived();
    void onSearch();
    void tickFound();
    void tickAll();
    OfferedValues listed() const;
    bool isSearch() const;
    bool areAllListed() const;
    bool listsNull() const;
    bool areDays() const;
    void fill();
    void showState();
    QString stateInWords() const;
    void showReading(bool isReading);

    FieldClass m_fieldClass = FieldClass::Text;
    Requests m_requests;
    TickState m_state;
    std::unique_ptr<ValueReading> m_reading;
    OfferedValues m_all;
    OfferedValues m_found;          // by a search in the database
    bool m_isComplete = false;      // m_all contains all values
    bool m_beganWithSearch = false; // when everything was ticked before
    QString m_fault;
    QTimer *m_delay; // before a search queries the database
    QLineEdit *m_search;
    QCheckBox *m_checkAll;
    TickList *m_list;
    QLabel *m_note;
    QProgressBar *m_progress;
    QPushButton *m_stop;
};

} // namespace KOVAVSFDataGridLib
