#pragma once

#include <QtCore/QObject>

#include <deque>
#include <functional>

class QDialog;

namespace KovaTest {

// While one lives, each dialog that shows is handed to the next function, which uses and closes it as a
// person would. A dialog without a function, or one that its function left open, fails the test and is
// cancelled. Message boxes are not its affair; see MessageAnswers.
class WindowAnswers : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog &)>;

    explicit WindowAnswers(std::deque<Answer> answers = {});
    // Functions that no dialog came for fail the test.
    ~WindowAnswers() override;

    // The next popup menu that shows gets a click on the item of that object name, or Esc when it is empty.
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
