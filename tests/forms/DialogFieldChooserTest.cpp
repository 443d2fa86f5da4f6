#include "forms/DialogFieldChooser.h"
#include "forms/frmSelShowFields.h"
#include "forms/frmSelSortFields.h"

#include "support/Dialogs.h"

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTreeWidget>
#include <gtest/gtest.h>

#include <functional>
#include <set>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Does something with the modal dialog as soon as it is shown.
void onDialog(const std::function<void(QWidget &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        ASSERT_NE(QApplication::activeModalWidget(), nullptr);
        act(*QApplication::activeModalWidget());
    });
}

} // namespace

TEST(DialogFieldChooser, AnswersTheTickedFields)
{
    onDialog([](QWidget &dialog) {
        EXPECT_EQ(dialog.objectName(), u"frmSelShowFields"_s);
        EXPECT_EQ(part<QTreeWidget>(dialog, "lvSelField").topLevelItem(1)->checkState(0), Qt::Checked);
        press(dialog, "cmdCheckInvert");
        press(dialog, "cmdOK");
    });
    DialogFieldChooser chooser;
    EXPECT_EQ(chooser.ChooseVisibleFields(
                  u"T"_s, {{u"A"_s, u"A"_s}, {u"B"_s, u"B"_s}, {u"2023年"_s, u"[2023年]"_s}}, {u"[B]"_s}),
              u"A,[2023年]"_s);
}

TEST(DialogFieldChooser, AnswersTheSort)
{
    onDialog([](QWidget &dialog) {
        EXPECT_EQ(dialog.objectName(), u"frmSelSortFields"_s);
        press(dialog, "cmdAddField");
        press(dialog, "cmdOK");
    });
    DialogFieldChooser chooser;
    EXPECT_EQ(chooser.ChooseSort(u"T"_s, {{u"2023年"_s, u"[2023年]"_s}, {u"B"_s, u"B"_s}}, {u"B DESC"_s}),
              u"B DESC,[2023年]"_s);
}

TEST(DialogFieldChooser, CancellingAnswersNothing)
{
    DialogFieldChooser chooser;
    onDialog([](QWidget &dialog) { press(dialog, "cmdCancel"); });
    EXPECT_FALSE(chooser.ChooseVisibleFields(u"T"_s, {{u"A"_s, u"A"_s}}, {u"A"_s}));
    onDialog([](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_FALSE(chooser.ChooseSort(u"T"_s, {{u"A"_s, u"A"_s}}, {u"A"_s}));
}

TEST(DialogFieldChooser, ShowsThePictureOfTheCommandThatAsks)
{
    QPixmap red(16, 16);
    red.fill(Qt::red);
    QPixmap green(16, 16);
    green.fill(Qt::green);
    DialogFieldChooser chooser(nullptr, {QIcon(red), QIcon(green)});
    const auto expectPicture = [](const QPixmap &expected) {
        onDialog([expected](QWidget &dialog) {
            EXPECT_EQ(part<QLabel>(dialog, "Picture1").pixmap().toImage(), expected.toImage());
            press(dialog, "cmdCancel");
        });
    };
    expectPicture(red);
    EXPECT_FALSE(chooser.ChooseVisibleFields(u"T"_s, {{u"A"_s, u"A"_s}}, {}));
    expectPicture(green);
    EXPECT_FALSE(chooser.ChooseSort(u"T"_s, {{u"A"_s, u"A"_s}}, {}));
}

// A picture drawn again for each dialog would stay in Qt's pixmap cache, at least by name.
TEST(DialogFieldChooser, AllDialogsShareThePictureThatNobodyChose)
{
    std::set<qint64> pictures;
    for (int i = 0; i < 20; ++i) {
        const frmSelShowFields fields;
        const frmSelSortFields sort;
        for (const QWidget *dialog :
             {static_cast<const QWidget *>(&fields), static_cast<const QWidget *>(&sort)}) {
            const QPixmap picture = part<QLabel>(*dialog, "Picture1").pixmap();
            ASSERT_FALSE(picture.isNull());
            pictures.insert(picture.cacheKey());
        }
    }
    EXPECT_EQ(pictures.size(), 1U);
}
