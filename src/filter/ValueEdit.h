#pragma once

#include "filter/ValueReading.h"
#include "filter/conditions/FieldClass.h"
#include "language/Text.h"

#include <QtWidgets/QLineEdit>

#include <functional>

class QCompleter;

namespace KOVAVSFDataGridLib {

class DayCalendar;

// The entries of a list to choose a value from.
struct ListedValues
{
    QStringList values = {};
    QStringList shown = {}; // the texts to show instead of the values; empty if they are the same
    QString end = {};       // an entry after the values that is not a value; may be empty
};

// An editor for a value. A button at its end, Alt+Down and F4 offer what fits the field: a calendar for days,
// yes and no, or the existing values of the field.
class ValueEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ValueEdit(QWidget *parent = nullptr);

    // Called each time a list is opened; if the result is empty, none opens. For days there is a second
    // button for it, and Shift+F4. Call it before setKind().
    void setValueReader(std::function<ListedValues()> reader) { m_readValues = std::move(reader); }
    // The same for values that take time: `asker` must call showValues(), immediately or later, and
    // showReading() meanwhile.
    void setValueAsker(std::function<void()> asker) { m_askForValues = std::move(asker); }
    void showReading();
    // Does nothing if the list has been closed.
    void showValues(const OfferedValues &values);
    // `isList` for several values separated by commas: a chosen value is then appended. `whyNoValues` for the
    // user, if the existing values can't be listed.
    void setKind(FieldClass fieldClass, bool isList, const QString &whyNoValues = {});
    // For a number of values.
    void setCount();
    // Writes its texts in the current language.
    void writeTexts();
    // Shows that something is wrong with the value.
    void setMarked(bool isMarked);
    // The width for a typical value of its kind and the buttons.
    int comfortableWidth() const;

Q_SIGNALS:
    // The entry for more values was chosen; call showValues() with them.
    void moreWanted();
    void listClosed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int widthFor(const QString &text) const;
    void showHint();
    void offer();
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
    bool m_isAsking = false;    // from the request until the list is closed
    bool m_isRefilling = false; // the list is closed for a moment
    QStringList m_listed;       // the values in the list, without the entry after them
    FieldClass m_fieldClass = FieldClass::Text;
    bool m_isList = false;
    QAction *m_offer;
    Text m_offerText;
    QString m_hint; // in the language in which the dialog opened
    QString m_whyNoValues;
    QAction *m_offerValues;
    QCompleter *m_list = nullptr;
    DayCalendar *m_calendar = nullptr;
};

} // namespace KOVAVSFDataGridLib
