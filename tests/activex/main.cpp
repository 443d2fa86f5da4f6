#include <gtest/gtest.h>
#include <objbase.h>
#include <ole2.h>

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    OleInitialize(nullptr);
    const int failed = RUN_ALL_TESTS();
    OleUninitialize();
    return failed;
}
