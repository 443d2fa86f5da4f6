#pragma once

#include "filter/ValueReading.h"
#include "filter/conditions/FieldClass.h"
#include "language/Text.h"

#include <QtWidgets/QLineEdit>

#include <functional>

class QCalendarWidget;
class QCompleter;

namespace KOVAVSFDataGridLib {

// Takes a typed value and offers, behind a button at its end, Alt+Down and F4, what fits the field: a
// calendar for days, yes and no, or the values that a field has already.
class ValueEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ValueEdit(QWidget *parent = nullptr);

    // Called each time a list is opened for a text or a number; an empty answer opens none. Comes before
    // setKind().
    void setValueReader(std::function<QStringList()> reader) { m_readValues = std::move(reader); }
    // The same for values that take a while, of every kind of field: what is asked answers by showValues(),
    // at once or later, and by showReading() meanwhile. Days have a second button for them, and Shift+F4.
    void setValueAsker(std::function<void()> asker) { m_askForValues = std::move(asker); }
    void showReading();
    // Does nothing once the list was closed.
    void showValues(const OfferedValues &values);
    // `isList` for several values with commas between them: what is picked is then added.
    void setKind(FieldClass fieldClass, bool isList);
    // For a number of values.
    void setCount();
    // Shows that something is wrong with the value.
    void setMarked(bool isMarked);

Q_SIGNALS:
    // The entry for more values was picked; they are shown by showValues().
    void moreWanted();
    void listClosed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void offer();
    void writeTexts();
    void offerValues();
    void offerList(const QStringList &values, const QString &end = {});
    void makeList();
    void pick(int row);
    void offerCalendar();
    QPoint placeOf(QSize popup) const;
    void take(const QString &picked);
    void setDay(QDate day);
    QWidget *makeDayWords();

    std::function<QStringList()> m_readValues;
    std::function<void()> m_askForValues;
    bool m_isAsking = false;    // from the question until the list is closed
    bool m_isRefilling = false; // the list closes for a moment
    qsizetype m_listed = 0;     // values in the list; what comes after them is no value
    FieldClass m_fieldClass = FieldClass::Text;
    bool m_isList = false;
    QAction *m_offer;
    Text m_offerText;
    QAction *m_offerValues;
    QCompleter *m_list = nullptr;
    QCalendarWidget *m_calendar = nullptr;
};

} // namespace KOVAVSFDataGridLib
