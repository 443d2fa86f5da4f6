#include "DesignerScript.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtCore/QVariant>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QDesignerWidgetDataBaseItemInterface>
#include <QtGui/QAction>
#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QUndoStack>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTableView>

#include <exception>
#include <stdexcept>

namespace KovaTest {

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000; // milliseconds

void require(bool isTrue, const char *what)
{
    if (!isTrue)
        throw std::runtime_error(what);
}

template<typename Condition>
void waitFor(const Condition &condition, const char *what)
{
    require(QTest::qWaitFor(condition, patience), what);
}

void press(const QDialog &dialog, const QString &button)
{
    auto *found = dialog.findChild<QAbstractButton *>(button);
    require(found && found->isEnabled(), "a button that can be pressed");
    QTest::mouseClick(found, Qt::LeftButton);
}

// Calls back, from within whatever loop then runs, once the condition is true.
void whenever(const std::function<bool()> &condition, const std::function<void()> &then)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        if (!condition())
            return;
        timer->stop();
        timer->deleteLater();
        then();
    });
    timer->start(10);
}

} // namespace

void DesignerScript::run()
{
    int code = 0;
    try {
        play();
    } catch (const std::exception &error) {
        print(u"failure"_s, QString::fromUtf8(error.what()));
        code = 1;
    }
    std::_Exit(code); // what is left to save or to ask is of no interest
}

void DesignerScript::play()
{
    printWidgetBox();
    openForm();
    printDesignMode();
    editSqlShow();
    undoAndRedo();
    previewData();
    save();
}

void DesignerScript::printWidgetBox()
{
    const QDesignerWidgetDataBaseInterface &known = *m_core.widgetDataBase();
    const QDesignerWidgetDataBaseItemInterface *grid =
        known.item(known.indexOfClassName(u"KOVAVSFDataGrid"_s));
    require(grid, "the grid is known");
    print(u"group"_s, grid->group());
    print(u"toolTip"_s, grid->toolTip());
    print(u"includeFile"_s, grid->includeFile());
    print(u"iconSizes"_s, QString::number(grid->icon().availableSizes().size()));
}

void DesignerScript::openForm()
{
    waitFor([this] { return m_core.formWindowManager()->activeFormWindow(); }, "the form is open");
    m_form = m_core.formWindowManager()->activeFormWindow();
    m_grid = m_form->findChild<QWidget *>(u"grid"_s);
    require(m_grid, "the form holds the grid");
    require(QTest::qWaitForWindowExposed(m_grid->window()), "the form is seen");
    print(u"class"_s, QString::fromLatin1(m_grid->metaObject()->className()));
}

void DesignerScript::printDesignMode()
{
    print(u"userMode"_s, m_grid->property("UserMode").toString());
    edit(u"UseModel"_s, 1);
    print(u"useModel"_s, QString::number(m_grid->property("UseModel").toInt()));
    print(u"backColor"_s, m_grid->property("BackColor").value<QColor>().name());
    edit(u"BackColor"_s, QColor(250, 240, 230));
    print(u"newBackColor"_s, m_grid->property("BackColor").value<QColor>().name());
}

void DesignerScript::editSqlShow()
{
    edit(u"ConnectionString"_s, qEnvironmentVariable("KOVA_SCRIPT_CONNECTION"));
    choose(u"SQLShow"_s, [](QDialog &dialog) {
        auto *text = dialog.findChild<QLineEdit *>(u"txtSQLShow"_s);
        require(text, "the page has its text box");
        QTest::keyClicks(text, u"select ID, Name from Goods"_s);
        press(dialog, u"ApplyButton"_s);
        press(dialog, u"OKButton"_s);
    });
    print(u"sqlShow"_s, m_grid->property("SQLShow").toString());
    print(u"sqlPartDisplay"_s, m_grid->property("SQLPartDisplay").toString());
    print(u"isDirty"_s, QVariant(m_form->isDirty()).toString());
    print(u"recordSource"_s, m_grid->property("RecordSource").toString());
}

void DesignerScript::undoAndRedo()
{
    m_form->commandHistory()->undo();
    print(u"sqlShowUndone"_s, m_grid->property("SQLShow").toString());
    m_form->commandHistory()->redo();
    print(u"sqlShowRedone"_s, m_grid->property("SQLShow").toString());
}

void DesignerScript::previewData()
{
    choose(u"PreviewData"_s, [this](QDialog &dialog) {
        const auto *preview = dialog.findChild<QWidget *>(u"grid"_s);
        const auto *table = dialog.findChild<QTableView *>(u"vsfgDataGrid"_s);
        require(preview && table, "the preview holds a grid");
        waitFor([&] { return table->model()->rowCount() > 0; }, "the preview shows rows");
        print(u"previewRows"_s, QString::number(table->model()->rowCount()));
        print(u"previewCell"_s, table->model()->index(1, 1).data().toString());
        print(u"previewUserMode"_s, preview->property("UserMode").toString());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    print(u"recordSourceBehindPreview"_s, m_grid->property("RecordSource").toString());
}

void DesignerScript::save()
{
    QWidget *window = m_grid->window();
    window->activateWindow();
    require(QTest::qWaitForWindowActive(window), "Qt Designer's window has the keyboard");
    QTest::keySequence(window->windowHandle(), QKeySequence::Save);
    waitFor([this] { return !m_form->isDirty(); }, "the form is saved");
    print(u"saved"_s, m_form->fileName());
}

void DesignerScript::choose(const QString &entry, const std::function<void(QDialog &)> &useDialog)
{
    bool isDone = false;
    std::exception_ptr failure;
    whenever([] { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); },
             [&] {
                 auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                 for (QAction *action : menu->actions()) {
                     if (action->objectName() == entry) {
                         QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                         return;
                     }
                 }
                 menu->close();
             });
    whenever([] { return qobject_cast<QDialog *>(QApplication::activeModalWidget()); },
             [&] {
                 auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                 try {
                     useDialog(*dialog);
                 } catch (...) {
                     failure = std::current_exception();
                     dialog->reject();
                 }
                 isDone = true;
             });
    QWindow *window = m_grid->window()->windowHandle();
    // Not at the centre, because little of the form is seen; and two right clicks would be a double click.
    const QPoint inGrid = m_grid->mapTo(m_grid->window(), QPoint(80, 120));
    QTest::mouseClick(window, Qt::LeftButton, {}, inGrid);
    QTest::mouseClick(window, Qt::RightButton, {}, inGrid);
    waitFor([&] { return isDone; }, "the entry of the menu opens its dialog");
    if (failure)
        std::rethrow_exception(failure);
}

// As the property editor does.
void DesignerScript::edit(const QString &property, const QVariant &value)
{
    m_form->cursor()->setWidgetProperty(m_grid, property, value);
}

void DesignerScript::print(const QString &name, const QString &value) const
{
    QFile report(qEnvironmentVariable("KOVA_SCRIPT_REPORT"));
    if (report.open(QIODevice::Append | QIODevice::Text))
        report.write((name + u'=' + value + u'\n').toUtf8());
}

} // namespace KovaTest
