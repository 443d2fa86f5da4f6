// What a developer can do with the grid in Qt Designer, tried in Qt Designer itself on a display of its own.
#include "support/TestDatabase.h"

#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <gtest/gtest.h>

#include <optional>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Session
{
    QHash<QString, QString> seen;
    QString form; // the file as it was saved
    QString output;
    int exitCode = -1;
};

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

Session runDesigner(const QString &designer, const QString &xvfb)
{
    const TestDatabase database{u"CREATE TABLE Goods (ID INTEGER PRIMARY KEY, Name TEXT);"
                                "INSERT INTO Goods VALUES (1,'茶'),(2,'米'),(3,'酒')"_s};
    const QTemporaryDir folder;
    const QString form = folder.filePath(u"form.ui"_s);
    EXPECT_TRUE(QFile::copy(QStringLiteral(KOVA_FORM_FILE), form));
    QFile(form).setPermissions(QFile::ReadOwner | QFile::WriteOwner);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    environment.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(KOVA_PLUGIN_PATH));
    environment.insert(u"HOME"_s, folder.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
    environment.insert(u"XDG_DATA_HOME"_s, folder.path());
    environment.insert(u"KOVA_SCRIPT_REPORT"_s, folder.filePath(u"report"_s));
    environment.insert(u"KOVA_SCRIPT_CONNECTION"_s, database.connectionString());

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(xvfb, {u"-a"_s, u"-s"_s, u"-screen 0 1600x1200x24"_s, designer, form});
    Session session;
    if (process.waitForFinished(90'000))
        session.exitCode = process.exitCode();
    process.kill();
    process.waitForFinished();
    session.output = QString::fromUtf8(process.readAll());
    for (const QString &line : textOf(folder.filePath(u"report"_s)).split(u'\n', Qt::SkipEmptyParts))
        session.seen.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
    session.form = textOf(form);
    return session;
}

// One session serves all tests.
struct Designer : testing::Test
{
    static void SetUpTestSuite()
    {
        const QString designer =
            QStandardPaths::findExecutable(u"designer"_s, {QStringLiteral(KOVA_QT_BIN_DIR)});
        const QString xvfb = QStandardPaths::findExecutable(u"xvfb-run"_s);
        if (!designer.isEmpty() && !xvfb.isEmpty())
            session = runDesigner(designer, xvfb);
    }
    void SetUp() override
    {
        if (!session)
            GTEST_SKIP() << "Qt Designer (designer-qt6) or a virtual display (xvfb) is not installed";
        ASSERT_EQ(session->exitCode, 0) << qPrintable(session->seen.value(u"failure"_s)) << "\n"
                                        << qPrintable(session->output);
    }
    static QString seen(const QString &name) { return session->seen.value(name, u"(not seen)"_s); }

    static inline std::optional<Session> session;
};

} // namespace

TEST_F(Designer, OffersTheGridInItsWidgetBox)
{
    EXPECT_EQ(seen(u"group"_s), u"Database"_s);
    EXPECT_EQ(seen(u"toolTip"_s), u"SQL result grid"_s);
    EXPECT_EQ(seen(u"includeFile"_s), u"<KOVAVSFDataGrid>"_s);
    EXPECT_GT(seen(u"iconSizes"_s).toInt(), 0) << "the widget box shows no icon without sizes";
}

TEST_F(Designer, OpensAFormWithTheGrid)
{
    EXPECT_EQ(seen(u"class"_s), u"KOVAVSFDataGrid"_s);
    EXPECT_EQ(seen(u"backColor"_s), u"#c8dcf0"_s);
}

TEST_F(Designer, TheGridIsInDesignMode)
{
    EXPECT_EQ(seen(u"userMode"_s), u"false"_s);
    EXPECT_EQ(seen(u"useModel"_s), u"1"_s);
}

TEST_F(Designer, ThePageFromTheTaskMenuEditsSqlShow)
{
    EXPECT_EQ(seen(u"sqlShow"_s), u"select ID, Name from Goods"_s);
    EXPECT_EQ(seen(u"sqlPartDisplay"_s), u"select ID, Name from Goods"_s);
    EXPECT_EQ(seen(u"isDirty"_s), u"true"_s);
}

TEST_F(Designer, TheEditCanBeUndone)
{
    EXPECT_EQ(seen(u"sqlShowUndone"_s), QString());
    EXPECT_EQ(seen(u"sqlShowRedone"_s), u"select ID, Name from Goods"_s);
}

TEST_F(Designer, OnlyThePreviewTouchesTheDatabase)
{
    EXPECT_EQ(seen(u"recordSource"_s), QString());
    EXPECT_EQ(seen(u"previewRows"_s), u"3"_s);
    EXPECT_EQ(seen(u"previewCell"_s), u"米"_s);
    EXPECT_EQ(seen(u"previewUserMode"_s), u"true"_s);
    EXPECT_EQ(seen(u"recordSourceBehindPreview"_s), QString());
}

TEST_F(Designer, OnlyBackColorIsKeptInTheForm)
{
    EXPECT_EQ(seen(u"newBackColor"_s), u"#faf0e6"_s);
    QString expected = textOf(QStringLiteral(KOVA_FORM_FILE));
    expected.replace("<red>200<"_L1, "<red>250<"_L1);
    expected.replace("<green>220<"_L1, "<green>240<"_L1);
    expected.replace("<blue>240<"_L1, "<blue>230<"_L1);
    EXPECT_EQ(session->form, expected);
}
