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

// The values of a field with a box each, for the user to tick those whose records he wants. Days are listed
// by years and months. Values are read in the background, which he can stop. Where there are too many, the
// first ones are listed and a search reads others; what is ticked stays ticked meanwhile.
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
    // How the values that contain a text are read; all values where it is empty. Throws ADODB::Error.
    using Requests = std::function<ValueRequest(const QString &search)>;

    explicit ValueTicks(QWidget *parent = nullptr);
    ~ValueTicks() override;

    // Lists the values of a field of that class and begins with these ticks. What `requests` refers to must
    // live until the next start(), or as long as this object.
    void start(FieldClass fieldClass, Requests requests, const TickedValues &ticked = {});
    // Ends the reading. What is listed stays.
    void stop();

    // What is chosen now: conditionOf() makes a condition of it, listOf() a list that can be typed.
    TickedValues ticked() const;

Q_SIGNALS:
    // The ticks have changed, or the values among which they are.
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
    OfferedValues m_found;          // by a search of the database
    bool m_isComplete = false;      // no value is missing from m_all
    bool m_beganWithSearch = false; // with everything ticked before
    QString m_fault;
    QTimer *m_delay; // until a search asks the database
    QLineEdit *m_search;
    QCheckBox *m_checkAll;
    TickList *m_list;
    QLabel *m_note;
    QProgressBar *m_progress;
    QPushButton *m_stop;
};

} // namespace KOVAVSFDataGridLib
