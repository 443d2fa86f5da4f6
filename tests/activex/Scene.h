#pragma once

#include "Container.h"

// What the tests of a container share: a small result to show, where its parts are, and pictures.

// Points of the control at 800 x 500 pixels, 96 dots to the inch.
inline constexpr int rowX = 120; // in the first data row
inline constexpr int rowY = 63;
inline constexpr int headingY = 39;
inline constexpr int toolbarY = 13;
inline constexpr int singleRecordX = 88;
inline constexpr int filterX = 117;
inline constexpr int panelX = 57; // beside the grid
inline constexpr int panelY = 485;

// Shows the three people of the sample file.
void load(Container &container);
// Saves a screenshot of the container in the folder that the environment variable KOVA_PICTURES names; does
// nothing if that is not set.
void picture(const Container &container, const wchar_t *name);
