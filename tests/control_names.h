// Texts, and the names by which the tests call the controls.
#pragma once

#include <gtest/gtest.h>

#include "toolkit.h"

using Text = std::u16string;
using View = std::u16string_view;

// As in the layout, followed by the index if the control has one: "cboMonth0".
inline Text NameOf(const Toolkit::ControlTemplate& row) {
  Text name(row.name);
  if (row.index != Toolkit::NoIndex) name += static_cast<char16_t>(u'0' + row.index);
  return name;
}
