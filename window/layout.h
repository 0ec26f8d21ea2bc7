// The stored layout of the window: what stands where before the first line of the form runs. All
// lengths are in twips, 1/1440 of an inch.
#pragma once

#include <span>

#include "toolkit.h"

// The client area. The window is of fixed size and opens in the middle of the screen.
inline constexpr int ClientWidth = 12015;
inline constexpr int ClientHeight = 6015;

inline constexpr int Timer1Interval = 1000;  // milliseconds

// The controls in tab order: the tab position of a control is its row.
std::span<const Toolkit::StoredControl> StoredLayout();
