// GoogleTest prints UTF-16 texts as numbers; with this header it prints them as texts, also inside
// tuples and containers.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace testing::internal {

// Plain ASCII as it stands, anything else as its code: what the window shows is nearly all ASCII.
template <>
class UniversalPrinter<std::u16string_view> {
 public:
  static void Print(std::u16string_view text, std::ostream* out) {
    *out << '"';
    for (const char16_t c : text) {
      if (c >= u' ' && c <= u'~') {
        *out << static_cast<char>(c);
      } else {
        *out << '<' << static_cast<unsigned>(c) << '>';
      }
    }
    *out << '"';
  }
};

template <>
class UniversalPrinter<std::u16string> : public UniversalPrinter<std::u16string_view> {};

template <>
class UniversalPrinter<const char16_t*> : public UniversalPrinter<std::u16string_view> {};

// A literal compared with a view is a text, as it is when compared with a string.
template <>
class FormatForComparison<const char16_t*, std::u16string_view> {
 public:
  static std::string Format(std::u16string_view text) { return PrintToString(text); }
};

}  // namespace testing::internal
