#pragma once

#include <QtWidgets/QCalendarWidget>

class QToolButton;

namespace KOVAVSFDataGridLib {

// A calendar that opens as a popup at an editor, with buttons below its days: the words for days that move
// with the calendar, or today alone.
class DayCalendar final : public QCalendarWidget
{
    Q_OBJECT

public:
    enum class Offers { RelativeDays, Today };

    DayCalendar(Offers offers, QWidget *parent);

    // Below the editor, or above where the screen ends too soon. Begins with `day` if it is valid.
    void open(const QWidget &editor, QDate day);
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // The calendar is closed then.
    void dayPicked(QDate day);
    void wordPicked(const QString &word);

private:
    QToolButton *newButton(int place);
    void writeTexts();
    void pickWord(int place);
    void pickDay(QDate day);

    Offers m_offers;
    QWidget *m_words;
    QList<QToolButton *> m_buttons;
};

} // namespace KOVAVSFDataGridLib
