#include "str_proc.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace StrProc {

std::int32_t FirstNotInSet(std::u16string_view text, std::int32_t start, std::u16string_view set) {
  if (text.empty()) return 0;
  if (set.empty()) return 1;
  const auto from = static_cast<std::size_t>(std::max(start, 1) - 1);
  const std::size_t found = text.find_first_not_of(set, from);
  return found == text.npos ? 0 : static_cast<std::int32_t>(found) + 1;
}

bool IsAllDigits(std::u16string_view text) {
  return FirstNotInSet(text, 1, Digits) == 0;
}

bool IsAllDigitsOr(std::u16string_view text, std::u16string_view extra) {
  return FirstNotInSet(text, 1, std::u16string(Digits).append(extra)) == 0;
}

std::int32_t CountOccurrences(std::u16string_view text, std::u16string_view pattern) {
  if (pattern.empty()) return 0;
  std::int32_t count = 0;
  for (std::size_t at = text.find(pattern); at != text.npos;
       at = text.find(pattern, at + pattern.size())) {
    ++count;
  }
  return count;
}

}  // namespace StrProc
