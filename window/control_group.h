// From the names of the stored layout to its rows. The compiler goes this way: a name that the
// layout does not have, or a row of another kind than asked for, does not build.
#pragma once

#include <cstddef>
#include <string_view>

#include "layout.h"

// Controls that share a name, told apart by an index from 0.
template <class T, std::size_t count>
struct ControlGroup {
  using Member = T;
  static constexpr int Count = static_cast<int>(count);
  T* members[count];
  T& operator[](int index) const { return *members[index]; }
};

// Never defined, and nothing that the compiler can evaluate: where RowOf comes to call it the build
// stops, and the message names it.
void NoSuchRowInTheLayout();

// The number of the row `name`, `index` of the layout, which must be of this kind.
consteval std::size_t RowOf(std::u16string_view name, int index, Toolkit::Kind kind) {
  std::size_t row = 0;
  for (const Toolkit::StoredControl& stored : Layout::Rows) {
    if (stored.name == name && stored.index == index && stored.kind == kind) return row;
    ++row;
  }
  NoSuchRowInTheLayout();
  return row;
}

// The row of a control of the class T.
template <class T>
struct ControlRow {
  std::size_t row;
  consteval ControlRow(const char16_t* name) : row(RowOf(name, Toolkit::NoIndex, T::OwnKind)) {}
};

// The rows of a group, a ControlGroup.
template <class Group>
struct GroupRows {
  std::size_t rows[Group::Count];
  consteval GroupRows(const char16_t* name) {
    for (int index = 0; index < Group::Count; ++index) {
      rows[index] = RowOf(name, index, Group::Member::OwnKind);
    }
  }
};
