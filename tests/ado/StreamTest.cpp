#include "Throwing.h"

#include "ado/Stream.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

Stream openBinary()
{
    Stream stream;
    stream.PutType(adTypeBinary);
    stream.Open();
    return stream;
}

TEST(Stream, SavesAPictureToANewFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"图片.bmp"_s);
    Stream stream = openBinary();
    const QByteArray picture("BM\0\1\xff", 5);
    stream.Write(picture);
    stream.SaveToFile(path);
    EXPECT_EQ(contentOf(path), picture);
    EXPECT_EQ(stream.Position(), 0);
}

TEST(Stream, ReplacesAFileOnlyOnRequest)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a"_s);
    Stream stream = openBinary();
    stream.Write("long content");
    stream.SaveToFile(path, adSaveCreateNotExist);
    stream.Close();
    stream.Open();
    stream.Write("new");
    EXPECT_ADO_ERROR(adErrWriteFile, stream.SaveToFile(path, adSaveCreateNotExist));
    EXPECT_EQ(contentOf(path), "long content");
    stream.SaveToFile(path, adSaveCreateOverWrite);
    EXPECT_EQ(contentOf(path), "new");
}

TEST(Stream, NamesTheFileItCantWrite)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"missing/a.bmp"_s);
    Stream stream = openBinary();
    stream.Write("x");
    const Error error = AdoTest::errorOf([&] { stream.SaveToFile(path, adSaveCreateOverWrite); });
    EXPECT_TRUE(error.is(adErrWriteFile));
    EXPECT_TRUE(error.Description().contains(QDir::toNativeSeparators(path))) << error.what();
    EXPECT_ADO_ERROR(adErrInvalidArgument, stream.SaveToFile(path, static_cast<SaveOptionsEnum>(7)));
}

TEST(Stream, ReadsAndOverwritesAtItsPosition)
{
    Stream stream = openBinary();
    stream.Write("abcdef");
    stream.PutPosition(2);
    EXPECT_EQ(stream.Read(3), "cde");
    EXPECT_EQ(stream.Position(), 5);
    EXPECT_EQ(stream.Read(), "f");
    EXPECT_EQ(stream.Read(), "");
    stream.PutPosition(4);
    stream.Write("XYZ");
    stream.PutPosition(0);
    EXPECT_EQ(stream.Read(), "abcdXYZ");
    stream.PutPosition(9);
    EXPECT_EQ(stream.Size(), 9);
    EXPECT_ADO_ERROR(adErrInvalidArgument, stream.PutPosition(-1));
    EXPECT_ADO_ERROR(adErrInvalidArgument, stream.Read(-5));
}

TEST(Stream, CarriesTexts)
{
    Stream stream;
    EXPECT_EQ(stream.Type(), adTypeText);
    stream.Open();
    stream.WriteText(u"中文"_s);
    EXPECT_EQ(stream.Size(), 6);
    stream.PutPosition(0);
    EXPECT_EQ(stream.ReadText(), u"中文"_s);
    EXPECT_ADO_ERROR(adErrIllegalOperation, stream.Write("x"));
    EXPECT_ADO_ERROR(adErrIllegalOperation, stream.PutType(adTypeBinary));
    stream.PutPosition(0);
    stream.PutType(adTypeBinary);
    EXPECT_ADO_ERROR(adErrIllegalOperation, stream.ReadText());
    EXPECT_ADO_ERROR(adErrInvalidArgument, stream.PutType(static_cast<StreamTypeEnum>(3)));
}

TEST(Stream, RefusesWorkWhileClosed)
{
    Stream stream;
    EXPECT_EQ(stream.State(), adStateClosed);
    EXPECT_ADO_ERROR(adErrObjectClosed, stream.Close());
    EXPECT_ADO_ERROR(adErrObjectClosed, stream.WriteText(u"x"_s));
    EXPECT_ADO_ERROR(adErrObjectClosed, stream.Size());
    EXPECT_ADO_ERROR(adErrObjectClosed, stream.SaveToFile(u"x"_s));
    stream.Open();
    EXPECT_EQ(stream.State(), adStateOpen);
    EXPECT_ADO_ERROR(adErrObjectOpen, stream.Open());
}

} // namespace
