// The INI file beside the library and the one setting of the user.
#include "control/settings/Configuration.h"
#include "ado/ConnectionFactory.h"
#include "control/face/KOVAVSFDataGrid.h"
#include "control/settings/platform/ModuleFolder.h"
#include "support/TestDatabase.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <gtest/gtest.h>

#ifdef Q_OS_LINUX
#include <algorithm>
#include <array>
#include <sys/inotify.h>
#include <unistd.h>
#endif

using namespace KOVAVSFDataGridLib;
using KovaTest::TestDatabase;
using namespace Qt::StringLiterals;

namespace {

// The library's file is this program here, so the INI file is one beside the program.
struct ThreeTierFile : testing::Test
{
    ThreeTierFile() { QFile::remove(path); }
    ~ThreeTierFile() override { QFile::remove(path); }

    void write(const QByteArray &text) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    const QString path = QDir(moduleFolder()).filePath(u"MERIXUSER3TIER.cfg"_s);
};

#ifdef Q_OS_LINUX
// How often a file is opened, as the system tells.
class OpenCounter
{
public:
    explicit OpenCounter(const QString &path)
    {
        EXPECT_GE(inotify_add_watch(m_queue, QFile::encodeName(path).constData(), IN_OPEN | IN_CLOSE), 0);
    }
    ~OpenCounter() { close(m_queue); }
    Q_DISABLE_COPY_MOVE(OpenCounter)

    // Since the last time. Equal events in a row are reported as one, so that each must be followed by a
    // close.
    int opens() const
    {
        std::array<inotify_event, 100> events;
        const auto bytes = read(m_queue, events.data(), sizeof events);
        const auto count = bytes < 0 ? 0 : bytes / static_cast<ssize_t>(sizeof(inotify_event));
        return static_cast<int>(std::count_if(events.begin(), events.begin() + count,
                                              [](const auto &event) { return event.mask & IN_OPEN; }));
    }

private:
    const int m_queue = inotify_init1(IN_NONBLOCK);
};
#endif

struct SwitchCase
{
    const char *text;
    qint32 isOn;
};

struct ThreeTierSwitch : ThreeTierFile, testing::WithParamInterface<SwitchCase>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Files, ThreeTierSwitch,
    testing::Values(
        SwitchCase{"[Use3Tier]\nMERIX=yes\n", 1}, SwitchCase{"[Use3Tier]\nMERIX=YES \n", 1},
        SwitchCase{"[Use3Tier]\nMERIX=Yes", 1}, SwitchCase{"[USE3TIER]\r\nmerix = yes\r\n", 1},
        SwitchCase{"[ Use3Tier ]\n  MERIX\t=\t yEs\t\n", 1}, SwitchCase{"[Use3Tier]\nMERIX=\"YES\"\n", 1},
        SwitchCase{"[Use3Tier]\nMERIX=\"YES \"\n", 1}, SwitchCase{"\xEF\xBB\xBF[Use3Tier]\nMERIX=YES\n", 1},
        SwitchCase{"; note\n[Other]\nMERIX=NO\n\n[Use3Tier]\n;MERIX=NO\nX=1\nMERIX=YES\n", 1},
        SwitchCase{"[Use3Tier]\nMERIX=YES\nMERIX=NO\n", 1},
        SwitchCase{"[Use3Tier]\nMERIX=NO\nMERIX=YES\n", 0}, SwitchCase{"[MERIX]\nUse3Tier=YES\n", 0},
        SwitchCase{"MERIX=YES\n", 0}, SwitchCase{"[Use3Tier]\n[Other]\nMERIX=YES\n", 0},
        SwitchCase{"[Use3Tier]\nMERIX=NO\n", 0}, SwitchCase{"[Use3Tier]\nMERIX=\n", 0},
        SwitchCase{"[Use3Tier]\nMERIX\n", 0}, SwitchCase{"[Use3Tier]\nMERIXX=YES\n", 0},
        SwitchCase{"[Use3Tier]\nMERIX=YES, really\n", 0}, SwitchCase{"[Use3Tier]\n;MERIX=YES\n", 0},
        SwitchCase{"", 0}));

TEST_P(ThreeTierSwitch, IsOnOnlyForYesInItsSectionAndKey)
{
    write(GetParam().text);
    EXPECT_EQ(readThreeTierSwitch(), GetParam().isOn);
}

TEST_F(ThreeTierFile, MissingMeansOff)
{
    EXPECT_EQ(readThreeTierSwitch(), 0);
    EXPECT_EQ(readProfileValue(u"Use3Tier"_s, u"MERIX"_s, path), u"Return Err"_s);
}

