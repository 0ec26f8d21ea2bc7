#include "decimal.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>

namespace StrProc {

std::u16string Decimal(std::int32_t number) {
  char digits[12];  // the longest is "-2147483648"
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
  return std::u16string(std::begin(digits), end);
}

std::int32_t DecimalValue(std::u16string_view text) {
  using Limits = std::numeric_limits<std::int32_t>;
  const bool negative = text.starts_with(u'-');
  if (negative) text.remove_prefix(1);
  std::int64_t value = 0;
  for (const char16_t c : text) {
    if (c < u'0' || c > u'9') break;
    // One beyond the limit is enough to know that the number is outside.
    value = std::min<std::int64_t>(value * 10 + (c - u'0'), std::int64_t{Limits::max()} + 1);
  }
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(negative ? -value : value, Limits::min(), Limits::max()));
}

}  // namespace StrProc
