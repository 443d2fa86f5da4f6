#include "control/connection/ConnectionBuilder.h"

#include "support/Dialogs.h"
#include "support/WindowAnswers.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Builder : testing::Test
{
    void begin(const QString &text = {})
    {
        dialog.SetConnectionString(text);
        present(dialog);
    }
    QLineEdit &field(const char *name) const { return part<QLineEdit>(dialog, name); }
    bool isShown(const char *name) const { return field(name).isVisible(); }
    QString shownResult() const { return field("txtResult").text(); }
    QString shownTest() const { return part<QLabel>(dialog, "lblTest").text(); }
    QComboBox &targets() const { return part<QComboBox>(dialog, "cmbTarget"); }
    void choose(const QString &target) const
    {
        const int index = targets().findText(target);
        ASSERT_GE(index, 0) << qPrintable(target);
        targets().setFocus();
        while (targets().currentIndex() != index)
            QTest::keyClick(&targets(), targets().currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }
    void type(const char *name, const QString &text) const
    {
        field(name).setFocus();
        field(name).selectAll();
        QTest::keyClicks(&field(name), text);
    }

    QString tested;
    QString failure;
    ConnectionBuilder dialog{
        {{u"MariaDB"_s, u"PostgreSQL Unicode"_s}, {u"shop"_s}, [this](const QString &text) {
             tested = text;
             return failure;
         }}};
};

} // namespace

TEST_F(Builder, OffersFilesAndWhatIsInstalled)
{
    begin();
    QStringList offered;
    for (int index = 0; index < targets().count(); ++index)
        offered += targets().itemText(index);
    EXPECT_EQ(offered,
              QStringList({u"SQLite database file"_s, u"Access database file"_s, u"ODBC data source shop"_s,
                           u"ODBC driver MariaDB"_s, u"ODBC driver PostgreSQL Unicode"_s}));
}

TEST_F(Builder, ShowsTheFieldsThatTheTargetTakes)
{
    begin();
    EXPECT_TRUE(isShown("txtFile"));
    EXPECT_FALSE(isShown("txtUser"));
    EXPECT_FALSE(isShown("txtServer"));
    EXPECT_FALSE(isShown("txtPassword"));
    choose(u"Access database file"_s);
    EXPECT_TRUE(isShown("txtFile"));
    EXPECT_TRUE(isShown("txtPassword"));
    EXPECT_FALSE(isShown("txtUser"));
    choose(u"ODBC data source shop"_s);
    EXPECT_FALSE(isShown("txtFile"));
    EXPECT_TRUE(isShown("txtUser"));
    EXPECT_TRUE(isShown("txtPassword"));
    EXPECT_FALSE(isShown("txtServer"));
    choose(u"ODBC driver MariaDB"_s);
    for (const char *name : {"txtServer", "txtPort", "txtDatabase", "txtUser", "txtPassword"})
        EXPECT_TRUE(isShown(name)) << name;
}

TEST_F(Builder, MakesTheStringFromTheFields)
{
    begin();
    choose(u"ODBC driver PostgreSQL Unicode"_s);
    type("txtServer", u"db"_s);
    type("txtPort", u"5432"_s);
    type("txtDatabase", u"shop"_s);
    type("txtUser", u"me"_s);
    EXPECT_EQ(dialog.connectionString(),
              u"Driver=PostgreSQL Unicode;Server=db;Port=5432;Database=shop;UID=me"_s);
    EXPECT_EQ(shownResult(), dialog.connectionString());
}

TEST_F(Builder, APasswordIsInTheStringAndNowhereToBeSeen)
{
    begin(u"DSN=shop;Jet OLEDB:Database Password=marker1"_s);
    type("txtPassword", u"marker2"_s);
    EXPECT_EQ(dialog.connectionString(), u"Jet OLEDB:Database Password=marker1;DSN=shop;PWD=marker2"_s);
    EXPECT_EQ(shownResult(), u"DSN=shop;PWD=●●●●●●"_s);
    EXPECT_FALSE(field("txtPassword").displayText().contains(u"marker"_s));
}

TEST_F(Builder, APasswordOfAnAccessFileIsNowhereToBeSeenEither)
{
    begin(u"Provider=Microsoft.ACE.OLEDB.12.0;Data Source=a.mdb"_s);
    type("txtPassword", u"marker"_s);
    EXPECT_EQ(dialog.connectionString(),
              u"Provider=Microsoft.ACE.OLEDB.12.0;Data Source=a.mdb;Jet OLEDB:Database Password=marker"_s);
    EXPECT_EQ(shownResult(),
              u"Provider=Microsoft.ACE.OLEDB.12.0;Data Source=a.mdb;Jet OLEDB:Database Password=●●●●●●"_s);
    EXPECT_FALSE(field("txtPassword").displayText().contains(u"marker"_s));
    press(dialog, "cmdTest");
    EXPECT_EQ(tested, dialog.connectionString());
}

