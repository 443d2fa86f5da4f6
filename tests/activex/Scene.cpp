#include "Scene.h"

#include "SampleFile.h"

#include <cstdlib>
#include <gtest/gtest.h>

void load(Container &container)
{
    Late::put(container.control(), L"ConnectionString", sampleConnection().c_str());
    Late::put(container.control(), L"DBType", 3);
    Late::put(container.control(), L"SQLShow", L"select id, name, born, big from people order by id");
    ASSERT_TRUE(Late::get(container.control(), L"IsLoadData").isTrue());
    container.run();
}

void picture(const Container &container, const wchar_t *name)
{
    const wchar_t *folder = _wgetenv(L"KOVA_PICTURES");
    if (!folder)
        return;
    EXPECT_TRUE(container.saveScreen(std::wstring(folder) + L"\\" + name + L".bmp"));
}