TEST_F(ThreeTierFile, ValuesAreReadUnchanged)
{
    write("[Paths]\nFolder=C:\\new\\table; all %20, 中文 = \"x\"\nEmpty=\nLong=" + QByteArray(400, 'x') +
          "\n");
    EXPECT_EQ(readProfileValue(u"Paths"_s, u"Folder"_s, path), u"C:\\new\\table; all %20, 中文 = \"x\""_s);
    EXPECT_EQ(readProfileValue(u"Paths"_s, u"Empty"_s, path), QString());
    EXPECT_EQ(readProfileValue(u"Paths"_s, u"Missing"_s, path), u"Return Err"_s);
    EXPECT_EQ(readProfileValue(u"Paths"_s, u"Long"_s, path).size(), 254);
}

TEST_F(ThreeTierFile, AFileInUtf16IsReadByItsByteOrderMark)
{
    const QString text = u"\uFEFF[Use3Tier]\r\nMERIX=YES\r\n"_s;
    write(QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2));
    EXPECT_EQ(readThreeTierSwitch(), 1);
}

TEST_F(ThreeTierFile, MayNameTheMiddleTier)
{
    const QString text = u"Driver={PostgreSQL Unicode};Server=pool;Options="_s + QString(300, u'x');
    write("[Use3Tier]\nMERIX=YES\nServer = pool \nPort=6432\nConnection=" + text.toUtf8() + "\n");
    EXPECT_EQ(readThreeTierSettings().tier.server, u"pool"_s);
    EXPECT_EQ(readThreeTierSettings().tier.port, u"6432"_s);
    EXPECT_EQ(readThreeTierSettings().tier.connection, text) << "whole, however long";

    write("[Use3Tier]\nMERIX=YES\n[Other]\nServer=pool\n");
    EXPECT_TRUE(readThreeTierSettings().tier.server.isEmpty());
    EXPECT_TRUE(readThreeTierSettings().tier.connection.isEmpty());
}

TEST_F(ThreeTierFile, LoadsGoThroughTheMiddleTierItNames)
{
    const TestDatabase direct(u"CREATE TABLE T (A TEXT); INSERT INTO T VALUES ('direct')"_s);
    const TestDatabase tier(u"CREATE TABLE T (A TEXT); INSERT INTO T VALUES ('tier')"_s);
    write("[Use3Tier]\nMERIX=YES\nConnection=" + tier.connectionString().toUtf8() + "\n");
    KOVAVSFDataGrid grid;
    grid.PutConnectionString(direct.connectionString());
    grid.PutSQLShow(u"SELECT A FROM T"_s);
    const auto shown = [&] {
        EXPECT_TRUE(grid.IsLoadData());
        return grid.CellText(1, 1);
    };
    grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    EXPECT_EQ(shown(), u"tier"_s);
    write("[Use3Tier]\nMERIX=NO\nConnection=" + tier.connectionString().toUtf8() + "\n");
    EXPECT_EQ(shown(), u"direct"_s);
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
}

TEST_F(ThreeTierFile, TheFactoryIsNotifiedWhenAControlIsMade)
{
    write("[Use3Tier]\nMERIX=YES\n");
    ADODB::ConnectionFactory::setInstance(nullptr);
    KOVAVSFDataGrid grid;
    EXPECT_TRUE(ADODB::ConnectionFactory::instance().ThreeTier());

    // A new factory is told by the next load.
    grid.ClearObject();
    EXPECT_FALSE(ADODB::ConnectionFactory::instance().ThreeTier());
    grid.PutConnectionString(u"Provider=SQLite;Data Source=:memory:"_s);
    grid.PutSQLShow(u"select 1 as A from (select 2)"_s);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_TRUE(ADODB::ConnectionFactory::instance().ThreeTier());

    write("[Use3Tier]\nMERIX=NO\n");
    const KOVAVSFDataGrid another;
    EXPECT_FALSE(ADODB::ConnectionFactory::instance().ThreeTier());
}

#ifdef Q_OS_LINUX
TEST_F(ThreeTierFile, IsOpenedOnceForALoad)
{
    write("[Use3Tier]\nMERIX=NO\n");
    KOVAVSFDataGrid grid;
    grid.PutConnectionString(u"Provider=SQLite;Data Source=:memory:"_s);
    grid.PutSQLShow(u"select 1 as A from (select 2)"_s);
    const OpenCounter counter(path);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_EQ(counter.opens(), 1);
    ASSERT_TRUE(grid.IsLoadData());
    EXPECT_EQ(counter.opens(), 1);
}
#endif

TEST(SelectWholeRows, IsOnUntilTheUserSaysOtherwise)
{
    QSettings settings(u"KOVAVSFDataGrid"_s, u"KOVAVSFDataGrid"_s);
    settings.remove(u"Settings/ResChkSelAllRow"_s);
    settings.sync();
    EXPECT_TRUE(readSelectWholeRows());
    saveSelectWholeRows(false);
    EXPECT_FALSE(readSelectWholeRows());
    settings.sync();
    EXPECT_EQ(settings.value(u"Settings/ResChkSelAllRow"_s).toString(), u"0"_s);
    saveSelectWholeRows(true);
    EXPECT_TRUE(readSelectWholeRows());
}