TEST_F(Builder, BeginsWithTheGivenString)
{
    begin(u"Driver={MariaDB};Server=db;Port=3306;Database=shop;UID=me;PWD=secret;sslmode=require"_s);
    EXPECT_EQ(targets().currentText(), u"ODBC driver MariaDB"_s);
    EXPECT_EQ(field("txtServer").text(), u"db"_s);
    EXPECT_EQ(field("txtPort").text(), u"3306"_s);
    EXPECT_EQ(field("txtDatabase").text(), u"shop"_s);
    EXPECT_EQ(field("txtUser").text(), u"me"_s);
    EXPECT_EQ(field("txtPassword").text(), u"secret"_s);
    EXPECT_EQ(dialog.connectionString(),
              u"sslmode=require;Driver=MariaDB;Server=db;Port=3306;Database=shop;UID=me;PWD=secret"_s);
    choose(u"ODBC data source shop"_s);
    EXPECT_EQ(dialog.connectionString(), u"DSN=shop;UID=me;PWD=secret"_s);
}

TEST_F(Builder, KeepsATargetThatIsNotInstalled)
{
    begin(u"DSN=elsewhere;UID=me"_s);
    EXPECT_EQ(targets().currentText(), u"ODBC data source elsewhere (not installed)"_s);
    EXPECT_EQ(dialog.connectionString(), u"DSN=elsewhere;UID=me"_s);
}

TEST_F(Builder, StartsEmptyWhereTheStringMakesNoSense)
{
    begin(u"no keyword"_s);
    EXPECT_EQ(targets().currentText(), u"SQLite database file"_s);
    EXPECT_TRUE(field("txtFile").text().isEmpty());
}

TEST_F(Builder, OkAndTestNeedAFileName)
{
    begin();
    EXPECT_FALSE(part(dialog, "OKButton").isEnabled());
    EXPECT_FALSE(part(dialog, "cmdTest").isEnabled());
    type("txtFile", u"shop.db"_s);
    EXPECT_TRUE(part(dialog, "OKButton").isEnabled());
    EXPECT_TRUE(part(dialog, "cmdTest").isEnabled());
    EXPECT_EQ(dialog.connectionString(), u"Provider=SQLite;Data Source=shop.db"_s);
}

TEST_F(Builder, AFileCanBeChosen)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"shop.db"_s);
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    begin();
    WindowAnswers windows({[&](QDialog &chooser) {
        part<QLineEdit>(chooser, "fileNameEdit").setText(path);
        QTest::keyClick(&part<QLineEdit>(chooser, "fileNameEdit"), Qt::Key_Return);
    }});
    press(dialog, "cmdBrowse");
    EXPECT_EQ(field("txtFile").text(), path);
}

TEST_F(Builder, TheTestTriesTheStringWithItsPassword)
{
    begin(u"DSN=shop;PWD=secret"_s);
    press(dialog, "cmdTest");
    EXPECT_EQ(tested, u"DSN=shop;PWD=secret"_s);
    EXPECT_EQ(shownTest(), u"Connected."_s);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(Builder, TheTestShowsTheDatabasesOwnWords)
{
    begin(u"DSN=shop"_s);
    failure = u"FATAL: no such <b>role</b>"_s;
    press(dialog, "cmdTest");
    EXPECT_EQ(shownTest(), u"The connection failed: FATAL: no such <b>role</b>"_s);
    EXPECT_EQ(part<QLabel>(dialog, "lblTest").textFormat(), Qt::PlainText);
    type("txtUser", u"me"_s);
    EXPECT_TRUE(shownTest().isEmpty()) << "what was tried is not what is there now";
}

TEST_F(Builder, EnterAcceptsAndEscCancels)
{
    begin(u"DSN=shop"_s);
    field("txtUser").setFocus();
    key(dialog, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
    present(dialog);
    key(dialog, Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(Builder, EveryFieldHasAnAccessibleName)
{
    begin();
    for (const QLineEdit *each : dialog.findChildren<QLineEdit *>())
        EXPECT_FALSE(each->accessibleName().isEmpty()) << qPrintable(each->objectName());
    EXPECT_EQ(targets().accessibleName(), u"Connect to"_s);
}
