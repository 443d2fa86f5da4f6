#pragma once

#include <QtWidgets/QCalendarWidget>

class QToolButton;

namespace KOVAVSFDataGridLib {

// A calendar that opens as a popup of an editor, with buttons below its days: for relative days (words), or
// for today only.
class DayCalendar final : public QCalendarWidget
{
    Q_OBJECT

public:
    enum class Offers { RelativeDays, Today };

    DayCalendar(Offers offers, QWidget *parent);

    // Opens below the editor, or above it if there is no room. Starts with `day` if that is valid.
    void open(const QWidget &editor, QDate day);
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    // Emitted after the calendar was closed.
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
