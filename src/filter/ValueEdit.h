#pragma once

#include "filter/ValueReading.h"
#include "filter/conditions/FieldClass.h"
#include "language/Text.h"

#include <QtWidgets/QLineEdit>

#include <functional>

class QCompleter;

namespace KOVAVSFDataGridLib {

class DayCalendar;

// The entries of a list from which a value is picked.
struct ListedValues
{
    QStringList values = {};
    QStringList shown = {}; // what is read in their places; empty where that is the values
    QString end = {};       // comes after them and is none; may be empty
};

// Takes a typed value and offers, behind a button at its end, Alt+Down and F4, what fits the field: a
// calendar for days, yes and no, or the values that a field has already.
class ValueEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ValueEdit(QWidget *parent = nullptr);

    // Called each time a list is opened; an empty answer opens none. Days have a second button for it, and
    // Shift+F4. Comes before setKind().
    void setValueReader(std::function<ListedValues()> reader) { m_readValues = std::move(reader); }
    // The same for values that take a while: what is asked answers by showValues(), at once or later, and by
    // showReading() meanwhile.
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
    // For a value of its kind and the buttons beside it.
    int comfortableWidth() const;

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
    void dropLineEnd();
    void offerValues();
    void offerList(const ListedValues &list);
    void makeList();
    void pick(int row);
    void offerCalendar();
    void take(const QString &picked);
    void setDay(QDate day);

    std::function<ListedValues()> m_readValues;
    std::function<void()> m_askForValues;
    bool m_isAsking = false;    // from the question until the list is closed
    bool m_isRefilling = false; // the list closes for a moment
    QStringList m_listed;       // the values in the list; what comes after them is no value
    FieldClass m_fieldClass = FieldClass::Text;
    bool m_isList = false;
    QAction *m_offer;
    Text m_offerText;
    QAction *m_offerValues;
    QCompleter *m_list = nullptr;
    DayCalendar *m_calendar = nullptr;
};

} // namespace KOVAVSFDataGridLib
