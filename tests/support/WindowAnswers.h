#pragma once

#include <QtCore/QObject>

#include <deque>
#include <functional>

class QDialog;

namespace KovaTest {

// While one exists, each dialog that is shown is passed to the next function, which uses and closes it like a
// user. A dialog without a function, or one that its function did not close, fails the test and is cancelled.
// For message boxes, see MessageAnswers.
class WindowAnswers : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog &)>;

    explicit WindowAnswers(std::deque<Answer> answers = {});
    // Fails the test if functions are left for which no dialog was shown.
    ~WindowAnswers() override;

    // In the next popup menu, clicks the item with that object name, or presses Esc if it is empty.
    void clickInMenu(const QString &item);
    bool wasMenuShown() const { return m_wasMenuShown; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void answer(QDialog &dialog);

    std::deque<Answer> m_answers;
    QString m_menuItem;
    bool m_wasMenuShown = false;
};

} // namespace KovaTest
