// Random clicks, keys and answers. KOVA_MONKEY_STEPS and KOVA_MONKEY_SEED set their number and the seed.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

#include <optional>
#include <random>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr int defaultSteps = 12'000;
constexpr int stepsOfLongRun = 100'000;

int numberFrom(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}

class Monkey : public Shop
{
protected:
    // A long run goes without Qt's cache of pictures. Qt 6.4 keeps the name of every picture that was ever in
    // it, even after QPixmapCache::clear(), and the style draws a picture for every size and palette: that is
    // megabytes after some 100,000 steps, which would be taken for what the control itself keeps.
    Monkey()
    {
        if (steps >= stepsOfLongRun)
            QPixmapCache::setCacheLimit(0);
        qApp->installEventFilter(this->windows.get());
    }
    ~Monkey() override { QPixmapCache::setCacheLimit(cacheLimit); }

    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    template<typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return values.begin()[pick(static_cast<int>(values.size()))];
    }

    // Uses a dialog in one of the ways that are open to a person, and closes it.
    void use(QDialog &dialog)
    {
        ++dialogs;
        if (pick(4) == 0)
            return cancel(dialog);
        const QString name = dialog.objectName();
        if (name == u"frmSelShowFields")
            tick(dialog, oneOf<QStringList>(
                             {{u"ID"_s}, {u"名称"_s, u"Unit Price"_s}, {u"ID"_s, u"城市"_s, u"图片"_s}}));
        else if (name == u"frmSelSortFields")
            sort(dialog, {oneOf({u"ID"_s, u"名称"_s, u"[Unit Price]"_s, u"日期"_s})}, pick(2) == 0);
        else if (name == u"FindDialog")
            find(dialog, oneOf({u"茶"_s, u"1 2"_s, u"'"_s, u"大连"_s, u"%"_s}),
                 oneOf({u""_s, u"名称"_s, u"ID"_s}));
        else if (name == u"frm_Filter")
            filter(dialog,
                   oneOf({u"ID > 3"_s, u"城市 IS NULL"_s, u"ID < 9 OR ID > 11"_s, u"名称 LIKE '%茶%'"_s}));
        else if (name == u"frm_FullScreen")
            walkIn(dialog);
        else
            cancel(dialog);
        if (dialog.isVisible())
            dialog.reject();
    }

    void walkIn(QDialog &viewer)
    {
        for (int left = pick(5); left > 0 && viewer.isVisible(); --left)
            pressAnyButton(*viewer.findChild<QToolBar *>(u"Toolbar1"_s));
    }

    // Catches every dialog and menu as it opens.
    struct Windows : QObject
    {
        explicit Windows(Monkey &owner) : monkey(owner) {}
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() != QEvent::Show)
                return false;
            if (auto *dialog = qobject_cast<QDialog *>(watched);
                dialog && !qobject_cast<QMessageBox *>(watched))
                QMetaObject::invokeMethod(
                    dialog, [this, dialog] { monkey.use(*dialog); }, Qt::QueuedConnection);
            if (auto *menu = qobject_cast<QMenu *>(watched))
                QMetaObject::invokeMethod(
                    menu, [this, menu] { monkey.chooseFrom(*menu); }, Qt::QueuedConnection);
            return false;
        }
        Monkey &monkey;
    };

    void chooseFrom(QMenu &menu)
    {
        ++menus;
        QAction *action = menu.actions().at(pick(static_cast<int>(menu.actions().size())));
        if (action->isVisible() && action->isEnabled() && !action->isSeparator() && pick(5) != 0)
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        if (menu.isVisible())
            QTest::keyClick(&menu, Qt::Key_Escape);
    }

    QTableView &front() { return isSingleRecordShown() ? *list : *table; }

    void pressAnyButton(const QToolBar &buttons)
    {
        QList<QWidget *> there;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (QAction *action : buttons.actions()) {
            if (QWidget *widget = buttons.widgetForAction(action);
                widget && widget->isVisible() && !action->isSeparator())
                there.append(widget);
        }
        QTest::mouseClick(there.at(pick(static_cast<int>(there.size()))), Qt::LeftButton);
    }

    void clickAnyCell(Qt::MouseButton button)
    {
        QTableView &view = front();
        const QPoint place(pick(view.viewport()->width()), pick(view.viewport()->height()));
        QTest::mouseClick(view.viewport(), button, {}, place);
    }

    void pressAnyKey()
    {
        QWidget *target = edit->isVisible() ? static_cast<QWidget *>(edit) : &front();
        target->setFocus();
        const auto key =
            oneOf({Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_F2,
                   Qt::Key_Escape, Qt::Key_Return, Qt::Key_7, Qt::Key_X, Qt::Key_Left, Qt::Key_Right});
        const bool isCommand = pick(6) == 0;
        QTest::keyClick(
            target,
            isCommand ? oneOf({Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_Home, Qt::Key_0}) : key,
            isCommand ? Qt::ControlModifier : Qt::NoModifier);
    }

    void callAnyMember()
    {
        switch (pick(6)) {
        case 0:
            grid.LocateSelRecord(pick(rows() + 3));
            break;
        case 1:
            grid.SeeCompressView();
            break;
        case 2:
            grid.resize(900 + pick(8) * 100, 300 + pick(9) * 50);
            break;
        case 3:
            if (QObject *recordset = grid.RecordSet(); recordset && rows() > 0)
                QMetaObject::invokeMethod(recordset, "MoveFirst");
            QCoreApplication::processEvents(); // the grid is updated after the host's action
            break;
        case 4:
            table->setColumnWidth(pick(table->model()->columnCount()), 20 + pick(20) * 10);
            break;
        default:
            if (pick(20) == 0) {
                loadAgain();
            }
            break;
        }
    }

    std::string step()
    {
        messages.answerNext(pick(2) == 0 ? QMessageBox::Yes : QMessageBox::No);
        const int what = pick(100);
        if (what < 45) {
            pressAnyButton(*toolbar);
            return "button";
        }
        if (what < 60) {
            clickAnyCell(Qt::LeftButton);
            return "click";
        }
        if (what < 75) {
            clickAnyCell(Qt::RightButton);
            return "menu";
        }
        if (what < 93) {
            pressAnyKey();
            return "key";
        }
        callAnyMember();
        return "member";
    }

    bool isEditing() const { return grid.RecordSet() && grid.RecordSet()->property("EditMode").toInt() != 0; }

    void checkInvariants()
    {
        ASSERT_NE(grid.RecordSet(), nullptr);
        EXPECT_EQ(rows(), grid.RecordSet()->property("RecordCount").toInt());
        EXPECT_NE(isPressed(u"All"_s), isPressed(u"Part"_s));
        EXPECT_EQ(isPressed(u"All"_s), grid.ShowModel() == KOVAVSFDataGrid::ModelAll);
        EXPECT_NE(table->isVisible(), list->isVisible());
        EXPECT_EQ(button(u"SingleRecord"_s)->isVisible(), table->isVisible());
        EXPECT_EQ(button(u"AllRecord"_s)->isVisible(), list->isVisible());
        EXPECT_FALSE(statement().isEmpty());
        EXPECT_FALSE(columns().isEmpty());
        if (rows() > 0 && !isEditing()) {
            EXPECT_EQ(grid.GetGridRowL(), grid.CurrPosition());
            const QString id = table->model()
                                   ->index(grid.GetGridRowL() - 1, grid.GetBindFieldIndex(u"ID"_s) - 1)
                                   .data()
                                   .toString();
            if (list->isVisible() && listedRow(u"ID"_s) >= 0) {
                EXPECT_EQ(listed(u"ID"_s), id);
            }
        }
        for (const QString &text : messages.texts()) {
            const bool isKnown = text.startsWith(u"记录没有保存："_s) ||
                                 text.startsWith(u"输入的内容无效："_s) || text == u"确实要删除该记录?"_s ||
                                 text.startsWith(u"删除操作与数据库的约束冲突"_s) ||
                                 text == u"再次插入空行操作已被取消"_s || text.startsWith(u"对不起，过滤"_s);
            EXPECT_TRUE(isKnown) << qUtf8Printable(text);
        }
        boxes += static_cast<int>(messages.shown().size());
        messages.clear();
    }

    // A record that can't be saved doesn't keep the monkey from it.
    void loadAgain()
    {
        messages.answerNext(QMessageBox::Discard);
        EXPECT_TRUE(load());
    }

    // With the records of the beginning: memory for records that became more could hide a leak.
    void startAfresh()
    {
        loadAgain();
        database.run(u"DELETE FROM 商品"_s);
        database.run(u"INSERT INTO 商品 SELECT * FROM as_it_was"_s);
        loadAgain();
    }

    const int steps = numberFrom("KOVA_MONKEY_STEPS", defaultSteps);
    const int cacheLimit = QPixmapCache::cacheLimit();
    std::mt19937 random;
    int dialogs = 0;
    int menus = 0;
    int boxes = 0;
    std::unique_ptr<Windows> windows = std::make_unique<Windows>(*this);
};

