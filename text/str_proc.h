// Character tests and counting. Texts are sequences of 16-bit code units, which lengths and
// positions count; positions begin at 1. Characters compare by code, never by locale.
#pragma once

#include <cstdint>
#include <string_view>

namespace StrProc {

inline constexpr std::u16string_view Digits = u"0123456789";

// The position of the first character of `text`, at or after `start`, that is not in `set`;
// 0 if there is none, even if `text` is empty or `start` is beyond its end. With an empty `set` it
// is 1 for any text that is not empty, whatever `start` is. A `start` below 1 is taken as 1; the
// tests below use no other.
std::int32_t FirstNotInSet(std::u16string_view text, std::int32_t start, std::u16string_view set);

// Whether `text` has no character outside `Digits`. True for the empty text.
bool IsAllDigits(std::u16string_view text);

// Whether `text` has no character outside `Digits` and `extra`, however many of the extra ones
// there are, and wherever. True for the empty text.
bool IsAllDigitsOr(std::u16string_view text, std::u16string_view extra);

// How often `pattern` occurs in `text`, from the left and without overlap: "AAA" holds "AA" once. 0
// if either is empty.
std::int32_t CountOccurrences(std::u16string_view text, std::u16string_view pattern);

}  // namespace StrProc
