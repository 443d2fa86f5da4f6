#include <QtCore/QFile>
#include <QtCore/QLibrary>
#include <gtest/gtest.h>

// The pictures are registered by an object file that no symbol refers to: a library put together so
// that the linker may leave such files out would load without its pictures.
TEST(LibraryResources, TheSharedLibraryBringsItsPictures)
{
    const QString picture = QStringLiteral(":/KOVAVSFDataGridLib/icons/All.svg");
    ASSERT_FALSE(QFile::exists(picture)) << "this program must not contain the pictures itself";
    QLibrary library(QStringLiteral(KOVA_LIBRARY_FILE));
    ASSERT_TRUE(library.load()) << qPrintable(library.errorString());
    EXPECT_TRUE(QFile::exists(picture));
}
