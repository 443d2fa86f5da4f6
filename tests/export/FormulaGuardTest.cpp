#include "export/writers/FormulaGuard.h"

#include <gtest/gtest.h>

using KOVAVSFDataGridLib::looksLikeFormula;

TEST(FormulaGuard, KnowsWhatASpreadsheetComputes)
{
    for (const char *text : {"=1+1", "=cmd|' /C calc'!A0", "@SUM(1)", "+1+1", "-1+2", "+cmd", "-", "+",
                             "\t=1", "\r=1", "\n=1", "＝1+1", "＋1", "－1", "＠A", "+1.2.3", "-."})
        EXPECT_TRUE(looksLikeFormula(text)) << text;
    for (const char *text :
         {"", "a", " =1", "1=1", "-5", "+3.25", "-0.5", "+8613800000000", "中文", "￥1", "'=1"})
        EXPECT_FALSE(looksLikeFormula(text)) << text;
}
