// The list of a single record as a form: what has to be filled in, new records from old ones and
// pictures.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtGui/QImage>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHeaderView>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct RecordForm : Shop
{
    QRect cell(const QString &field, int col) const
    {
        return list->visualRect(list->model()->index(listedRow(field), col));
    }
    // Whether something red is drawn at the right end of a field's name.
    bool isMarked(const QString &field) const
    {
        const QRect name = cell(field, 0);
        const QImage shown =
            list->viewport()->grab(QRect(name.right() - 9, name.top(), 9, name.height())).toImage();
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                const QColor colour = shown.pixelColor(x, y);
                if (colour.red() > colour.green() + 60)
                    return true;
            }
        }
        return false;
    }
    // Whether anything is drawn in a field's value.
    bool hasSign(const QString &field) const
    {
        const QImage shown = list->viewport()->grab(cell(field, 1).adjusted(2, 2, -2, -2)).toImage();
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixel(x, y) != shown.pixel(0, 0))
                    return true;
            }
        }
        return false;
    }
    QCheckBox &pictures() const { return *list->findChild<QCheckBox *>(u"chkPictures"_s); }
    QString pictureFile(const QColor &colour)
    {
        const QString path = folder.filePath(u"图.png"_s);
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(colour);
        EXPECT_TRUE(picture.save(path));
        return path;
    }
    void showPicturesOf(int record)
    {
        clickCell(record, 1);
        click(u"SingleRecord"_s);
        QTest::mouseClick(&pictures(), Qt::LeftButton);
        makeCurrent(u"图片"_s);
    }
    // Presses Return on the picture and picks the file in the dialog that comes.
    void replacePicture(const QString &path)
    {
        WindowAnswers dialogs({[&path](QDialog &dialog) {
            auto *chooser = qobject_cast<QFileDialog *>(&dialog);
            ASSERT_TRUE(chooser);
            chooser->selectFile(path);
            QMetaObject::invokeMethod(chooser, "accept");
        }});
        QTest::keyClick(list, Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([this] { return !grid.findChild<QFileDialog *>(); }));
    }
    QColor shownPicture() const
    {
        const QRect room = cell(u"图片"_s, 1);
        return list->viewport()->grab(room).toImage().pixelColor(15, 15);
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(RecordForm, NamesOfFieldsThatTakeNoNullAreMarked)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    click(u"SingleRecord"_s);
    list->clearSelection();
    EXPECT_TRUE(QTest::qWaitFor([this] { return isMarked(u"名称"_s); })) << "once the database was asked";
    EXPECT_FALSE(isMarked(u"城市"_s));
    EXPECT_EQ(listed(u"名称"_s), u"普洱茶"_s) << "the name itself stays as it is";
    click(u"AllRecord"_s);
    grid.setProperty("ReadOnly", true);
    click(u"SingleRecord"_s);
    list->clearSelection();
    EXPECT_FALSE(isMarked(u"名称"_s)) << "there is nothing to fill in";
}

TEST_F(RecordForm, FieldsThatTheDatabaseFillsAreNotMarked)
{
    database.run(
        u"CREATE TABLE 货架 (编号 INTEGER PRIMARY KEY NOT NULL, 名称 TEXT NOT NULL,"
        " 停用 BOOLEAN NOT NULL DEFAULT 0, 双倍 INTEGER NOT NULL GENERATED ALWAYS AS (编号 * 2));"
        "INSERT INTO 货架 (名称) VALUES ('左');"
        "CREATE TABLE 代码 (代码 INTEGER PRIMARY KEY NOT NULL) WITHOUT ROWID; INSERT INTO 代码 VALUES (1)"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 货架"_s, u"SELECT * FROM 货架"_s));
    click(u"SingleRecord"_s);
    list->clearSelection();
    EXPECT_TRUE(QTest::qWaitFor([this] { return isMarked(u"名称"_s); }));
    EXPECT_FALSE(isMarked(u"编号"_s)) << "the number of the row";
    EXPECT_FALSE(isMarked(u"停用"_s));
    EXPECT_FALSE(isMarked(u"双倍"_s));
    click(u"AllRecord"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 代码"_s, u"SELECT * FROM 代码"_s));
    click(u"SingleRecord"_s);
    list->clearSelection();
    EXPECT_TRUE(QTest::qWaitFor([this] { return isMarked(u"代码"_s); }));
}

TEST_F(RecordForm, AFieldWithoutAValueIsDistinguishedFromAnEmptyText)
{
    database.run(u"UPDATE 商品 SET 名称 = '' WHERE ID = 9"_s);
    ASSERT_TRUE(load());
    clickCell(9, 1);
    click(u"SingleRecord"_s);
    list->setCurrentIndex(list->model()->index(listedRow(u"ID"_s), 0));
    list->clearSelection();
    EXPECT_FALSE(hasSign(u"名称"_s));
    EXPECT_TRUE(hasSign(u"城市"_s));
    EXPECT_EQ(listed(u"城市"_s), QString()) << "its text stays empty";

    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"x"_s);
    edit->clear();
    QTest::keyClick(edit, Qt::Key_Return);
    list->clearSelection();
    EXPECT_TRUE(hasSign(u"城市"_s)) << "nothing was changed";
    QTest::keyClick(list, Qt::Key_F2);
    edit->setText(u"x"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_F2);
    edit->clear();
    QTest::keyClick(edit, Qt::Key_Return);
    list->clearSelection();
    list->setCurrentIndex(list->model()->index(listedRow(u"ID"_s), 0));
    list->clearSelection();
    EXPECT_FALSE(hasSign(u"城市"_s)) << "an emptied text is empty, not missing";
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_0, Qt::ControlModifier);
    EXPECT_TRUE(hasSign(u"城市"_s));
}

