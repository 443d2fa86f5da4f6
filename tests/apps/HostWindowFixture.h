#pragma once

#include "window/HostWindow.h"

#include "tab/QueryPage.h"
#include "tab/StatementEdit.h"

#include <KOVAVSFDataGrid>

#include "support/ExpectedWarnings.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtCore/QBuffer>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtTest/QTest>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>
#include <gtest/gtest.h>

namespace KovaTest {

// A user at the window of kovagrid, which shows the orders of a small database.
class HostWindowFixture : public testing::Test
{
protected:
    HostWindowFixture()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
        open();
    }
    ~HostWindowFixture() override { window->close(); }

    void open()
    {
        Options options;
        options.connection = database.connectionString();
        options.sql = QStringLiteral("select * from orders");
        window = std::make_unique<HostWindow>(options);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->page()->loadForm();
    }

    StatementEdit &statement() const { return *window->page()->statement(); }
    QTableView &table() const
    {
        return *window->grid()->findChild<QTableView *>(QStringLiteral("vsfgDataGrid"));
    }
    QTabWidget &tabs() const { return *qobject_cast<QTabWidget *>(window->centralWidget()); }
    QTreeWidget &tables() const { return *window->findChild<QTreeWidget *>(QStringLiteral("tables")); }
    QDockWidget &dock(const QString &name) const { return *window->findChild<QDockWidget *>(name); }
    QStringList listed() const
    {
        QStringList names;
        for (int group = 0; group < tables().topLevelItemCount(); ++group) {
            names.append(tables().topLevelItem(group)->text(0));
            for (int i = 0; i < tables().topLevelItem(group)->childCount(); ++i)
                names.append(tables().topLevelItem(group)->child(i)->text(0));
        }
        return names;
    }
    QTreeWidgetItem *item(const QString &name) const
    {
        return tables().findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window->focusWidget(), key, modifiers);
    }
    void drop(const QString &file) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent entering({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &entering);
        EXPECT_TRUE(entering.isAccepted());
        QDropEvent dropping({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &dropping);
    }

    static QString pictureAsHex()
    {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        return QString::fromLatin1(bytes.toHex());
    }

    QTemporaryDir home;
    TestDatabase database{
        QStringLiteral("CREATE TABLE orders (ID INTEGER PRIMARY KEY, 名称 TEXT, P BLOB);"
                       "INSERT INTO orders VALUES (1,'甲',NULL),(2,'乙',x'%1'),(3,'丙',x'00');"
                       "CREATE TABLE [two words] (A); INSERT INTO [two words] VALUES (7);"
                       "CREATE VIEW v AS SELECT 1 AS one")
            .arg(pictureAsHex())};
    std::unique_ptr<HostWindow> window;
    MessageAnswers messages;
    ExpectedWarning noRaise{QStringLiteral("does not support raise()")};
    ExpectedWarning noGrab{QStringLiteral("does not support grabbing the keyboard")};
};

} // namespace KovaTest
