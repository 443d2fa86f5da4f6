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
    QMessageBox::StandardButton onEnter = QMessageBox::NoButton; // NoButton when that was left to Qt
    QStringList captions;                                        // of all its buttons
};

// While one lives, every message box is answered by a click as soon as it shows: the boxes in order get
// the given answers, and those behind the last one OK or, where there is none, No.
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
    // Forgets what was shown and the answers that are left.
    void clear();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QMessageBox &box);

    std::vector<QMessageBox::StandardButton> m_answers;
    std::vector<ShownMessage> m_shown;
    QMap<std::size_t, QString> m_captions; // to be pressed, by the number of the box
};

} // namespace KovaTest