TEST_F(RecordForm, ACopyHasAllValuesButTheKey)
{
    ASSERT_TRUE(load());
    choose(36, 2);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"ID"_s), QString());
    EXPECT_EQ(listed(u"名称"_s), u"普洱茶"_s);
    EXPECT_EQ(listed(u"日期"_s), u"2024-02-29"_s);
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(messages.texts(), QStringList());
    EXPECT_EQ(stored(u"名称"_s, 13), u"普洱茶"_s);
    EXPECT_EQ(computed(u"hex(图片)"_s, 13), u"424D"_s);
    EXPECT_EQ(stored(u"名称"_s, 2), u"普洱茶"_s);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品"_s), u"13"_s);
}

TEST_F(RecordForm, ACopyIsGivenUpWithEsc)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(listed(u"ID"_s), QString());
    QTest::keyClick(list, Qt::Key_Escape);
    click(u"AllRecord"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品"_s), u"12"_s);
}

TEST_F(RecordForm, WhatIsTypedIsSavedBeforeARecordIsCopied)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    click(u"SingleRecord"_s);
    makeCurrent(u"城市"_s);
    QTest::keyClick(list, Qt::Key_F2);
    edit->selectAll();
    compose(*edit, u"大理"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(stored(u"城市"_s, 2), u"大理"_s);
    EXPECT_EQ(listed(u"城市"_s), u"大理"_s);
    EXPECT_EQ(listed(u"ID"_s), QString());
}

TEST_F(RecordForm, NothingIsCopiedWhereRecordsAreReadOnly)
{
    ASSERT_TRUE(load());
    grid.setProperty("ReadOnly", true);
    clickCell(2, 1);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品"_s), u"12"_s);
}

TEST_F(RecordForm, PicturesAreListedOnlyWhereTheyAreWanted)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    click(u"SingleRecord"_s);
    EXPECT_TRUE(pictures().isVisible());
    EXPECT_LT(listedRow(u"图片"_s), 0);
    QTest::mouseClick(&pictures(), Qt::LeftButton);
    EXPECT_EQ(listed(u"图片"_s), u"<2 字节>"_s) << "no picture";
    QTest::mouseClick(&pictures(), Qt::LeftButton);
    EXPECT_LT(listedRow(u"图片"_s), 0);
    QTest::keyClick(list, Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_GE(listedRow(u"图片"_s), 0);
    ASSERT_TRUE(load(u"SELECT ID, 名称 FROM 商品"_s, QString()));
    click(u"SingleRecord"_s);
    EXPECT_FALSE(pictures().isVisible());
}

TEST_F(RecordForm, APictureIsReplacedFromAFileAndSaved)
{
    ASSERT_TRUE(load());
    showPicturesOf(3);
    replacePicture(pictureFile(Qt::blue));
    EXPECT_EQ(shownPicture(), QColor(Qt::blue));
    EXPECT_GT(cell(u"图片"_s, 1).height(), 2 * cell(u"城市"_s, 1).height());
    EXPECT_EQ(stored(u"图片"_s, 3), QString());
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    QFile file(pictureFile(Qt::blue));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(computed(u"hex(图片)"_s, 3), QString::fromLatin1(file.readAll().toHex().toUpper()));
    QTest::keyClick(list, Qt::Key_0, Qt::ControlModifier);
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(computed(u"图片 IS NULL"_s, 3), u"1"_s);
}

TEST_F(RecordForm, AFileThatIsNoPictureChangesNothing)
{
    ASSERT_TRUE(load());
    showPicturesOf(3);
    const QString path = folder.filePath(u"文.txt"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    file.close();
    replacePicture(path);
    EXPECT_EQ(messages.texts(), QStringList{u"文件“%1”不是图片，或者太大。"_s.arg(path)});
    EXPECT_EQ(listed(u"图片"_s), QString());
}

TEST_F(RecordForm, APictureThatCannotBeWrittenIsOnlyShown)
{
    ASSERT_TRUE(load());
    grid.setProperty("ReadOnly", true);
    showPicturesOf(2);
    QTest::keyClick(list, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_0, Qt::ControlModifier);
    QTest::keyClicks(list, u"x"_s);
    EXPECT_EQ(listed(u"图片"_s), u"<2 字节>"_s);
    EXPECT_FALSE(edit->isVisible());
}
