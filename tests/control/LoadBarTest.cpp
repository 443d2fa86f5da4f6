// The bar of a long load: how much of it is full by what is known of the number of records.
#include "control/parts/GridTexts.h"
#include "control/parts/lines/LoadProgress.h"

#include <QtTest/QTest>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QWidget>

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;

namespace {

constexpr int longEnough = 600; // milliseconds until the line is seen, and between its updates

struct LoadBarTest : testing::Test
{
    // The percents that are full after so many records; -1 for a bar that only shows that work is in
    // progress.
    int percentAfter(LoadProgress &progress, qint64 records)
    {
        QTest::qWait(longEnough);
        EXPECT_TRUE(progress.shouldContinue(records));
        const auto *bar = window.findChild<QProgressBar *>();
        return bar->maximum() > 0 ? 100 * bar->value() / bar->maximum() : -1;
    }
    QRect place() const { return window.rect(); }

    QWidget window;
};

} // namespace

TEST_F(LoadBarTest, ALoadWithAnEstimateShowsItsPart)
{
    LoadProgress progress(window, [this] { return place(); });
    EXPECT_EQ(percentAfter(progress, 100'000), -1) << "nobody knows how many there are";
    progress.expect(2'000'000);
    EXPECT_EQ(percentAfter(progress, 500'000), 25);
    EXPECT_EQ(percentAfter(progress, 1'500'000), 75);
}

TEST_F(LoadBarTest, AnEstimateNeverMakesTheBarFull)
{
    LoadProgress progress(window, [this] { return place(); });
    progress.expect(2'000'000);
    EXPECT_EQ(percentAfter(progress, 1'999'999), 99);
    EXPECT_EQ(percentAfter(progress, 2'000'001), -1) << "it was wrong";
}

TEST_F(LoadBarTest, AKnownTotalMakesItFull)
{
    LoadProgress progress(
        window, [this] { return place(); }, GridTexts::RecordsRead, 200);
    EXPECT_EQ(percentAfter(progress, 100), 50);
    EXPECT_EQ(percentAfter(progress, 200), 100);
}
