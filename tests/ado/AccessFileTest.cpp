// Which files can be opened, and the errors for files that are not Access files or damaged.
#include "AccessSamples.h"
#include "Throwing.h"

#include <QtCore/QFile>
#include <QtCore/QRandomGenerator>
#include <gtest/gtest.h>

using namespace AdoTest;
using namespace ADODB;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class AccessFileTest : public testing::Test
{
protected:
    QString write(const QByteArray &bytes, const QString &name = u"test.mdb"_s) const
    {
        return writeFile(m_folder, bytes, name);
    }
    QString missing(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void open(const QString &connectionString)
{
    Connection().Open(connectionString);
}

// Reads every table and view; a damaged file must either be read or refused with a message.
void readAll(const QString &path, int &refused)
{
    try {
        const auto connection = openAccess(path);
        const QString names = cells(connection, u"SELECT name FROM sqlite_master"_s);
        for (const QString &name : names.split(u'\n', Qt::SkipEmptyParts)) {
            try {
                query(connection, u"SELECT * FROM \""_s + QString(name).replace(u'"', u"\"\""_s) + u'"');
            } catch (const Error &error) {
                ++refused;
                EXPECT_FALSE(error.Description().isEmpty());
            }
        }
    } catch (const Error &error) {
        ++refused;
        EXPECT_FALSE(error.Description().isEmpty());
    }
}

class DamagedAccessFileTest : public AccessFileTest, public testing::WithParamInterface<const char *>
{
protected:
    void SetUp() override
    {
        const QString path = samplePath(QLatin1StringView(GetParam()), m_folder);
        if (path.isEmpty())
            GTEST_SKIP() << GetParam() << " is not here; see sampleFile()";
        whole = contents(path);
    }

    QByteArray whole;
};

} // namespace

TEST_F(AccessFileTest, IsChosenByProviderOrEnding)
{
    REQUIRE_SAMPLE(old, "nwind.mdb");
    REQUIRE_SAMPLE(recent, "sample.accdb");
    for (const QString &text :
         {u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + old,
          u"provider=microsoft.ace.oledb.12.0;DATA SOURCE="_s + recent,
          u"Provider=Microsoft.ACE.OLEDB.16.0;Data Source='"_s + recent + u"';Persist Security Info=False"_s,
          u"Data Source="_s + old, u"Data Source="_s + recent})
        EXPECT_NO_THROW(open(text)) << text.toStdString();
    EXPECT_NO_THROW(open(u"Data Source="_s + write(contents(recent), u"销售 数据.ACCDB"_s)));
}

TEST_F(AccessFileTest, WhatIsNoAccessFileIsRefusedAndNeverCreated)
{
    for (const QString &provider : {u""_s, u"Provider=Microsoft.Jet.OLEDB.4.0;"_s}) {
        const auto refused = [&](const QString &path) {
            return errorOf([&] { open(provider + u"Data Source="_s + path); });
        };
        EXPECT_TRUE(refused(missing(u"没有.mdb"_s)).Description().contains(u"没有.mdb"_s));
        EXPECT_FALSE(QFile::exists(missing(u"没有.mdb"_s)));
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray("name;price\r\n"), QByteArray(8192, 'x'), QByteArray(8192, '\0'),
              QByteArray("SQLite format 3\0").leftJustified(8192, '\0'),
              QByteArray("\0\1\0\0Standard Jet DB\0", 20)}) {
            const Error error = refused(write(bytes));
            EXPECT_TRUE(error.is(adErrOpeningFile)) << error.what();
        }
        const QByteArray head = QByteArray("\0\1\0\0Standard ACE DB\0", 20);
        EXPECT_TRUE(refused(write((head + '\x63').leftJustified(8192, '\0'))).is(adErrOpeningFile))
            << "too new";
        EXPECT_TRUE(refused(write((head + '\2').leftJustified(8192, '\0'))).is(adErrOpeningFile))
            << "empty pages";
    }
    EXPECT_ADO_ERROR(adErrInvalidArgument, open(u"Provider=Microsoft.Jet.OLEDB.4.0"_s));
    EXPECT_ADO_ERROR(adErrOpeningFile, open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=/"_s));
}

TEST_F(AccessFileTest, WrongHeadsDoNoHarm)
{
    const QByteArray whole = contents(samplePath(QLatin1StringView(writtenSample), m_folder));
    constexpr qsizetype headSize = 0x98;
    int refused = 0;
    for (qsizetype at = 0; at < headSize; ++at) {
        SCOPED_TRACE(at);
        QByteArray bytes = whole;
        bytes[at] = static_cast<char>(~bytes[at]);
        readAll(write(bytes), refused);
    }
    EXPECT_GT(refused, 0);
    EXPECT_LT(refused, headSize) << "most of it says nothing about the tables";
}

TEST_P(DamagedAccessFileTest, CutOffFilesAreRefused)
{
    for (qsizetype size = 0; size < whole.size(); size += whole.size() / 40 + 1) {
        const QString path = write(whole.first(size), u"cut.mdb"_s);
        SCOPED_TRACE(size);
        EXPECT_ADO_ERROR(adErrOpeningFile, openAccess(path));
    }
    // At the end of a page it is not immediately evident that the rest is missing.
    int refused = 0;
    for (qsizetype size = 4096; size < whole.size(); size += (whole.size() / 12 / 4096 + 1) * 4096)
        readAll(write(whole.first(size), u"cut.mdb"_s), refused);
    EXPECT_GT(refused, 0);
}

TEST_P(DamagedAccessFileTest, WrongBytesDoNoHarm)
{
    const int rounds = qEnvironmentVariable("KOVA_DAMAGE_ROUNDS", u"40"_s).toInt();
    QRandomGenerator random(qEnvironmentVariable("KOVA_DAMAGE_SEED", u"1"_s).toUInt());
    int refused = 0;
    for (int round = 0; round < rounds; ++round) {
        QByteArray bytes = whole;
        // Some at random positions, some close together where a page has its numbers.
        const qsizetype page = random.bounded(static_cast<int>(bytes.size() / 2048)) * 2048;
        for (int i = 0; i < 20; ++i) {
            bytes[random.bounded(static_cast<int>(bytes.size() - 128)) + 128] =
                static_cast<char>(random.bounded(256));
            bytes[std::max<qsizetype>(page + random.bounded(100), 128)] =
                static_cast<char>(random.bounded(256));
        }
        SCOPED_TRACE(round);
        readAll(write(bytes, u"wrong.mdb"_s), refused);
    }
    EXPECT_GT(refused, 0);
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedAccessFileTest,
                         testing::Values("nwind.mdb", "sample.accdb", writtenSample));