// The resources that the process uses, if the system reports them.
struct Held
{
    qint64 resident = 0; // KiB, with what the allocator keeps for later
    qint64 heap = 0;     // KiB in use
    qsizetype files = 0;
};

qint64 heapInUse()
{
#if defined(__GLIBC__)
    const auto memory = mallinfo2();
    return static_cast<qint64>((memory.uordblks + memory.hblkhd) / 1024);
#else
    return 0;
#endif
}

Held heldNow()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return {};
    Held held;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:"))
            held.resident = line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    held.heap = heapInUse();
    held.files =
        QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    return held;
}

} // namespace

TEST_F(Monkey, FindsNothingThatBreaksTheControl)
{
    const auto seed = static_cast<unsigned>(numberFrom("KOVA_MONKEY_SEED", 20240229));
    std::printf("monkey: %d steps from seed %u\n", steps, seed);
    random.seed(seed);
    database.run(
        u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i+1 FROM n WHERE i < 300)"
        " INSERT INTO 商品(ID,名称,城市) SELECT i, '茶' || i, CASE WHEN i % 5 THEN '大连' END FROM n"_s);
    database.run(u"CREATE TABLE as_it_was AS SELECT * FROM 商品"_s);
    ASSERT_TRUE(load());
    constexpr int stepsBetweenLooks = 4'000;
    std::optional<Held> first;
    for (int i = 0; i < steps && !HasFailure(); ++i) {
        const std::string what = step();
        checkInvariants();
        ASSERT_FALSE(HasFailure()) << "after step " << i << ", a " << what;
        if (i % 150 == 149) { // conditions grow too long to be worth while
            startAfresh();
        }
        if (i % stepsBetweenLooks == stepsBetweenLooks - 1) {
            const Held held = heldNow();
            std::printf("monkey: step %d, %lld KiB on the heap, %lld KiB resident, %lld files\n", i + 1,
                        static_cast<long long>(held.heap), static_cast<long long>(held.resident),
                        static_cast<long long>(held.files));
            std::fflush(stdout);
            if (!first)
                first = held;
            constexpr qint64 ofDialogs = 16'384; // which come and go
            EXPECT_LT(held.heap, first->heap + ofDialogs);
            EXPECT_LT(held.resident, 2 * first->resident);
            EXPECT_LE(held.files, first->files + 5);
        }
    }
    std::printf("monkey: %d dialogs, %d menus, %d message boxes, %s records left\n", dialogs, menus, boxes,
                qPrintable(database.ask(u"SELECT count(*) FROM 商品"_s)));
    if (steps >= 1000) { // or it was no test
        EXPECT_GT(dialogs, steps / 50);
        EXPECT_GT(menus, steps / 50);
        EXPECT_GT(boxes, 0);
    }
}
