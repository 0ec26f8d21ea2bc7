// GoogleTest prints UTF-16 texts as numbers; with this header it prints them as texts, also inside
// tuples and containers.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace testing::internal {

// What the window shows is nearly all ASCII.
template <>
class UniversalPrinter<std::u16string_view> {
 public:
  static void Print(std::u16string_view text, std::ostream* out) {
    *out << '"';
    for (const char16_t c : text) *out << (c < 128 ? static_cast<char>(c) : '?');
    *out << '"';
  }
};

template <>
class UniversalPrinter<std::u16string> : public UniversalPrinter<std::u16string_view> {};

}  // namespace testing::internal
