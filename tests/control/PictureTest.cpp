// The picture of a clicked record, which is left in a file beside the host program.
#include "GridFixture.h"

#include "support/MessageAnswers.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QSignalSpy>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Two pixels by one, 24 bits each.
const QByteArray Bitmap =
    QByteArray::fromHex("424d3e000000000000003600000028000000020000000100000001001800"
                        "0000000008000000130b0000130b000000000000000000000000ff00ff00000000");

struct Picture : GridFixture
{
    Picture()
        : GridFixture(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, Photo BLOB, Other BLOB);"
                      "INSERT INTO T VALUES (1,x'%1',x'00'),(2,NULL,x'01'),(3,x'00ff0a0d00',NULL)"_s.arg(
                          QString::fromLatin1(Bitmap.toHex())))
    {
        QFile::remove(file);
    }
    ~Picture() override { QFile::remove(file); }

    void show(const QString &pictureField)
    {
        grid.PutPicField(pictureField);
        ASSERT_TRUE(load(u"select * from T order by ID"_s));
    }
    QByteArray left() const
    {
        QFile picture(file);
        return picture.open(QIODevice::ReadOnly) ? picture.readAll() : "no file";
    }
    void leaveAnOldOne() const
    {
        QFile old(file);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write(
            "a longer old picture than any other one in this test, so that a rest of it would show up here");
    }

    const QString file = QDir(QCoreApplication::applicationDirPath()).filePath(u"PicRecord.bmp"_s);
};

} // namespace

TEST_F(Picture, IsWrittenByteForByte)
{
    show(u"Photo"_s);
    EXPECT_EQ(left(), "no file") << "a load alone writes none";
    click(1, 1);
    EXPECT_EQ(left(), Bitmap);
    click(3, 1);
    EXPECT_EQ(left(), QByteArray::fromHex("00ff0a0d00"));
}

TEST_F(Picture, ReplacesTheOldFile)
{
    show(u"Photo"_s);
    leaveAnOldOne();
    click(1, 1);
    EXPECT_EQ(left(), Bitmap);
}

TEST_F(Picture, IsRemovedForARecordWithoutAPicture)
{
    show(u"Photo"_s);
    leaveAnOldOne();
    QSignalSpy clicks(&grid, &KOVAVSFDataGrid::DataClick);
    click(2, 1);
    EXPECT_EQ(left(), "no file");
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Picture, IsThereBeforeTheHostIsNotified)
{
    show(u"Photo"_s);
    QByteArray seen;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataClick, [&] { seen = left(); });
    click(1, 2);
    EXPECT_EQ(seen, Bitmap);
}

TEST_F(Picture, BelongsToTheNamedFieldAlone)
{
    show(u"Other"_s);
    click(1, 1);
    EXPECT_EQ(left(), QByteArray(1, '\0'));
    show(u"photo"_s); // names are case-sensitive
    click(1, 1);
    EXPECT_EQ(left(), "no file");
    show({});
    click(1, 1);
    EXPECT_EQ(left(), "no file");
}

TEST_F(Picture, IsRemovedByAHeadingClickWhichWritesNone)
{
    show(u"Photo"_s);
    leaveAnOldOne();
    QSignalSpy clicks(&grid, &KOVAVSFDataGrid::DataClick);
    click(0, 1);
    EXPECT_EQ(left(), "no file");
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Picture, IsNotWrittenBeforeALoad)
{
    grid.PutPicField(u"Photo"_s);
    click(1, 1);
    EXPECT_EQ(left(), "no file");
}

// A folder with the file's name can be neither removed nor emptied, whoever runs the test.
TEST_F(Picture, ThatCannotBeWrittenIsReportedOnce)
{
    show(u"Photo"_s);
    ASSERT_TRUE(QDir().mkdir(file));
    MessageAnswers messages;
    QSignalSpy clicks(&grid, &KOVAVSFDataGrid::DataClick);
    click(1, 1);
    click(3, 1);
    click(2, 1);
    ASSERT_EQ(messages.texts().size(), 1);
    EXPECT_TRUE(messages.texts().front().startsWith(u"无法写入文件："_s));
    EXPECT_EQ(clicks.count(), 3) << "the host is told all the same";
    ASSERT_TRUE(QDir().rmdir(file));
    click(1, 1);
    EXPECT_EQ(left(), Bitmap);
    EXPECT_EQ(messages.texts().size(), 1);
}
