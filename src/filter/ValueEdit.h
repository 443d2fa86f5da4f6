#pragma once

#include "filter/FieldClass.h"

#include <QtWidgets/QLineEdit>

#include <functional>

class QCalendarWidget;
class QCompleter;

namespace KOVAVSFDataGridLib {

// Takes a typed value and offers, behind a button at its end, Alt+Down and F4, what fits the field: a
// calendar for days, yes and no, or the values that a text field has already.
class ValueEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit ValueEdit(QWidget *parent = nullptr);

    // Called each time a list is opened; an empty answer opens none.
    void setValueReader(std::function<QStringList()> reader) { m_readValues = std::move(reader); }
    // `isList` for several values with commas between them: what is picked is then added.
    void setKind(FieldClass fieldClass, bool isList);
    // Shows that something is wrong with the value.
    void setMarked(bool isMarked);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void offer();
    void offerList(const QStringList &values);
    void offerCalendar();
    QPoint placeOf(QSize popup) const;
    void take(const QString &picked);
    void setDay(QDate day);

    std::function<QStringList()> m_readValues;
    FieldClass m_fieldClass = FieldClass::Text;
    bool m_isList = false;
    QAction *m_offer;
    QCompleter *m_list = nullptr;
    QCalendarWidget *m_calendar = nullptr;
};

} // namespace KOVAVSFDataGridLib
