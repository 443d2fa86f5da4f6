// A host may do in a handler of any event what it may do at other times: load again, clear, even delete the
// control.
#include "Occasions.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <gtest/gtest.h>

#include <string_view>
#include <utility>

using namespace KovaTest;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

using Grid = KOVAVSFDataGrid;

namespace {

// What the host does in its handler.
struct Deed
{
    const char *name;
    void (*act)(Grid *grid);
};

std::ostream &operator<<(std::ostream &stream, const Deed &deed)
{
    return stream << deed.name;
}

const Deed Deeds[] = {
    {"Loads", [](Grid *grid) { grid->IsLoadData(); }},
    {"LoadsAnother",
     [](Grid *grid) {
         grid->PutSQLShow(u"select B, A from T where ID > 2"_s);
         grid->IsLoadData();
     }},
    {"Clears", [](Grid *grid) { grid->Clear(); }},
    {"ClearsObject", [](Grid *grid) { grid->ClearObject(); }},
    {"DeletesLater", [](Grid *grid) { grid->deleteLater(); }},
    {"Deletes", [](Grid *grid) { delete grid; }},
};

class Handler : public QObject
{
    Q_OBJECT

public:
    Handler(Grid *grid, const Deed &deed) : m_grid(grid), m_deed(deed) {}
    bool wasCalled() const { return m_wasCalled; }

public Q_SLOTS:
    void act()
    {
        if (!std::exchange(m_wasCalled, true))
            m_deed.act(m_grid);
    }

private:
    Grid *m_grid;
    Deed m_deed;
    bool m_wasCalled = false;
};

// Closes menus and dialogs, because there is no user: chooses the first field if there are any, and cancels
// all else.
class Closer : public QObject
{
public:
    Closer() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isWaiting = qobject_cast<QMenu *>(watched) ||
                               (qobject_cast<QDialog *>(watched) && !qobject_cast<QMessageBox *>(watched));
        if (isWaiting && event->type() == QEvent::Show) {
            auto *window = static_cast<QWidget *>(watched);
            QMetaObject::invokeMethod(
                window, [window] { end(*window); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void end(QWidget &window)
    {
        const auto *fields = window.findChild<QAbstractItemView *>(u"lvSelField"_s);
        if (!fields) {
            window.close();
            return;
        }
        fields->model()->setData(fields->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        window.findChild<QAbstractButton *>(u"cmdOK"_s)->click();
    }
};

void connectEvents(QObject &sender, const char *event, Handler &handler)
{
    const QMetaObject &meta = *sender.metaObject();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal && meta.method(i).name() == event)
            QObject::connect(
                &sender, meta.method(i), &handler,
                Handler::staticMetaObject.method(Handler::staticMetaObject.indexOfSlot("act()")));
    }
}

struct Reentrancy : testing::TestWithParam<std::tuple<Occasion, Deed>>
{
};

std::string nameOf(const testing::TestParamInfo<Reentrancy::ParamType> &info)
{
    const auto &[occasion, deed] = info.param;
    return std::string(occasion.event) + "By" + occasion.name + deed.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, Reentrancy,
                         testing::Combine(testing::ValuesIn(occasions()), testing::ValuesIn(Deeds)), nameOf);

TEST_P(Reentrancy, AHandlerDoesAsItLikes)
{
    const auto &[occasion, deed] = GetParam();
    if (occasion.name == "Resizing"sv && deed.name == "Deletes"sv)
        GTEST_SKIP() << "Qt itself goes on with the widget that was resized";
    const TestDatabase database(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, A TEXT, B INTEGER);"
                                "INSERT INTO T VALUES (1,'a',10),(2,'b',20),(3,'c',30),(4,'d',40)"_s);
    QWidget form;
    form.resize(900, 500);
    QPointer<Grid> grid = new Grid(&form);
    grid->resize(form.size());
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    grid->PutDBType(Grid::dbAccess);
    grid->PutConnectionString(database.connectionString());
    grid->PutSQLShow(u"select * from T where ID > 0"_s);
    ASSERT_TRUE(grid->IsLoadData());
    MessageAnswers messages({QMessageBox::Yes});
    Closer closer;
    occasion.prepare(*grid);
    QCoreApplication::processEvents(); // the toolbar places its buttons

    Handler handler(grid, deed);
    connectEvents(*grid, occasion.event, handler);
    connectEvents(*grid->GetBond(), occasion.event, handler);
    occasion.cause(*grid);
    EXPECT_TRUE(handler.wasCalled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (!grid)
        return;
    // It works on as ever.
    grid->PutSQLShow(u"select * from T"_s);
    EXPECT_TRUE(grid->IsLoadData());
    clickCell(*grid);
    EXPECT_EQ(grid->CurrPosition(), 2);
    for (const QString &text : messages.texts())
        EXPECT_EQ(text, u"确实要删除该记录?"_s);
}

#include "ReentrancyTest.moc"
