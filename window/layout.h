// The layout of the window. All lengths are in twips, 1/1440 of an inch.
#pragma once

#include <algorithm>

#include "toolkit.h"

namespace Layout {

using enum Toolkit::Kind;
using Toolkit::Bounds;
using Toolkit::ControlTemplate;
using Toolkit::NoIndex;

// The client area. The window is of fixed size and opens in the middle of the screen.
inline constexpr int ClientWidth = 12015;
inline constexpr int ClientHeight = 6015;

inline constexpr int Timer1Interval = 1000;  // milliseconds

inline constexpr Toolkit::Font Sans = {u"MS Sans Serif", 195};      // 9.75 points
inline constexpr Toolkit::Font BigSans = {u"MS Sans Serif", 270};   // 13.5 points
inline constexpr Toolkit::Font Typewriter = {u"Courier New", 195};  // 9.75 points

// The containers: the client area, and in it the frame.
inline constexpr Bounds OnWindow = {0, 0, ClientWidth, ClientHeight};
inline constexpr Bounds InFrame = {120, 120, 11775, 2415};

// clang-format off
// In tab order: the tab position of a control is its row.
// name, index, kind, container, {left, top, width, height}, text, font, accessible name, properties
inline constexpr ControlTemplate Rows[] = {
    {u"txbOutput", NoIndex, TextBox, OnWindow, {120, 2640, 9495, 2775},
     u"", Typewriter, u"Output", {.multiline = true}},
    {u"cmdClear", NoIndex, CommandButton, OnWindow, {9840, 4560, 2055, 369},
     u"Clear output", Sans, u"", {}},
    {u"cmdCopy", NoIndex, CommandButton, OnWindow, {9840, 4080, 2055, 369},
     u"Copy to clipboard", Sans, u"", {}},
    {u"cmdQuit", NoIndex, CommandButton, OnWindow, {9840, 5040, 2055, 369},
     u"Quit", Sans, u"", {}},
    {u"lblCopyright", NoIndex, Label, OnWindow, {120, 5600, 9495, 255},
     u"", Sans, u"", {.centered = true}},
    {u"Frame1", NoIndex, Frame, OnWindow, InFrame,
     u"", Sans, u"", {}},
    {u"txbYearCE", 1, TextBox, InFrame, {6795, 765, 735, 360},
     u"2399", Sans, u"Solar year", {.max_length = 5}},
    {u"cboDay", 1, ComboBox, InFrame, {6040, 765, 600, 360},
     u"", Sans, u"Solar day", {}},
    {u"cboMonth", 1, ComboBox, InFrame, {4440, 765, 1455, 360},
     u"", Sans, u"Solar month", {}},
    {u"txbYearCE", 0, TextBox, InFrame, {6795, 240, 735, 360},
     u"2399", Sans, u"Gregorian year", {.max_length = 5}},
    {u"cboDay", 0, ComboBox, InFrame, {6040, 240, 600, 360},
     u"", Sans, u"Gregorian day", {}},
    {u"cboMonth", 0, ComboBox, InFrame, {4440, 240, 1455, 360},
     u"", Sans, u"Gregorian month", {}},
    {u"lblSameDay", NoIndex, Label, InFrame, {4440, 1920, 4335, 255},
     u"The dates above do not denote the same day.", Sans, u"", {}},
    {u"lblDayOfWeek", 0, Label, InFrame, {7680, 300, 1605, 345},
     u"Monday", Sans, u"", {}},
    {u"lblDayOfWeek", 1, Label, InFrame, {7680, 800, 1605, 345},
     u"Lunaday", Sans, u"", {}},
    {u"optCalendar", 0, OptionButton, InFrame, {120, 240, 3975, 495},
     u"Gregorian (7-day week)", Sans, u"", {}},
    {u"optCalendar", 1, OptionButton, InFrame, {120, 720, 4335, 495},
     u"Solar Karvel-Gregorian (7/8-day week)", Sans, u"", {}},
    {u"optCalendar", 2, OptionButton, InFrame, {120, 1200, 4335, 495},
     u"Lunar Karvel-Sorand (7/8-day week)", Sans, u"", {}},
    {u"lblDayOfWeek", 2, Label, InFrame, {10400, 1380, 1125, 345},
     u"Wednesday", Sans, u"", {}},
    {u"cboMonth", 2, ComboBox, InFrame, {8540, 1320, 975, 360},
     u"", Sans, u"Lunar month", {}},
    {u"cboDay", 2, ComboBox, InFrame, {9700, 1320, 600, 360},
     u"", Sans, u"Lunar day", {}},
    {u"lblM", NoIndex, Label, InFrame, {5640, 1365, 255, 360},
     u"M", Sans, u"", {}},
    {u"lblDash", NoIndex, Label, InFrame, {6430, 1280, 195, 360},
     u"-", BigSans, u"", {}},
    {u"cboMType", NoIndex, ComboBox, InFrame, {5880, 1320, 500, 360},
     u"Combo1", Sans, u"Metonic cycle type", {.editable = true}},
    {u"cboYearInMet", NoIndex, ComboBox, InFrame, {7270, 1320, 1095, 360},
     u"Combo1", Sans, u"Year in Metonic cycle", {.editable = true}},
    {u"cboGMet", NoIndex, ComboBox, InFrame, {4440, 1320, 1095, 360},
     u"Combo1", Sans, u"Great cycle", {.editable = true}},
    {u"txbMetNum", NoIndex, TextBox, InFrame, {6570, 1320, 495, 360},
     u"301", Sans, u"Metonic cycle number", {.max_length = 3}},
    {u"cmdConvert", NoIndex, CommandButton, InFrame, {360, 1800, 3015, 369},
     u"Convert selected date", Sans, u"", {}},
    {u"cmdTBF", 0, CommandButton, OnWindow, {9840, 2640, 2055, 369},
     u"Today's date", Sans, u"", {}},
    {u"cmdTBF", 1, CommandButton, OnWindow, {9840, 3120, 2055, 369},
     u"Back one day", Sans, u"", {}},
    {u"cmdTBF", 2, CommandButton, OnWindow, {9840, 3600, 2055, 369},
     u"Forward one day", Sans, u"", {}},
};
// clang-format on

// Labels and option buttons may reach a little into the fields beside them, which cover them.
inline constexpr int MostOverlap = 60;

constexpr bool MayBeOverlapped(const ControlTemplate& row) {
  return row.kind == Label || row.kind == OptionButton;
}

// Stops the build if the control leaves its container or overlaps another in it.
consteval void RequireRoom(const ControlTemplate& row) {
  const auto right = [](const Bounds& bounds) { return bounds.left + bounds.width; };
  const auto bottom = [](const Bounds& bounds) { return bounds.top + bounds.height; };
  const Bounds& own = row.bounds;
  if (own.left < 0 || own.top < 0 || right(own) > row.container.width ||
      bottom(own) > row.container.height) {
    throw "this control leaves its container";
  }
  for (const ControlTemplate& other : Rows) {
    if (&other == &row || other.container != row.container) continue;
    const int overlap =
        std::min(std::min(right(own), right(other.bounds)) - std::max(own.left, other.bounds.left),
                 std::min(bottom(own), bottom(other.bounds)) - std::max(own.top, other.bounds.top));
    if (overlap > (MayBeOverlapped(row) || MayBeOverlapped(other) ? MostOverlap : 0)) {
      throw "this control overlaps another";
    }
  }
}

}  // namespace Layout
