#pragma once

#include "Container.h"

#include <gtest/gtest.h>
#include <vector>

// A black picture of the screen's kind to draw on.
class Canvas
{
public:
    Canvas(int width, int height) : m_width(width), m_height(height)
    {
        const HDC screen = GetDC(nullptr);
        m_context = CreateCompatibleDC(screen);
        m_bitmap = CreateCompatibleBitmap(screen, width, height);
        m_before = SelectObject(m_context, m_bitmap);
        PatBlt(m_context, 0, 0, width, height, BLACKNESS);
        ReleaseDC(nullptr, screen);
    }
    ~Canvas()
    {
        SelectObject(m_context, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }
    Canvas(const Canvas &) = delete;
    Canvas &operator=(const Canvas &) = delete;

    HDC context() const { return m_context; }
    COLORREF at(int x, int y) const { return GetPixel(m_context, x, y); }
    // All of it, after the control has drawn itself on it.
    std::vector<COLORREF> drawn(const Container &container)
    {
        const RECTL place{0, 0, m_width, m_height};
        EXPECT_EQ(container.as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr,
                                                    m_context, &place, nullptr, nullptr, 0),
                  S_OK);
        std::vector<COLORREF> dots;
        for (int y = 0; y < m_height; ++y) {
            for (int x = 0; x < m_width; ++x)
                dots.push_back(at(x, y));
        }
        return dots;
    }

private:
    const int m_width;
    const int m_height;
    HDC m_context;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
};
