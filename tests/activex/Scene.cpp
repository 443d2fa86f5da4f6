#include "Scene.h"

#include "SampleFile.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace {

// A picture of the container's window with everything over it, and of the dialog in front of it.
bool saveScreen(const Container &container, const std::wstring &file)
{
    RECT frame{};
    GetWindowRect(container.window(), &frame);
    RECT front{};
    GetWindowRect(GetForegroundWindow(), &front);
    UnionRect(&frame, &frame, &front);
    const int width = frame.right - frame.left;
    const int height = frame.bottom - frame.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, height, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void *bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, frame.left, frame.top, SRCCOPY);
    GdiFlush();
    const DWORD size = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
    BITMAPFILEHEADER header{};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + size;
    bool written = false;
    if (FILE *out = _wfopen(file.c_str(), L"wb")) {
        written = std::fwrite(&header, sizeof header, 1, out) == 1 &&
                  std::fwrite(&info.bmiHeader, sizeof info.bmiHeader, 1, out) == 1 &&
                  std::fwrite(bits, size, 1, out) == 1;
        std::fclose(out);
    }
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return written;
}

} // namespace

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
    EXPECT_TRUE(saveScreen(container, std::wstring(folder) + L"\\" + name + L".bmp"));
}
