// Finds the rows of the layout by name at compile time: a control that the layout does not have,
// that is of another kind, or that has no room does not build, and the compiler's message names it.
#pragma once

#include <cstddef>
#include <string_view>

#include "layout.h"

// Controls that share a name, told apart by an index from 0.
template <class T, std::size_t count>
struct ControlGroup {
  static constexpr int Count = static_cast<int>(count);
  T* members[count];
  T& operator[](int index) const { return *members[index]; }
};

// The number of the row `name`, `index` of the layout, which must be of this kind.
consteval std::size_t RowOf(std::u16string_view name, int index, Toolkit::Kind kind) {
  std::size_t number = 0;
  for (const Toolkit::ControlTemplate& row : Layout::Rows) {
    if (row.name == name && row.index == index && row.kind == kind) {
      Layout::RequireRoom(row);
      return number;
    }
    ++number;
  }
  throw "the layout has no control of this name, index and kind";
}

// The row of a control of the class T.
template <class T>
struct ControlRow {
  std::size_t row;
  consteval ControlRow(const char16_t* name) : row(RowOf(name, Toolkit::NoIndex, T::OwnKind)) {}
};

// The rows of a group.
template <class T, std::size_t count>
struct GroupRows {
  std::size_t rows[count];
  consteval GroupRows(const char16_t* name) {
    int index = 0;
    for (std::size_t& row : rows) row = RowOf(name, index++, T::OwnKind);
  }
};
