#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtWidgets/QMessageBox>

#include <vector>

namespace KovaTest {

// What a message box showed.
struct ShownMessage
{
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    Qt::TextFormat format = Qt::AutoText;
    QString cause;                                               // below the text
    QMessageBox::StandardButton onEnter = QMessageBox::NoButton; // NoButton if Qt decided it
    QStringList captions;                                        // of all buttons
};

// While one exists, every message box is answered by a click as soon as it is shown: the boxes get the given
// answers in order, and later ones OK or, if there is no such button, No.
class MessageAnswers : public QObject
{
    Q_OBJECT

public:
    explicit MessageAnswers(std::vector<QMessageBox::StandardButton> answers = {});
    ~MessageAnswers() override;

    // The next box gets this answer.
    void answerNext(QMessageBox::StandardButton answer);

    // The next box, or the one after `between` others, gets a click on the button with this caption, which it
    // must have.
    void pressNext(const QString &caption, std::size_t between = 0);

    const std::vector<ShownMessage> &shown() const { return m_shown; }
    QStringList texts() const;
    // Clears the shown messages and the remaining answers.
    void clear();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox &box);

    std::vector<QMessageBox::StandardButton> m_answers;
    std::vector<ShownMessage> m_shown;
    QMap<std::size_t, QString> m_captions; // the button to press, by the number of the box
};

} // namespace KovaTest
