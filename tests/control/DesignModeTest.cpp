#include "control/face/KOVAVSFDataGrid.h"

#include <gtest/gtest.h>

// Simulates Qt Designer's form: the control checks whether an ancestor has this class name.
class QDesignerFormWindowInterface : public QWidget
{
    Q_OBJECT
};

TEST(DesignMode, IsFoundOutOnAForm)
{
    QDesignerFormWindowInterface form;
    auto *container = new QWidget(&form);
    auto *grid = new KOVAVSFDataGrid(container);
    EXPECT_FALSE(grid->UserMode());
    EXPECT_NO_THROW(grid->PutUseModel(KOVAVSFDataGrid::ModelDefine));
    EXPECT_EQ(grid->UseModel(), KOVAVSFDataGrid::ModelDefine);
}

TEST(DesignMode, EndsWhenTheControlLeavesTheForm)
{
    QDesignerFormWindowInterface form;
    KOVAVSFDataGrid grid(&form);
    EXPECT_FALSE(grid.UserMode());
    grid.setParent(nullptr);
    EXPECT_TRUE(grid.UserMode());
}

TEST(DesignMode, IsWhatTheHostSays)
{
    KOVAVSFDataGrid grid;
    EXPECT_TRUE(grid.UserMode());
    EXPECT_TRUE(grid.setProperty("UserMode", false));
    EXPECT_FALSE(grid.property("UserMode").toBool());
    EXPECT_NO_THROW(static_cast<void>(grid.UseModel()));
}

#include "DesignModeTest.moc"
